// SPDX-License-Identifier: MIT

#include "skins/chalk/ChalkMarks.h"

#include <cmath>
#include <numbers>

namespace ambrelle::chalk {

QPainterPath arrowPath(QPointF from, QPointF to, double head)
{
    const QPointF way = to - from;
    const QPointF back = way * (-head / std::max(0.1, std::hypot(way.x(), way.y())));
    const QPointF aside(-back.y() * 0.62, back.x() * 0.62);
    QPainterPath path(from);
    path.lineTo(to);
    path.moveTo(to + back + aside);
    path.lineTo(to);
    path.lineTo(to + back * 0.9 - aside * 1.1);
    return path;
}

QPainterPath crossPath(QPointF centre, double half)
{
    QPainterPath path(centre + QPointF(-half, -half * 0.9));
    path.lineTo(centre + QPointF(half, half));
    path.moveTo(centre + QPointF(half * 0.9, -half));
    path.lineTo(centre + QPointF(-half, half * 0.9));
    return path;
}

QPainterPath tickPath(const Box& box)
{
    const auto at = [&](double x, double y) { return box.topLeft() + QPointF(box.width() * x, box.height() * y); };
    QPainterPath path(at(0.18, 0.46));
    path.quadTo(at(0.34, 0.62), at(0.44, 0.86));
    path.quadTo(at(0.68, 0.3), at(1.16, -0.1));
    return path;
}

QPainterPath boxPath(const Box& box)
{
    const double over = std::min(1.4, box.width() * 0.1);
    QPainterPath path(box.topLeft() + QPointF(-over, 0.4));
    path.lineTo(box.topRight() + QPointF(over * 0.6, -0.3));
    path.moveTo(box.topRight() + QPointF(-0.2, -over * 0.6));
    path.lineTo(box.bottomRight() + QPointF(0.3, over));
    path.moveTo(box.bottomRight() + QPointF(over * 0.7, -0.3));
    path.lineTo(box.bottomLeft() + QPointF(-over * 0.5, 0.3));
    path.moveTo(box.bottomLeft() + QPointF(0.3, over * 0.6));
    path.lineTo(box.topLeft() + QPointF(-0.2, -over));
    return path;
}

QPainterPath loopPath(const Box& box)
{
    constexpr int pieces = 56;
    constexpr double start = -0.24; // turns; a little left of the top
    constexpr double turns = 1.09;
    const double square = box.width() > 1.6 * box.height() ? 0.55 : 0.92; // long loops have full ends
    QPainterPath path;
    for (int piece = 0; piece <= pieces; ++piece) {
        const double along = static_cast<double>(piece) / pieces;
        const double angle = 2 * std::numbers::pi * (start - turns * along);
        const double grown = 0.97 + 0.06 * along;
        const double x = std::copysign(std::pow(std::abs(std::cos(angle)), square), std::cos(angle));
        const double y = std::copysign(std::pow(std::abs(std::sin(angle)), square), std::sin(angle));
        const QPointF point =
            box.center() + QPointF(x * box.width() / 2, y * box.height() / 2 - (along - 0.5) * 1.6) * grown;
        if (piece == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    return path;
}

QPainterPath scribblePath(const Box& box, double pitch)
{
    QPainterPath path(box.bottomLeft());
    bool upwards = true;
    for (double x = box.left() + pitch; x <= box.right(); x += pitch) {
        path.lineTo(x, upwards ? box.top() : box.bottom());
        upwards = !upwards;
    }
    return path;
}

} // namespace ambrelle::chalk
