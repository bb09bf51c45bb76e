// SPDX-License-Identifier: MIT

#include "drawing/Hatch.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

/// Where a horizontal line meets the edges of a shape, from left to right, and which way each edge runs.
using Crossings = QList<std::pair<double, int>>;

Crossings crossingsAt(const QList<QPolygonF>& outlines, double y)
{
    Crossings crossings;
    for (const QPolygonF& outline : outlines) {
        for (qsizetype index = 0; index < outline.size(); ++index) {
            const QPointF from = outline[index];
            const QPointF to = outline[(index + 1) % outline.size()];
            if ((from.y() <= y) == (to.y() <= y))
                continue;
            const double x = from.x() + (to.x() - from.x()) * (y - from.y()) / (to.y() - from.y());
            crossings.append({x, from.y() <= y ? 1 : -1});
        }
    }
    std::ranges::sort(crossings);
    return crossings;
}

} // namespace

void hatch(Canvas& canvas, const QPainterPath& shape, double degrees, double pitch, const QPen& pen)
{
    constexpr int most = 2000;
    const QTransform level = QTransform().rotate(degrees); // lays the lines flat
    const QPainterPath flat = level.map(shape);
    const QRectF bounds = flat.boundingRect();
    if (pitch <= 0 || bounds.height() / pitch > most)
        return;
    const QList<QPolygonF> outlines = flat.toSubpathPolygons();
    QPainterPath lines;
    for (double y = std::ceil(bounds.top() / pitch) * pitch; y <= bounds.bottom(); y += pitch) {
        const Crossings crossings = crossingsAt(outlines, y);
        int turns = 0;
        for (qsizetype index = 0; index + 1 < crossings.size(); ++index) {
            turns += crossings[index].second;
            const bool inside = shape.fillRule() == Qt::WindingFill ? turns != 0 : index % 2 == 0;
            if (!inside)
                continue;
            const QPointF from(crossings[index].first, y);
            lines.moveTo(from);
            lines.lineTo(crossings[index + 1].first, y);
        }
    }
    if (canvas.manner() != StrokeManner::plain || canvas.finish() != Finish::smooth) {
        canvas.stroke(level.inverted().map(lines), pen);
        return;
    }
    // Filled instead of stroked: the toolkit draws slanting hairlines too faintly.
    const QTransform back = level.inverted();
    for (int index = 0; index + 1 < lines.elementCount(); index += 2) {
        const QPointF from = lines.elementAt(index);
        const double length = lines.elementAt(index + 1).x - from.x();
        QPainterPath bar;
        bar.addRect(QRectF(from.x(), from.y() - pen.widthF() / 2, length, pen.widthF()));
        canvas.fill(back.map(bar), pen.brush());
    }
}

void dottedLeader(Canvas& canvas, double from, double to, double y, const QBrush& brush, double size, double pitch)
{
    constexpr double round = 1.2; // the size from which a dot shows that it is round
    if (pitch <= 0)
        return;
    QPainterPath dots;
    for (double x = std::ceil((from + size / 2) / pitch) * pitch; x <= to - size / 2; x += pitch) {
        const QRectF dot(x - size / 2, y - size, size, size);
        if (size > round)
            dots.addEllipse(dot);
        else
            dots.addRect(dot);
    }
    canvas.fill(dots, brush);
}

QPainterPath wavyLine(QPointF from, QPointF to, double amplitude, double length)
{
    constexpr int pieces = 12; // of a swing
    const QPointF way = to - from;
    const double whole = std::hypot(way.x(), way.y());
    QPainterPath path(from);
    if (whole <= 0 || length <= 0)
        return path;
    const QPointF aside = QPointF(-way.y(), way.x()) / whole;
    // A whole number of half swings.
    const double swings = std::max(1.0, std::round(whole / length * 2)) / 2;
    const int count = static_cast<int>(std::ceil(swings * pieces));
    for (int piece = 1; piece <= count; ++piece) {
        const double along = static_cast<double>(piece) / count;
        path.lineTo(from + way * along - aside * (amplitude * std::sin(2 * std::numbers::pi * swings * along)));
    }
    return path;
}

} // namespace ambrelle
