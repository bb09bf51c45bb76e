// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Box.h"
#include "drawing/Colours.h"

#include <QBrush>
#include <QConicalGradient>
#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>

namespace ambrelle {

/// Gradients in one line, in the face's points: `linear(from, to, {{0, dark}, {0.4, pale}, {1, dark}})`.

inline QBrush linear(QPointF from, QPointF to, const QGradientStops& stops)
{
    QLinearGradient gradient(from, to);
    gradient.setStops(stops);
    return gradient;
}

/// From the upper edge of the box to its lower one.
inline QBrush downwards(const Box& box, const QGradientStops& stops)
{
    return linear(box.topLeft(), box.bottomLeft(), stops);
}

/// From the left edge of the box to its right one.
inline QBrush across(const Box& box, const QGradientStops& stops)
{
    return linear(box.topLeft(), box.topRight(), stops);
}

/// From the centre (0) to the radius (1).
inline QBrush radial(QPointF centre, double radius, const QGradientStops& stops)
{
    QRadialGradient gradient(centre, radius);
    gradient.setStops(stops);
    return gradient;
}

/// A ball or knob: the same, but 0 is at `light`, a point inside the circle.
inline QBrush radial(QPointF centre, double radius, QPointF light, const QGradientStops& stops)
{
    QRadialGradient gradient(centre, radius, light);
    gradient.setStops(stops);
    return gradient;
}

/// A light in the air: `colour` at `opacity` in the centre, nothing at the radius.
inline QBrush halo(QPointF centre, double radius, const QColor& colour, double opacity)
{
    return radial(centre, radius, {{0, faded(colour, opacity)}, {1, faded(colour, 0)}});
}

/// Once round the centre, clockwise; 0 and 1 are at `from`, in turns clockwise from twelve o'clock.
inline QBrush conical(QPointF centre, double from, const QGradientStops& stops)
{
    QConicalGradient gradient(centre, 90 - from * 360); // which itself runs counterclockwise
    QGradientStops reversed;
    for (const auto& [place, colour] : stops)
        reversed.prepend({1 - place, colour});
    gradient.setStops(reversed);
    return gradient;
}

/// Along an arc: 0 at `from`, 1 after `turns` (0 to 1, clockwise). The outer colours go on beyond both ends, where
/// round caps are; where the ends meet the last colour flows back into the first.
inline QBrush alongArc(QPointF centre, double from, double turns, const QGradientStops& stops)
{
    constexpr double closed = 0.97; // from here on there is no room beyond the ends
    const double length = std::clamp(turns, 0.001, closed);
    const bool meets = turns > closed && !stops.isEmpty();
    const double before = meets ? 0 : (1 - length) / 2;
    QGradientStops moved;
    for (const auto& [place, colour] : stops)
        moved.append({before + place * length, colour});
    if (meets)
        moved.append({1, stops.first().second});
    return conical(centre, from - before, moved);
}

} // namespace ambrelle
