// SPDX-License-Identifier: MIT

#include "skins/hifi/Cabinet.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Plates.h"

#include <QConicalGradient>
#include <QLinearGradient>
#include <QRadialGradient>

#include <cmath>
#include <numbers>
#include <random>

namespace ambrelle::hifi {

namespace {

constexpr double frameInset = 5; // of the champagne line
constexpr double frameWidth = 1.6;

QBrush metal(const Box& box)
{
    QLinearGradient gradient(box.topLeft(), box.bottomRight());
    gradient.setColorAt(0, champagne.lighter(118));
    gradient.setColorAt(0.35, champagne);
    gradient.setColorAt(0.5, champagne.lighter(112));
    gradient.setColorAt(0.7, champagne.darker(135));
    gradient.setColorAt(1, champagne);
    return gradient;
}

void walnut(Canvas& canvas, const Box& face, double corner, unsigned seed)
{
    canvas.fill(face, wash(face, Qt::black, 1, 1), corner);
    QLinearGradient wood(face.topLeft(), face.bottomLeft());
    wood.setColorAt(0, walnutLight);
    wood.setColorAt(1, walnutDark);
    canvas.fill(face, wood, corner);
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
        QLinearGradient light(pane.topLeft(), pane.topLeft() + QPointF(pane.height(), pane.height()));
        light.setColorAt(0, faded(Qt::white, 0.1));
        light.setColorAt(1, faded(Qt::white, 0.015));
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
    QRadialGradient head(centre, radius * 1.6, centre - QPointF(radius, radius) * 0.4);
    head.setColorAt(0, champagne.lighter(130));
    head.setColorAt(1, champagne.darker(170));
    canvas.disc(centre, radius, head);
    const double angle = degrees * std::numbers::pi / 180;
    const QPointF way = QPointF(std::cos(angle), std::sin(angle)) * radius * 0.8;
    canvas.line(centre - way, centre + way, QPen(print, 0.9));
}

void lamp(Canvas& canvas, QPointF centre, double radius, const QColor& colour, bool lit)
{
    if (lit) {
        QRadialGradient halo(centre, radius * 2.8);
        halo.setColorAt(0, faded(colour, 0.55));
        halo.setColorAt(1, faded(colour, 0));
        canvas.disc(centre, radius * 2.8, halo);
    }
    canvas.disc(centre, radius + 0.9, champagne.darker(170));
    canvas.disc(centre, radius + 0.3, tubeDark);
    QRadialGradient jewel(centre, radius, centre - QPointF(radius, radius) * 0.3);
    jewel.setColorAt(0, lit ? blended(colour, Qt::white, 0.7) : blended(colour, tubeDark, 0.65));
    jewel.setColorAt(0.55, lit ? colour : blended(colour, tubeDark, 0.78));
    jewel.setColorAt(1, lit ? colour.darker(140) : blended(colour, tubeDark, 0.85));
    canvas.disc(centre, radius, jewel);
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
    QRadialGradient tone(QPointF(box.center().x(), box.top() + box.height() * 0.35), box.width() * 0.75);
    tone.setColorAt(0, paper.lighter(105));
    tone.setColorAt(0.6, paper);
    tone.setColorAt(1, paperShade);
    canvas.fill(box, tone, corner);
    canvas.fill(Box(box).cutTop(4), wash(Box(box).cutTop(4), print, 0.35, 0), corner);
}

} // namespace ambrelle::hifi
