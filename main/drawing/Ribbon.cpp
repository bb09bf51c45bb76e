// SPDX-License-Identifier: MIT

#include "drawing/Ribbon.h"

#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

QPointF sideways(QPointF way)
{
    return QPointF(-way.y(), way.x()) / std::max(1e-6, std::hypot(way.x(), way.y()));
}

/// Where the ribbon's side lies at each point, in half widths.
QPolygonF mitres(const QPolygonF& points)
{
    constexpr double sharpest = 2; // half widths that a corner may reach out
    const qsizetype count = points.size();
    const auto normal = [&](qsizetype from) { return sideways(points[from + 1] - points[from]); };
    QPolygonF sides(count);
    for (qsizetype index = 0; index < count; ++index) {
        const QPointF before = normal(std::max<qsizetype>(0, index - 1));
        const QPointF after = normal(std::min(count - 2, index));
        const QPointF sum = before + after;
        const double square = std::max(1e-6, QPointF::dotProduct(sum, sum));
        // Along the mean normal, longer the sharper the corner.
        QPointF out = sum * (2 / square);
        const double reach = std::hypot(out.x(), out.y());
        if (reach > sharpest)
            out *= sharpest / reach;
        sides[index] = out;
    }
    return sides;
}

/// The points of a half circle about `centre` from `from` to the opposite point, both left out.
void addCap(QPolygonF& outline, QPointF centre, QPointF from)
{
    constexpr int pieces = 6;
    const double radius = std::hypot(from.x(), from.y());
    const double start = std::atan2(from.y(), from.x());
    for (int piece = 1; piece < pieces; ++piece) {
        const double angle = start - std::numbers::pi * piece / pieces;
        outline.append(centre + radius * QPointF(std::cos(angle), std::sin(angle)));
    }
}

QPainterPath outlined(const QPolygonF& points, const std::function<double(qsizetype)>& halfWidth, bool roundEnds)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    const qsizetype count = points.size();
    if (count < 2)
        return path;
    const QPolygonF sides = mitres(points);
    QPolygonF outline;
    outline.reserve(2 * count + 12);
    for (qsizetype index = 0; index < count; ++index)
        outline.append(points[index] + sides[index] * halfWidth(index));
    if (roundEnds)
        addCap(outline, points.last(), sides.last() * halfWidth(count - 1));
    for (qsizetype index = count - 1; index >= 0; --index)
        outline.append(points[index] - sides[index] * halfWidth(index));
    if (roundEnds)
        addCap(outline, points.first(), -sides.first() * halfWidth(0));
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

} // namespace

QPainterPath ribbon(const QPolygonF& points, const std::function<double(double along)>& widthOf, bool roundEnds)
{
    QList<double> lengths{0};
    for (qsizetype index = 1; index < points.size(); ++index) {
        const QPointF way = points[index] - points[index - 1];
        lengths.append(lengths.last() + std::hypot(way.x(), way.y()));
    }
    const double whole = std::max(1e-6, lengths.last());
    return outlined(
        points, [&](qsizetype index) { return widthOf(lengths[index] / whole) / 2; }, roundEnds);
}

QPainterPath ribbon(const QPolygonF& points, double width, bool roundEnds)
{
    return outlined(
        points, [width](qsizetype) { return width / 2; }, roundEnds);
}

} // namespace ambrelle
