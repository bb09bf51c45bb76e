// SPDX-License-Identifier: MIT

#include "drawing/Plates.h"

#include "drawing/Colours.h"
#include "drawing/DeviceImage.h"

#include <QLinearGradient>

#include <cmath>

namespace ambrelle {

namespace {

/// Drawn apart, so that what lies under the plate itself can be taken out again: translucent plates would darken.
/// `ring(brush, grow)` draws the plate's outline grown on all sides.
void shadowOf(Canvas& canvas, const QRectF& bounds, const QColor& colour, int steps, double offset,
    const std::function<void(QPainter& brush, double grow)>& ring)
{
    canvas.paint([&](QPainter& painter) {
        const double reach = steps / 2.0 + std::abs(offset) + 1;
        const QRect pixels =
            devicePixels(painter, bounds.adjusted(-reach, -reach, reach, reach)) & paintedPixels(painter);
        if (pixels.isEmpty())
            return;
        const QImage shadow = deviceImage(painter, pixels, [&](QPainter& brush) {
            brush.setPen(Qt::NoPen);
            brush.setBrush(colour);
            brush.translate(0, offset);
            for (int step = steps; step > 0; --step)
                ring(brush, step - steps / 2.0);
            brush.translate(0, -offset);
            brush.setCompositionMode(QPainter::CompositionMode_DestinationOut);
            brush.setBrush(Qt::black);
            ring(brush, 0);
        });
        paintDeviceImage(painter, pixels.topLeft(), shadow);
    });
}

} // namespace

void dropShadow(
    Canvas& canvas, const Box& box, double radius, const QColor& colour, double alpha, int steps, double offset)
{
    shadowOf(canvas, box, faded(colour, alpha), steps, offset,
        [&](QPainter& brush, double grow) { brush.drawRoundedRect(box.inset(-grow), radius + grow, radius + grow); });
}

void dropShadow(Canvas& canvas, const QPainterPath& shape, const QColor& colour, double alpha, int steps, double offset)
{
    shadowOf(canvas, shape.boundingRect(), faded(colour, alpha), steps, offset, [&](QPainter& brush, double grow) {
        if (grow == 0) {
            brush.drawPath(shape);
            return;
        }
        QPainterPathStroker edge;
        edge.setWidth(2 * std::abs(grow));
        edge.setJoinStyle(Qt::RoundJoin);
        const QPainterPath border = edge.createStroke(shape);
        brush.drawPath(grow > 0 ? shape.united(border) : shape.subtracted(border));
    });
}

QPainterPath steppedPath(const QRectF& box, double step, int count)
{
    const double reach = step * count;
    const std::pair<QPointF, QPointF> corners[] = {
        {box.topLeft(), {1, 1}}, {box.topRight(), {-1, 1}}, {box.bottomRight(), {-1, -1}}, {box.bottomLeft(), {1, -1}}};
    QPolygonF outline;
    for (const auto& [corner, inwards] : corners) {
        // Clockwise from the upper left corner every other corner is reached along an upright edge.
        const bool fromSide = inwards.x() == inwards.y();
        for (int place = 0; place <= count; ++place) {
            const double along = fromSide ? place * step : reach - place * step;
            const double down = reach - along;
            outline << corner + QPointF(along * inwards.x(), down * inwards.y());
            if (place < count) {
                const double next = fromSide ? along + step : down + step;
                outline << corner
                        + (fromSide ? QPointF(next * inwards.x(), down * inwards.y())
                                    : QPointF(along * inwards.x(), next * inwards.y()));
            }
        }
    }
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

void sheen(Canvas& canvas, const Box& box, double radius, const QColor& colour, double from, double to, double share)
{
    QLinearGradient light(box.topLeft(), box.bottomLeft());
    light.setColorAt(0, faded(colour, from));
    light.setColorAt(share, faded(colour, to));
    light.setColorAt(1, faded(colour, to));
    canvas.fill(box, light, radius);
}

void litEdge(Canvas& canvas, const Box& box, double radius, double width, double from, double middle, double to)
{
    QLinearGradient edge(box.topLeft(), box.bottomRight());
    edge.setColorAt(0, faded(Qt::white, from));
    edge.setColorAt(0.5, faded(Qt::white, middle));
    edge.setColorAt(1, faded(Qt::white, to));
    canvas.frame(box, QPen(edge, width), radius);
}

} // namespace ambrelle
