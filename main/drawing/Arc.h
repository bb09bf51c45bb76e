// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Box.h"

#include <QPainterPath>

#include <cmath>
#include <numbers>

namespace ambrelle {

/// Circles, and what is cut from them. Places on a circle are turns, clockwise from twelve o'clock: 0.25 is at three.

/// The point of a circle at `turns`.
inline QPointF pointOn(QPointF centre, double radius, double turns)
{
    const double angle = 2 * std::numbers::pi * turns;
    return centre + QPointF(std::sin(angle), -std::cos(angle)) * radius;
}

/// The square about a circle.
inline Box squareAbout(QPointF centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

/// The line along the circle in `circle` from `from` on over `turns`, counterclockwise below 0; the whole circle for a
/// turn and more.
inline QPainterPath arc(const Box& circle, double from, double turns)
{
    QPainterPath path;
    if (std::abs(turns) >= 1) {
        path.addEllipse(circle);
        return path;
    }
    path.arcMoveTo(circle, 90 - from * 360);
    path.arcTo(circle, 90 - from * 360, -turns * 360);
    return path;
}

/// The piece of a ring whose outer edge is the circle in `circle` and which is `width` points wide. With `slant` its
/// inner edge lies so many turns further on.
inline QPainterPath ringPiece(const Box& circle, double width, double from, double turns, double slant = 0)
{
    const Box inner = circle.inset(width);
    QPainterPath path = arc(circle, from, turns);
    if (std::abs(turns) >= 1) {
        path.addEllipse(inner);
        return path;
    }
    path.arcTo(inner, 90 - (from + turns + slant) * 360, turns * 360);
    path.closeSubpath();
    return path;
}

/// A slice of a cake: the piece of the disc in `circle`.
inline QPainterPath slice(const Box& circle, double from, double turns)
{
    if (std::abs(turns) >= 1)
        return arc(circle, from, turns);
    QPainterPath path(circle.center());
    path.arcTo(circle, 90 - from * 360, -turns * 360);
    path.closeSubpath();
    return path;
}

/// A door: straight sides under half a circle as wide as the box.
inline QPainterPath archPath(const Box& box)
{
    const double radius = std::min(box.width() / 2, box.height());
    QPainterPath path(box.bottomLeft());
    path.arcTo({box.x(), box.y(), box.width(), 2 * radius}, 180, -180);
    path.lineTo(box.bottomRight());
    path.closeSubpath();
    return path;
}

/// The box without its upper right corner, `cut` points of either edge.
inline QPainterPath cutCornerPath(const Box& box, double cut)
{
    QPainterPath path(box.topLeft());
    path.lineTo(box.topRight() - QPointF(cut, 0));
    path.lineTo(box.topRight() + QPointF(0, cut));
    path.lineTo(box.bottomRight());
    path.lineTo(box.bottomLeft());
    path.closeSubpath();
    return path;
}

} // namespace ambrelle
