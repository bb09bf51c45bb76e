// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

namespace ambrelle {

/// Lines of drawings and of print, in the manner of the canvas. Points.

/// Fills a shape with parallel lines, `degrees` from the horizontal (45 rises to the right), `pitch` apart. They lie on
/// one grid of the face, so that those of a shape that grows stay where they are, and of two shapes side by side meet.
void hatch(Canvas& canvas, const QPainterPath& shape, double degrees, double pitch, const QPen& pen);

/// The dots that lead from a name to its value, at the height `y` (see `Canvas::baseline`), each `size` wide, on a grid
/// of `pitch`, so that those of several rows stand below each other.
void dottedLeader(
    Canvas& canvas, double from, double to, double y, const QBrush& brush, double size = 1, double pitch = 4);

/// A line that swings `amplitude` to both sides, once each `length`; it starts and ends on the straight way.
QPainterPath wavyLine(QPointF from, QPointF to, double amplitude, double length);

} // namespace ambrelle
