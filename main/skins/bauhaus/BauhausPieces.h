// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/Readings.h"

#include <functional>

namespace ambrelle::bauhaus {

/// A flat shape. One that is nearly as light as the sheet gets a thin edge, so that its size can be read.
void flat(Canvas& canvas, const QPainterPath& shape, const QColor& colour);
void flat(Canvas& canvas, const Box& box, const QColor& colour);

/// A triangle that fills the box and points up, to the right, down or to the left.
enum class Pointing { up, right, down, left };
QPainterPath triangle(const Box& box, Pointing where);

/// The samples as bars on the lower edge of the box, or hanging from its upper edge.
struct Bars {
    int count = 20;
    bool hanging = false;
};
void bars(Canvas& canvas, const Box& box, const History& history, double top,
    const std::function<QColor(int index)>& colourOf, const Bars& bars = {});

/// The picture of a sky from discs, bars, squares and a triangle, in the largest square of the box.
void skyPicture(Canvas& canvas, const Box& box, Sky sky);

/// An analogue dial: a black ring, a bar in `hand` for the hours, a blue one for the minutes, a yellow hub.
void clockDial(Canvas& canvas, const Box& box, const ClockReading& reading, const QColor& hand);

/// A key of the player from triangles and bars.
void playerKey(Canvas& canvas, const Box& box, const QString& symbol, double size);

} // namespace ambrelle::bauhaus
