// SPDX-License-Identifier: MIT

#include "skins/abyss/AbyssGauges.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/abyss/AbyssPieces.h"

namespace ambrelle::abyss {

using namespace Qt::StringLiterals;

namespace {

constexpr double frames = 12; // a second
constexpr double trembling = 1; // degrees
constexpr double numeralSize = 9; // pixels

// Of a gauge, in parts of its radius.
constexpr double windowTop = 0.53; // below the centre
constexpr double windowBottom = 1.03;
constexpr double windowHalf = 0.74;

constexpr double bezel = 4.5;
constexpr double longTick = 6;
constexpr double shortTick = 3.5;

constexpr double fitting = 9; // height of a tube's ends
constexpr double meniscus = 1.6; // by which water climbs the glass
constexpr double heaving = 0.6; // to either side
constexpr double waves = 3; // half the height of what moves

} // namespace

void BrassGauge::scale(Canvas& canvas, const Gauge& gauge) const
{
    const double r = gauge.radius;
    canvas.stroke(gauge.arc(0, 1, r - 0.5), flatPen(style.faint.lighter(130), 1));
    if (red < 1)
        gauge.zone(canvas, red, 1, shortTick, danger);
    gauge.ticks(canvas, steps, every, {longTick, flatPen(style.ink, 1.4)}, {shortTick, flatPen(style.soft, 0.8)});
    const TextStyle number = style.caption().faced(style.number).sized(numeralSize).coloured(style.ink);
    QStringList texts;
    for (int index = 0; index < numerals; ++index)
        texts.append(QString::number(100 * index / (numerals - 1)));
    if (!texts.isEmpty())
        gauge.numerals(canvas, texts, r - longTick - 9, number);
}

void BrassGauge::point(Canvas& canvas, const Gauge& gauge, double fraction) const
{
    constexpr double hub = 4.2;
    constexpr double weight = 11;
    const QColor shadow = faded(Qt::black, 0.5);
    const QPointF centre = gauge.centre;
    const Needle counterweight{
        .length = -weight + 4, .tail = weight, .width = 6, .round = true, .fill = needle, .shadow = shadow};
    const Needle hand{.length = gauge.radius - shortTick,
        .tail = weight,
        .width = 3.4,
        .pointed = true,
        .fill = needle,
        .hub = hub,
        .hubFill = radial(centre, hub, centre - QPointF(1.4, 1.6), {{0, rivetBrass}, {1, brassDark}}),
        .shadow = shadow};
    const Needle slot{.length = hub * 0.6, .tail = hub * 0.6, .width = 1, .fill = stamped};
    for (const Needle& part : {counterweight, hand, slot})
        gauge.needle(canvas, fraction, part, {.degrees = trembling, .seed = seed, .fps = frames});
}

Box BrassGauge::draw(Canvas& canvas, const Box& box, double fraction) const
{
    const double r = std::min(box.width() / 2, box.height() / (1 + windowBottom));
    const QPointF centre(box.center().x(), box.top() + r);
    const Gauge gauge{.centre = centre, .radius = r - bezel - (lit ? 4 : 2), .start = -125, .sweep = 250};
    const Box figure(
        centre.x() - r * windowHalf, centre.y() + r * windowTop, 2 * r * windowHalf, r * (windowBottom - windowTop));
    const auto still = [&](Canvas& layer) {
        const Box inside = porthole(layer, squareAbout(centre, r), bezel, 0);
        layer.disc(centre, inside.width() / 2, radial(centre, inside.width() / 2, {{0, deep.lighter(125)}, {1, well}}));
        const GroundScope ground(layer, deep.lighter(125));
        scale(layer, gauge);
        window(layer, figure.inset(1.6));
    };
    canvas.still(u"gauge"_s, box.inset(-3), still, steps, numerals, lit);
    if (const double reached = bounded(fraction); lit && reached > 0)
        canvas.stroke(gauge.arc(0, reached, gauge.radius + 2), flatPen(phosphor, 2));
    point(canvas, gauge, fraction);
    return figure.inset(1.6);
}

Box DepthTube::bore() const
{
    return place.inset(3, fitting);
}

double DepthTube::surface(double fraction) const
{
    const Box room = bore();
    return room.bottom() - (room.height() - meniscus - heaving) * bounded(fraction);
}

QBrush DepthTube::body() const
{
    return across(bore(),
        {{0, water.darker(200)}, {0.25, water}, {0.36, blended(water, Qt::white, 0.4)}, {0.5, water},
            {1, water.darker(220)}});
}

/// The glass and its fittings.
void DepthTube::tube(Canvas& canvas) const
{
    const Box room = bore();
    canvas.fill(
        room, across(room, {{0, faded(Qt::white, 0.3)}, {0.25, well}, {0.8, well}, {1, faded(Qt::white, 0.2)}}));
    for (const Box& end : {Box(place).cutTop(fitting), Box(place).cutBottom(fitting)}) {
        canvas.fill(end, across(end, {{0, brassDark}, {0.3, rivetBrass}, {0.6, strip}, {1, brassDark.darker(140)}}), 2);
        canvas.fill(end.centred(end.width(), 1), faded(stamped, 0.6));
    }
    const QColor mark = brassLight;
    for (int step = 0; step <= 10; ++step) {
        const double y = surface(step / 10.0);
        canvas.line(
            {place.right() + 3, y}, {place.right() + (step % 5 == 0 ? marks : marks * 0.65), y}, flatPen(mark, 1));
    }
}

void DepthTube::draw(Canvas& canvas, double fraction) const
{
    const Box room = bore();
    canvas.still(u"tube"_s, place.adjusted(-1, -1, marks + 1, 1), [&](Canvas& layer) { tube(layer); });
    if (bounded(fraction) <= 0)
        return;
    const double level = surface(fraction);
    const double foot = std::min(level + waves, room.bottom());
    canvas.fill(Box(room.left(), foot, room.width(), room.bottom() - foot), body());
    if (bubbling) {
        SeededRandom random{11};
        for (double y = room.bottom() - 5; y > foot + 3; y -= 7) {
            const QPointF centre(room.center().x() + random.in(-5, 5), y);
            canvas.stroke(arc(squareAbout(centre, random.in(0.9, 2)), 0, 1), QPen(faded(Qt::white, 0.85), 0.8));
        }
    }
    const Box moved(room.left(), level - waves, room.width(), foot - level + waves);
    canvas.moving(moved, Motion::steady(frames), [&](Canvas& moving, double t) {
        const double y = level + heaving * (Wave::wobble(t, 1) - Wave::wobble(0, 1)) / 2;
        QPainterPath upper(QPointF(room.left(), y - meniscus));
        upper.quadTo(QPointF(room.center().x(), y + meniscus), QPointF(room.right(), y - meniscus));
        upper.lineTo(room.right(), foot);
        upper.lineTo(room.left(), foot);
        moving.fill(upper, body());
        moving.fill(Box(room.left() + 3, y - 0.2, room.width() - 6, 1), faded(Qt::white, 0.6), 0.5);
    });
}

} // namespace ambrelle::abyss
