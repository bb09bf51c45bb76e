// SPDX-License-Identifier: MIT

#include "skins/bauhaus/BauhausPieces.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Pens.h"
#include "skins/bauhaus/BauhausStyle.h"

#include <algorithm>

namespace ambrelle::bauhaus {

using namespace Qt::StringLiterals;

namespace {

bool isPale(const QColor& colour)
{
    return contrast(colour, sheet) < 3;
}

QPen edge()
{
    return flatPen(faded(ink, 0.35), 1);
}

QPainterPath disc(double x, double y, double radius)
{
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return path;
}

QPainterPath rectangle(double x, double y, double width, double height)
{
    QPainterPath path;
    path.addRect(x, y, width, height);
    return path;
}

/// A bar that leans to the left as it falls.
QPainterPath slanted(double x, double y, double length)
{
    constexpr double width = 4.5;
    const double lean = length * 0.5;
    QPainterPath path;
    path.addPolygon(QPolygonF{{x, y}, {x + width, y}, {x + width - lean, y + length}, {x - lean, y + length}, {x, y}});
    return path;
}

/// A shape of a picture of 48 by 48 units.
struct Cutting {
    QPainterPath path;
    QColor colour;
};

/// Two discs and a bar on the level `base`.
Cutting cloudOn(double base)
{
    QPainterPath path = disc(14.5, base - 8, 8).united(disc(27, base - 11.5, 11.5));
    return {path.united(rectangle(14.5, base - 8, 28.5, 8)), ink};
}

QList<Cutting> rainUnder(double base, int count, double length)
{
    QList<Cutting> drops;
    for (int index = 0; index < count; ++index)
        drops.append({slanted(24 + (index - (count - 1) / 2.0) * 11 + length * 0.25 - 1, base + 3.5, length), blue});
    return drops;
}

QList<Cutting> snowUnder(double base)
{
    constexpr double side = 5;
    QList<Cutting> flakes;
    for (const QPointF place : {QPointF(11, 4), QPointF(21.5, 9), QPointF(32, 4)})
        flakes.append({rectangle(place.x(), base + place.y(), side, side), blue});
    return flakes;
}

QList<Cutting> fog()
{
    QList<Cutting> bars;
    for (const QRectF& bar : {QRectF(14, 10, 30, 5), QRectF(4, 19, 34, 5), QRectF(10, 28, 34, 5), QRectF(4, 37, 24, 5)})
        bars.append({rectangle(bar.x(), bar.y(), bar.width(), bar.height()), ink});
    return bars;
}

Cutting moon(double x, double y, double radius)
{
    return {disc(x, y, radius).subtracted(disc(x + radius * 0.5, y - radius * 0.3, radius * 0.84)), blue};
}

QList<Cutting> cuttings(Sky sky)
{
    constexpr double base = 30; // of a cloud with something below
    switch (sky) {
    case Sky::clear: return {{disc(24, 24, 17), yellow}};
    case Sky::clearNight: return {moon(24, 24, 17)};
    case Sky::partly: return {{disc(31, 17, 13), yellow}, cloudOn(42)};
    case Sky::partlyNight: return {moon(35, 14, 11), cloudOn(44)};
    case Sky::cloudy: return {cloudOn(36)};
    case Sky::fog: return fog();
    case Sky::drizzle: return QList<Cutting>{cloudOn(base)} + rainUnder(base, 2, 7);
    case Sky::rain: return QList<Cutting>{cloudOn(base)} + rainUnder(base, 3, 12);
    case Sky::snow: return QList<Cutting>{cloudOn(base)} + snowUnder(base);
    case Sky::thunder: return {cloudOn(base), {triangle(Box(16, base + 3, 17, 14), Pointing::down), red}};
    case Sky::unknown: return {{rectangle(14, 21.5, 20, 5), ink}};
    }
    Q_UNREACHABLE();
}

} // namespace

void flat(Canvas& canvas, const QPainterPath& shape, const QColor& colour)
{
    canvas.fill(shape, colour);
    if (isPale(colour))
        canvas.stroke(shape, edge());
}

void flat(Canvas& canvas, const Box& box, const QColor& colour)
{
    canvas.fill(box, colour);
    if (isPale(colour) && box.width() > 1)
        canvas.frame(box, edge());
}

QPainterPath triangle(const Box& box, Pointing where)
{
    const QPointF middle = box.center();
    QPolygonF corners;
    switch (where) {
    case Pointing::up: corners = {{middle.x(), box.top()}, box.bottomRight(), box.bottomLeft()}; break;
    case Pointing::right: corners = {{box.right(), middle.y()}, box.bottomLeft(), box.topLeft()}; break;
    case Pointing::down: corners = {{middle.x(), box.bottom()}, box.topLeft(), box.topRight()}; break;
    case Pointing::left: corners = {{box.left(), middle.y()}, box.topRight(), box.bottomRight()}; break;
    }
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

void bars(Canvas& canvas, const Box& box, const History& history, double top,
    const std::function<QColor(int index)>& colourOf, const Bars& bars)
{
    const QList<double> means = binned(history, bars.count);
    for (int index = 0; index < means.size(); ++index) {
        Box column = box.column(index, bars.count, 1);
        const double height = column.height() * bounded(means[index] / top);
        canvas.fill(bars.hanging ? column.cutTop(height) : column.cutBottom(height), colourOf(index));
    }
}

void skyPicture(Canvas& canvas, const Box& box, Sky sky)
{
    constexpr double units = 48;
    const Box square = box.square();
    QTransform place = QTransform::fromTranslate(square.x(), square.y());
    place.scale(square.width() / units, square.width() / units);
    for (const Cutting& cutting : cuttings(sky))
        canvas.fill(place.map(cutting.path), cutting.colour);
}

void clockDial(Canvas& canvas, const Box& box, const ClockReading& reading, const QColor& hand)
{
    constexpr double ring = 6;
    const double radius = box.square().width() / 2;
    canvas.stroke(disc(box.center().x(), box.center().y(), radius - ring / 2), flatPen(ink, ring));
    const ClockHands hands{.hour = {.length = radius * 0.52, .width = 7, .fill = hand},
        .minute = {.length = radius * 0.77, .width = 4, .fill = blue, .hub = 5, .hubFill = yellow}};
    hands.draw(canvas, box.center(), reading.hour24, reading.minute);
}

void playerKey(Canvas& canvas, const Box& box, const QString& symbol, double size)
{
    const Box place = box.centred(size, size);
    if (symbol == u"pause.fill"_s) {
        for (const int side : {0, 1})
            canvas.fill(place.column(side, 2, size / 4), ink);
        return;
    }
    if (symbol == u"play.fill"_s) {
        canvas.fill(triangle(place.moved(size * 0.08, 0), Pointing::right), ink);
        return;
    }
    Box rest = place;
    const bool back = symbol == u"backward.fill"_s;
    canvas.fill(back ? rest.cutLeft(size / 4) : rest.cutRight(size / 4), ink);
    canvas.fill(triangle(rest, back ? Pointing::left : Pointing::right), ink);
}

} // namespace ambrelle::bauhaus
