// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

#include <functional>

/// What the dash of Carbon is made of.
namespace ambrelle::carbon {

inline constexpr double slant = 15; ///< degrees by which blocks and boxes lean
inline constexpr double barGap = 1.5;

/// How far the upper edge of something so high lies to the right of its foot.
double leanOf(double height);
/// The box leaning to the right: its foot begins at the lower left corner, its upper edge ends at the upper right one.
QPainterPath leaning(const Box& box);
/// A row of blocks through the middle of the box, at most `height` points high.
void leaningBlocks(
    Canvas& canvas, const Box& box, double height, int count, const std::function<QBrush(int index)>& brushOf);
/// All that leans about the middle of the box by so many degrees.
QTransform shearAbout(const Box& box, double degrees);
/// Bars of samples on the lower edge of the box, or hanging from the upper one, where `top` is the full height; none is
/// lower than a line.
void bars(
    Canvas& canvas, const Box& box, const QList<double>& samples, double top, const QBrush& fill, bool hanging = false);
/// A twill of fibre bundles, each going over two and under two others: the parts that lie above.
QPainterPath twillIn(const Box& box);

} // namespace ambrelle::carbon
