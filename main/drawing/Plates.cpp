// SPDX-License-Identifier: MIT

#include "drawing/Plates.h"

#include "drawing/Colours.h"
#include "drawing/DeviceImage.h"

#include <QLinearGradient>

#include <cmath>

namespace ambrelle {

void dropShadow(
    Canvas& canvas, const Box& box, double radius, const QColor& colour, double alpha, int steps, double offset)
{
    canvas.paint([&](QPainter& painter) {
        // Drawn apart, so that what lies under the plate itself can be taken out again: translucent plates would
        // darken.
        const double reach = steps / 2.0 + std::abs(offset) + 1;
        const QRect pixels = devicePixels(painter, box.inset(-reach));
        const QImage shadow = deviceImage(painter, pixels, [&](QPainter& brush) {
            brush.setPen(Qt::NoPen);
            brush.setBrush(faded(colour, alpha));
            for (int step = steps; step > 0; --step) {
                const double grow = step - steps / 2.0;
                brush.drawRoundedRect(box.moved(0, offset).inset(-grow), radius + grow, radius + grow);
            }
            brush.setCompositionMode(QPainter::CompositionMode_DestinationOut);
            brush.setBrush(Qt::black);
            brush.drawRoundedRect(box, radius, radius);
        });
        paintDeviceImage(painter, pixels.topLeft(), shadow);
    });
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
