// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/Ribbon.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

QPolygonF samplePoints(const Box& box, const QList<double>& samples, double top)
{
    QPolygonF points;
    const qsizetype last = std::max<qsizetype>(1, samples.size() - 1);
    for (qsizetype index = 0; index < samples.size(); ++index) {
        const double height = top > 0 ? bounded(samples[index] / top) : 0;
        points.append({box.left() + box.width() * static_cast<double>(index) / static_cast<double>(last),
            box.bottom() - box.height() * height});
    }
    return points;
}

QPainterPath straightLine(const QPolygonF& points)
{
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

QPainterPath smoothLine(const QPolygonF& points)
{
    // Short straight pieces: stroking them costs a fraction of stroking curves, and at this length nobody sees a
    // corner.
    constexpr double piece = 3; // points
    QPolygonF line;
    for (qsizetype index = 0; index + 1 < points.size(); ++index) {
        const QPointF from = points[index];
        const QPointF way = points[index + 1] - from;
        const int pieces = std::max(1, static_cast<int>(std::lround(way.x() / piece)));
        for (int step = 0; step < pieces; ++step) {
            // Level at both samples (a cubic Hermite blend), so that the line never leaves their range.
            const double t = static_cast<double>(step) / pieces;
            line.append({from.x() + way.x() * t, from.y() + way.y() * t * t * (3 - 2 * t)});
        }
    }
    if (!points.isEmpty())
        line.append(points.last());
    return straightLine(line);
}

void graphLine(Canvas& canvas, const QPainterPath& line, const QBrush& brush, double width)
{
    if (canvas.manner() != StrokeManner::plain) {
        canvas.stroke(line, roundPen(brush, width));
        return;
    }
    QPolygonF points;
    for (int index = 0; index < line.elementCount(); ++index)
        points.append(line.elementAt(index));
    canvas.fill(ribbon(points, width), brush);
}

QPainterPath areaUnder(const QPainterPath& line, double y)
{
    QPainterPath area = line;
    if (line.isEmpty())
        return area;
    area.lineTo(line.currentPosition().x(), y);
    area.lineTo(line.elementAt(0).x, y);
    area.closeSubpath();
    return area;
}

QList<double> binned(const QList<double>& samples, int count)
{
    QList<double> bars;
    const qsizetype size = samples.size();
    for (int bar = 0; bar < count; ++bar) {
        const qsizetype begin = size * bar / count;
        const qsizetype end = std::max(begin + 1, size * (bar + 1) / count);
        double sum = 0;
        for (qsizetype index = begin; index < end && index < size; ++index)
            sum += samples[index];
        bars.append(sum / static_cast<double>(end - begin));
    }
    return bars;
}

void glow(Canvas& canvas, const QPainterPath& path, const Glow& style)
{
    for (int stroke = style.strokes; stroke > 0; --stroke)
        canvas.stroke(path, roundPen(faded(style.colour, style.alpha), style.width + stroke * style.spread));
    canvas.stroke(path, roundPen(style.core.isValid() ? style.core : style.colour, style.width));
}

void blocks(Canvas& canvas, const Box& box, int count, double gap, const std::function<QBrush(int)>& brushOf,
    const BlockShape& shape)
{
    if (shape.slant == 0 || shape.upwards) {
        for (int index = 0; index < count; ++index) {
            const Box block = shape.upwards ? box.row(count - 1 - index, count, gap) : box.column(index, count, gap);
            canvas.fill(block, brushOf(index), shape.radius);
        }
        return;
    }
    const double lean = std::tan(shape.slant * std::numbers::pi / 180) * box.height();
    const Box feet = box.adjusted(std::max(0.0, -lean), 0, -std::max(0.0, lean), 0);
    for (int index = 0; index < count; ++index) {
        const Box block = feet.column(index, count, gap);
        QPainterPath path(block.topLeft() + QPointF(lean, 0));
        path.lineTo(block.topRight() + QPointF(lean, 0));
        path.lineTo(block.bottomRight());
        path.lineTo(block.bottomLeft());
        path.closeSubpath();
        canvas.fill(path, brushOf(index));
    }
}

void capsule(Canvas& canvas, const Box& box, double fraction, const QBrush& track, const QBrush& fill)
{
    const double radius = box.height() / 2;
    canvas.fill(box, track, radius);
    const double width = box.width() * bounded(fraction);
    if (width > 0)
        canvas.fill(Box(box.x(), box.y(), std::max(width, box.height()), box.height()), fill, radius);
}

QBrush wash(const Box& box, const QColor& colour, double from, double to)
{
    return downwards(box, {{0, faded(colour, from)}, {1, faded(colour, to)}});
}

} // namespace ambrelle
