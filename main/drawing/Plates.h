// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

namespace ambrelle {

/// Pieces of plates that several skins share. Points; shadows reach at most 8 points beyond the face.

/// A soft drop below a rounded box in `steps` strokes; `alpha` each, growing by a point a step, moved down by `offset`.
void dropShadow(
    Canvas& canvas, const Box& box, double radius, const QColor& colour, double alpha, int steps, double offset);
/// The same below any outline: torn paper, a stepped frame.
void dropShadow(
    Canvas& canvas, const QPainterPath& shape, const QColor& colour, double alpha, int steps, double offset);

/// A box whose corners go in by `count` squares of `step` points, as pixel art rounds them.
QPainterPath steppedPath(const QRectF& box, double step, int count = 1);

/// A light from above: `colour` at opacity `from` at the upper edge, `to` at `share` of the height.
void sheen(Canvas& canvas, const Box& box, double radius, const QColor& colour, double from, double to, double share);
/// An edge lit from the upper left: white at three opacities along the diagonal.
void litEdge(Canvas& canvas, const Box& box, double radius, double width, double from, double middle, double to);

} // namespace ambrelle
