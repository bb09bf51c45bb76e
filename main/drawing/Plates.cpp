#include "drawing/Plates.h"

#include "drawing/Colours.h"

#include <QLinearGradient>

namespace ambrelle {

void dropShadow(
    Canvas& canvas, const Box& box, double radius, const QColor& colour, double alpha, int steps, double offset)
{
    QPainterPath inside;
    inside.addRoundedRect(box, radius, radius);
    for (int step = steps; step > 0; --step) {
        const double grow = step - steps / 2.0;
        QPainterPath outline;
        outline.addRoundedRect(box.moved(0, offset).inset(-grow), radius + grow, radius + grow);
        // Nothing under the plate itself: translucent plates would darken.
        canvas.fill(outline.subtracted(inside), faded(colour, alpha));
    }
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
