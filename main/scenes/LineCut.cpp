// SPDX-License-Identifier: MIT

#include "scenes/LineCut.h"

#include "scenes/SceneLayout.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace ambrelle {

namespace {

constexpr double fineness = 8; // corners of a polygon that stands for a curve, in parts of a point

QList<QPolygonF> polygonsOf(const QPainterPath& line)
{
    QList<QPolygonF> polygons = line.toSubpathPolygons(QTransform::fromScale(fineness, fineness));
    for (QPolygonF& polygon : polygons)
        polygon = QTransform::fromScale(1 / fineness, 1 / fineness).map(polygon);
    return polygons;
}

double lengthOf(const QPolygonF& line)
{
    double length = 0;
    for (qsizetype index = 1; index < line.size(); ++index) {
        const QPointF step = line[index] - line[index - 1];
        length += std::hypot(step.x(), step.y());
    }
    return length;
}

/// A part of a straight way, 0 at its start and 1 at its end.
struct Stretch {
    double from = 0;
    double to = 1;
};

/// The part of the way that lies inside the rectangle (Liang and Barsky); none where it is less than a point.
std::optional<Stretch> inside(QPointF start, QPointF end, const QRectF& rect)
{
    Stretch part;
    const QPointF way = end - start;
    const auto clip = [&part](double step, double room) { // room: how far the start is inside that edge
        if (step == 0)
            return room > 0;
        if (step > 0)
            part.to = std::min(part.to, room / step);
        else
            part.from = std::max(part.from, room / step);
        return part.from < part.to;
    };
    const bool meets = clip(-way.x(), start.x() - rect.left()) && clip(way.x(), rect.right() - start.x())
        && clip(-way.y(), start.y() - rect.top()) && clip(way.y(), rect.bottom() - start.y());
    return meets ? std::optional(part) : std::nullopt;
}

/// What is left of a straight way.
QList<Stretch> remaining(QPointF start, QPointF end, const QRectF& room, const QList<QRectF>& holes)
{
    const std::optional<Stretch> whole = inside(start, end, room);
    if (!whole)
        return {};
    QList<Stretch> gaps;
    for (const QRectF& hole : holes) {
        if (const auto gap = inside(start, end, hole))
            gaps.append(*gap);
    }
    std::ranges::sort(gaps, {}, &Stretch::from);
    QList<Stretch> rest;
    double reached = whole->from;
    for (const Stretch& gap : std::as_const(gaps)) {
        if (gap.from > reached)
            rest.append({reached, std::min(gap.from, whole->to)});
        reached = std::max(reached, gap.to);
        if (reached >= whole->to)
            return rest;
    }
    rest.append({reached, whole->to});
    return rest;
}

} // namespace

QPainterPath cutLine(const QPainterPath& line, const QRectF& room, const QList<QRectF>& holes, double least)
{
    const QRectF bounds = line.boundingRect();
    const bool isMet = std::ranges::any_of(holes, [&](const QRectF& hole) {
        return hole.intersects(bounds.adjusted(-1, -1, 1, 1)); // a straight line has no area
    });
    if (room.contains(bounds.topLeft()) && room.contains(bounds.bottomRight()) && !isMet)
        return line;
    QPainterPath cut;
    const auto add = [&](const QPolygonF& stretch, bool isWhole) {
        if (stretch.size() > 1 && (isWhole || lengthOf(stretch) >= least))
            cut.addPolygon(stretch);
    };
    for (const QPolygonF& polygon : polygonsOf(line)) {
        QPolygonF stretch;
        bool isWhole = true;
        for (qsizetype index = 1; index < polygon.size(); ++index) {
            const QPointF start = polygon[index - 1];
            const QPointF way = polygon[index] - start;
            double reached = 0;
            for (const Stretch& part : remaining(start, polygon[index], room, holes)) {
                if (part.from > reached || stretch.isEmpty()) {
                    isWhole = isWhole && stretch.isEmpty() && index == 1 && part.from <= 0;
                    add(stretch, false);
                    stretch = {start + way * part.from};
                }
                stretch.append(start + way * part.to);
                reached = part.to;
            }
            if (reached < 1) {
                isWhole = false;
                add(stretch, false);
                stretch.clear();
            }
        }
        add(stretch, isWhole);
    }
    return cut;
}

bool comesNear(const QPainterPath& line, const QRectF& area, double reach)
{
    const QRectF grown = area.adjusted(-reach, -reach, reach, reach);
    if (!grown.intersects(line.controlPointRect().adjusted(-1, -1, 1, 1)))
        return false;
    for (const QPolygonF& polygon : polygonsOf(line)) {
        for (qsizetype index = 1; index < polygon.size(); ++index) {
            if (inside(polygon[index - 1], polygon[index], grown))
                return true;
        }
    }
    return false;
}

QPainterPath bentLine(const QPolygonF& points, double radius)
{
    QPainterPath path;
    if (points.isEmpty())
        return path;
    path.moveTo(points.first());
    for (qsizetype index = 1; index + 1 < points.size(); ++index) {
        const QPointF corner = points[index];
        const auto towards = [&](QPointF other) {
            const QPointF way = other - corner;
            const double length = std::hypot(way.x(), way.y());
            return length > 0 ? corner + way * (std::min(radius, length / 2) / length) : corner;
        };
        path.lineTo(towards(points[index - 1]));
        path.quadTo(corner, towards(points[index + 1]));
    }
    path.lineTo(points.last());
    return path;
}

} // namespace ambrelle
