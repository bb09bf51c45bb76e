// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

#include <QList>

#include <functional>

namespace ambrelle {

/// Graphs of a history. Samples span the full width of their box, oldest at the left edge and newest at the right;
/// `top` is the value at the upper edge. A history of zeros lies on the lower edge.

/// Where each sample stands.
QPolygonF samplePoints(const Box& box, const QList<double>& samples, double top);
/// A line through the samples, rounded between them.
QPainterPath smoothLine(const QPolygonF& points);
/// Draws a line of short straight pieces, ends cut straight. It is filled as one ribbon, which costs a third of
/// stroking.
void graphLine(Canvas& canvas, const QPainterPath& line, const QBrush& brush, double width);
/// The line with straight pieces.
QPainterPath straightLine(const QPolygonF& points);
/// The ground between a line and the level `y`.
QPainterPath areaUnder(const QPainterPath& line, double y);

/// A history as `count` bars: each bar is the mean of the samples it stands for, the newest at the right.
QList<double> binned(const QList<double>& samples, int count);

/// A line like a glowing tube: wide faint strokes under a narrow one.
struct Glow {
    QColor colour;
    double width = 2; ///< of the tube, points
    QColor core{}; ///< of the tube itself, mostly paler; none: the colour
    int strokes = 6;
    double alpha = 0.05; ///< of each stroke
    double spread = 2; ///< by which each stroke is wider than the one before, points
};
void glow(Canvas& canvas, const QPainterPath& path, const Glow& style);

/// Equal blocks in a row, `gap` points apart; `brushOf` gets their index. `litOf` tells how many of them a fraction
/// lights.
struct BlockShape {
    double radius = 0; ///< of the corners, points
    double slant = 0; ///< degrees by which they lean to the right; blocks that lean have sharp corners
    bool upwards = false; ///< one above the other, the first at the bottom; these do not lean
};
void blocks(Canvas& canvas, const Box& box, int count, double gap, const std::function<QBrush(int index)>& brushOf,
    const BlockShape& shape = {});

/// A horizontal bar with round ends, filled to `fraction` (0 to 1).
void capsule(Canvas& canvas, const Box& box, double fraction, const QBrush& track, const QBrush& fill);

/// A vertical gradient over a box from `colour` at opacity `from` (top) to `to` (bottom).
QBrush wash(const Box& box, const QColor& colour, double from, double to);

} // namespace ambrelle
