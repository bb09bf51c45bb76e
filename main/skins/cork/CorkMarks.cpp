// SPDX-License-Identifier: MIT

#include "skins/cork/CorkMarks.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "faces/Pictogram.h"

namespace ambrelle::cork {

namespace {

const QColor sunCrayon(0xF2, 0x9A, 0x12);
const QColor moonCrayon(0xF6, 0xD0, 0x4D);
const QColor cloudCrayon(0x9F, 0xB4, 0xC6);
const QColor waterCrayon(0x2B, 0x6F, 0xB8);

} // namespace

QPainterPath drawnRound(QPointF centre, double radius, double turns)
{
    constexpr double step = 0.02; // turns
    constexpr double start = -0.07;
    constexpr double outwards = 0.045; // of the radius on the whole way
    QPainterPath path;
    for (double turned = 0; turned <= turns; turned += step) {
        const double uneven = 0.014 * std::sin(turned * 13 + radius) - outwards * (1 - turned / turns);
        const QPointF point = pointOn(centre, radius * (1 + uneven), start + turned);
        if (turned == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    return path;
}

QPainterPath scribbledRing(QPointF centre, double inner, double outer, double fraction)
{
    constexpr double pitch = 2.5; // points along the middle of the ring
    constexpr double uneven = 0.9;
    const double around = std::numbers::pi * (inner + outer);
    const int strokes = std::max(1, static_cast<int>(std::round(around * fraction / pitch)));
    SeededRandom random{5};
    QPainterPath path(pointOn(centre, inner, 0));
    for (int stroke = 1; stroke <= strokes; ++stroke) {
        const double away = random.in(-uneven, uneven);
        const double place = (stroke - 0.4) / strokes * fraction;
        path.lineTo(pointOn(centre, stroke % 2 == 1 ? outer - uneven + away : inner + uneven + away, place));
    }
    return path;
}

void highlight(Canvas& canvas, const Box& box, const QColor& colour, unsigned seed)
{
    if (box.width() < 1)
        return;
    SeededRandom random{seed + 3};
    const double lean = std::min(box.width() / 3, random.in(1.5, 3));
    const double rise = random.in(-0.6, 0.6);
    QPainterPath path(box.topLeft() + QPointF(lean / 2, -rise));
    path.lineTo(box.topRight() + QPointF(0, rise));
    path.lineTo(box.bottomRight() + QPointF(-lean, rise));
    path.lineTo(box.bottomLeft() + QPointF(-lean / 4, -rise));
    path.closeSubpath();
    canvas.fill(path, colour);
}

QPainterPath arrowHead(QPointF tip, QPointF back, double size)
{
    constexpr double spread = 32; // degrees
    QLineF side(tip, back);
    side.setLength(size);
    const double angle = side.angle();
    side.setAngle(angle + spread);
    QPainterPath path(side.p2());
    path.lineTo(tip);
    side.setAngle(angle - spread);
    path.lineTo(side.p2());
    return path;
}

void drawnArrow(Canvas& canvas, const Box& box, bool upwards, const QColor& colour, double width)
{
    const double x = box.center().x();
    const QPointF tip(x, upwards ? box.top() : box.bottom());
    const QPointF back(x + 0.6, upwards ? box.bottom() : box.top());
    QPainterPath path(back);
    path.lineTo(tip);
    path.addPath(arrowHead(tip, back, box.height() * 0.48));
    canvas.stroke(path, roundPen(colour, width));
}

void twiceUnderlined(Canvas& canvas, QPointF from, double length, const QColor& colour)
{
    constexpr double apart = 3.4;
    QPainterPath path(from + QPointF(-1, 0.5));
    path.quadTo(from + QPointF(length * 0.5, -1), from + QPointF(length + 3, -0.6));
    path.moveTo(from + QPointF(4, apart + 0.6));
    path.quadTo(from + QPointF(length * 0.5, apart - 0.8), from + QPointF(length - 5, apart));
    canvas.stroke(path, roundPen(colour, 1.7));
}

void crayonSky(Canvas& canvas, const Box& square, Sky sky, const SkinStyle& style)
{
    const Pictogram& picture = Pictogram::of(sky);
    const double scale = square.width() / 48;
    const QTransform place(scale, 0, 0, scale, square.x(), square.y());
    const double line = std::clamp(square.width() * 0.036, 1.1, 1.8);
    const double pitch = std::max(1.9, square.width() * 0.062);
    const auto coloured = [&](const QPainterPath& path, const QColor& colour, double degrees) {
        if (path.isEmpty())
            return;
        const QPainterPath shape = place.map(path);
        canvas.fill(shape, faded(colour, 0.3));
        hatch(canvas, shape.translated(line * 0.6, line * 0.5), degrees, pitch, roundPen(colour, pitch * 0.62));
        canvas.stroke(shape, roundPen(style.ink, line));
    };
    const auto lines = [&](const QPainterPath& path, const QColor& colour) {
        if (!path.isEmpty())
            canvas.stroke(place.map(path), roundPen(colour, line * 1.3));
    };
    lines(picture.rays, sunCrayon);
    coloured(picture.disc, picture.night ? moonCrayon : sunCrayon, 38);
    coloured(picture.cloud, cloudCrayon, 52);
    lines(picture.mist, style.soft);
    lines(picture.water, waterCrayon);
    coloured(picture.bolt, sunCrayon, 20);
}

} // namespace ambrelle::cork
