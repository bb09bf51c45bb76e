// SPDX-License-Identifier: MIT

#include "skins/hifi/Cabinet.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Gradients.h"
#include "drawing/Plates.h"

#include <random>

namespace ambrelle::hifi {

namespace {

constexpr double frameInset = 5; // of the champagne line
constexpr double frameWidth = 1.6;

QBrush metal(const Box& box)
{
    return linear(box.topLeft(), box.bottomRight(),
        {{0, champagne.lighter(118)}, {0.35, champagne}, {0.5, champagne.lighter(112)}, {0.7, champagne.darker(135)},
            {1, champagne}});
}

void walnut(Canvas& canvas, const Box& face, double corner, unsigned seed)
{
    canvas.fill(face, QColor(Qt::black), corner);
    canvas.fill(face, downwards(face, {{0, walnutLight}, {1, walnutDark}}), corner);
    std::mt19937 random(seed);
    const auto draw = [&random] { return static_cast<double>(random() >> 8) / static_cast<double>(1 << 24); };
    canvas.paint([&](QPainter& painter) {
        QPainterPath outline;
        outline.addRoundedRect(face, corner, corner);
        painter.setClipPath(outline);
        for (double y = face.top(); y < face.bottom(); y += 0.8 + draw() * 1.6) {
            const double sway = (draw() - 0.5) * 5;
            QPainterPath grain({face.left(), y});
            grain.cubicTo(face.left() + face.width() * 0.3, y + sway, face.left() + face.width() * 0.7, y - sway,
                face.right(), y + sway * 0.4);
            const QColor tone = draw() < 0.7 ? QColor(Qt::black) : walnutLight.lighter(150);
            painter.strokePath(grain, QPen(faded(tone, 0.08 + draw() * 0.16), 0.4 + draw() * 0.7));
        }
    });
    canvas.frame(face, QPen(faded(Qt::black, 0.5), 0.8), corner);
    litEdge(canvas, face.inset(0.6), corner, 0.7, 0.4, 0.06, 0.1);
}

void smokedGlass(Canvas& canvas, const Box& pane, double corner)
{
    canvas.fill(pane, glass, corner);
    canvas.paint([&](QPainter& painter) {
        QPainterPath outline;
        outline.addRoundedRect(pane, corner, corner);
        painter.setClipPath(outline);
        const QBrush light = linear(pane.topLeft(), pane.topLeft() + QPointF(pane.height(), pane.height()),
            {{0, faded(Qt::white, 0.1)}, {1, faded(Qt::white, 0.015)}});
        // The reflection ends on a slant, as light from a window does.
        const double reach = pane.height() * 0.9;
        painter.fillPath(
            [&] {
                QPainterPath slant(pane.topLeft());
                slant.lineTo(pane.left() + reach + pane.height() * 0.35, pane.top());
                slant.lineTo(pane.left() + reach - pane.height() * 0.55, pane.bottom());
                slant.lineTo(pane.bottomLeft());
                slant.closeSubpath();
                return slant;
            }(),
            light);
        painter.fillRect(QRectF(pane.x(), pane.y(), pane.width(), 7), wash(Box(pane).cutTop(7), Qt::black, 0.5, 0));
    });
}

} // namespace

void cabinet(Canvas& canvas, const Box& face, double corner, unsigned seed)
{
    dropShadow(canvas, face, corner, Qt::black, 0.03, 7, 2.5);
    walnut(canvas, face, corner, seed);
    const Box frame = face.inset(frameInset);
    const double frameCorner = corner - 2;
    canvas.fill(frame.inset(-1), faded(Qt::black, 0.45), frameCorner + 1);
    canvas.fill(frame, metal(frame), frameCorner);
    smokedGlass(canvas, frame.inset(frameWidth), frameCorner - frameWidth);
}

void screw(Canvas& canvas, QPointF centre, double radius, double degrees)
{
    canvas.disc(centre + QPointF(0, 0.6), radius + 0.5, faded(Qt::black, 0.55));
    const QPointF light = centre - QPointF(radius, radius) * 0.4;
    canvas.disc(
        centre, radius, radial(centre, radius * 1.6, light, {{0, champagne.lighter(130)}, {1, champagne.darker(170)}}));
    const double turns = 0.25 + degrees / 360;
    canvas.line(pointOn(centre, -radius * 0.8, turns), pointOn(centre, radius * 0.8, turns), QPen(print, 0.9));
}

void lamp(Canvas& canvas, QPointF centre, double radius, const QColor& colour, bool lit)
{
    if (lit)
        canvas.disc(centre, radius * 2.8, halo(centre, radius * 2.8, colour, 0.55));
    canvas.disc(centre, radius + 0.9, champagne.darker(170));
    canvas.disc(centre, radius + 0.3, tubeDark);
    const auto dark = [&](double share) { return blended(colour, tubeDark, share); };
    const QGradientStops jewel = lit
        ? QGradientStops{{0, blended(colour, Qt::white, 0.7)}, {0.55, colour}, {1, colour.darker(140)}}
        : QGradientStops{{0, dark(0.65)}, {0.55, dark(0.78)}, {1, dark(0.85)}};
    canvas.disc(centre, radius, radial(centre, radius, centre - QPointF(radius, radius) * 0.3, jewel));
}

void window(Canvas& canvas, const Box& box, const QColor& light, double corner)
{
    canvas.fill(box.inset(-1), wash(box, champagne, 0.12, 0.45), corner + 1);
    canvas.fill(box, tubeDark, corner);
    canvas.fill(box, wash(box, light, 0.02, 0.16), corner);
    canvas.fill(Box(box).cutTop(5), wash(Box(box).cutTop(5), Qt::black, 0.6, 0), corner / 2);
}

void sheet(Canvas& canvas, const Box& box, double corner)
{
    canvas.fill(box.inset(-1), wash(box, champagne, 0.2, 0.5), corner + 1);
    const QPointF lamp(box.center().x(), box.top() + box.height() * 0.35);
    canvas.fill(
        box, radial(lamp, box.width() * 0.75, {{0, paper.lighter(105)}, {0.6, paper}, {1, paperShade}}), corner);
    canvas.fill(Box(box).cutTop(4), wash(Box(box).cutTop(4), print, 0.35, 0), corner);
}

} // namespace ambrelle::hifi
