// SPDX-License-Identifier: MIT

#include "skins/cockpit/CockpitPieces.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"

namespace ambrelle::cockpit {

using namespace Qt::StringLiterals;

namespace {

constexpr double screwPlace = 6.6; // from both edges
constexpr double screwRadius = 2.6;

constexpr double bandWidth = 3;
constexpr double longTick = 7;
constexpr double shortTick = 4;
constexpr double longLine = 1.4; // width of their lines
constexpr double shortLine = 0.8;
constexpr double numberSize = 9; // pixels
constexpr double numbers = 20; // width of a column of them
constexpr double numberDistance = 16.5; // of their middles, from the scale inwards
constexpr double hub = 4.5; // radius
constexpr double trembling = 0.8; // degrees
constexpr double cutOutTop = 0.62; // of the window below the centre, in parts of the radius
constexpr double cutOutBottom = 1.1;
constexpr double cutOutWidth = 1.18;

} // namespace

void screw(Canvas& canvas, QPointF centre, double radius, double degrees)
{
    canvas.disc(centre, radius + 0.5, faded(Qt::black, 0.55));
    canvas.disc(centre, radius, downwards(squareAbout(centre, radius), {{0, rim.lighter(165)}, {1, rim.darker(120)}}));
    const Gauge slot{.centre = centre, .radius = radius, .start = degrees, .sweep = 360};
    for (const double side : {0.0, 0.25})
        canvas.line(slot.at(side, radius * 0.72), slot.at(side + 0.5, radius * 0.72), flatPen(well, 0.8));
}

void bezel(Canvas& canvas, const Box& bounds, double corner)
{
    canvas.fill(bounds, downwards(bounds, {{0, bezelLight}, {1, bezelDark}}), corner);
    canvas.frame(bounds,
        QPen(downwards(bounds, {{0, faded(Qt::white, 0.3)}, {0.3, faded(Qt::white, 0.06)}, {1, faded(Qt::black, 0.5)}}),
            1),
        corner);
    const Box face = bounds.inset(bezelWidth);
    canvas.frame(face.inset(-1), QPen(downwards(face, {{0, faded(Qt::black, 0.5)}, {1, faded(Qt::white, 0.16)}}), 1),
        faceRadius + 1);
    canvas.fill(face, panel, faceRadius);
    canvas.frame(
        face, QPen(downwards(face, {{0, faded(Qt::black, 0.75)}, {1, faded(Qt::black, 0.25)}}), 1), faceRadius);
    const Box screws = bounds.inset(screwPlace);
    screw(canvas, screws.topLeft(), screwRadius, 22); // no two of them stand alike
    screw(canvas, screws.topRight(), screwRadius, 61);
    screw(canvas, screws.bottomLeft(), screwRadius, 5);
    screw(canvas, screws.bottomRight(), screwRadius, 38);
}

void window(Canvas& canvas, const Box& box, double radius)
{
    canvas.fill(box, well, radius);
    canvas.frame(box, QPen(downwards(box, {{0, rim.darker(190)}, {1, rim}}), 1), radius);
}

void roundRim(Canvas& canvas, const Gauge& disc)
{
    const Box square = squareAbout(disc.centre, disc.radius);
    canvas.stroke(
        disc.arc(0, 1, disc.radius), QPen(downwards(square, {{0, rim.darker(170)}, {1, rim.lighter(115)}}), 1.8));
}

QColor annunciator(Canvas& canvas, const Box& box, const std::optional<QColor>& light)
{
    constexpr double radius = 2;
    const QColor ground = light ? over(faded(*light, 0.16), well) : well;
    canvas.fill(box, ground, radius);
    canvas.frame(box, QPen(light ? faded(*light, 0.75) : rim, 1), radius);
    return ground;
}

void lamp(
    Canvas& canvas, const SkinStyle& style, const Box& box, const QString& letters, const std::optional<QColor>& light)
{
    const GroundScope ground(canvas, annunciator(canvas, box, light));
    canvas.text(box, letters, style.header().sized(10).coloured(light.value_or(unlit)).aligned(Align::centre));
}

void tape(Canvas& canvas, const Box& box, double fraction, const QColor& colour)
{
    constexpr double index = 1.6;
    const Box slot = box.centred(box.width(), std::min(5.0, box.height()));
    canvas.fill(slot, well, 1);
    canvas.frame(slot.inset(-0.5), QPen(rim, 1), 1.5);
    const double way = slot.width() * bounded(fraction);
    canvas.fill(Box(slot).cutLeft(way), colour, 1);
    const double x = std::clamp(slot.left() + way, slot.left() + index / 2, slot.right() - index / 2);
    canvas.fill(Box(x - index / 2, slot.top() - 2, index, slot.height() + 4), Qt::white, index / 2);
}

void knob(Canvas& canvas, const Box& box)
{
    constexpr int ridges = 24;
    const Gauge edge{.centre = box.center(), .radius = box.square().width() / 2, .start = 0, .sweep = 360};
    const double r = edge.radius;
    canvas.disc(edge.centre + QPointF(0, 1.5), r, faded(Qt::black, 0.5));
    canvas.disc(edge.centre, r, downwards(box.square(), {{0, bezelLight.lighter(125)}, {1, bezelDark.darker(125)}}));
    edge.ticks(canvas, ridges, [&](int) { return Tick{r * 0.2, flatPen(well, 1.2)}; });
    const QPointF light = edge.centre - QPointF(r * 0.25, r * 0.4);
    canvas.disc(edge.centre, r * 0.74, faded(Qt::black, 0.45));
    canvas.disc(
        edge.centre, r * 0.7, radial(edge.centre, r * 0.8, light, {{0, bezelLight.lighter(150)}, {1, bezelDark}}));
    canvas.line(edge.at(0.09, r * 0.3), edge.at(0.09, r * 0.62), roundPen(Qt::white, 1.8));
}

void RoundGauge::scale(Canvas& canvas, const Gauge& gauge) const
{
    const double r = gauge.radius;
    canvas.disc(gauge.centre, r - bandWidth,
        radial(gauge.centre, r, {{0, faded(well, 0)}, {0.55, faded(well, 0.35)}, {1, faded(well, 0.9)}}));
    gauge.zone(canvas, 0, 1, bandWidth, style.faint);
    for (const Band& band : bands)
        gauge.zone(canvas, band.from, band.to, bandWidth, band.colour);
    gauge.ticks(canvas, scaled == Scale::small ? 20 : 50, 5, {longTick, flatPen(style.ink, longLine)},
        {shortTick, flatPen(style.ink, shortLine)});
    if (scaled != Scale::percent)
        return;
    const TextStyle number = style.caption().sized(numberSize).coloured(style.ink);
    for (const double place : {0.0, 0.2, 0.4, 0.6, 0.8, 1.0})
        gauge.numeral(canvas, place, QString::number(Units::percent(place)), r - numberDistance, number);
}

Box RoundGauge::draw(Canvas& canvas, const Box& box, double fraction) const
{
    const double r = std::min(box.width() / 2, box.height() / (1 + cutOutBottom));
    const Gauge gauge{.centre = {box.center().x(), box.top() + r}, .radius = r};
    const QPointF centre = gauge.centre;
    const Box cutOut = Box(centre.x() - r, centre.y() + r * cutOutTop, 2 * r, r * (cutOutBottom - cutOutTop))
                           .inset(r * (1 - cutOutWidth / 2), 0);
    QList<QColor> colours;
    for (const Band& band : bands)
        colours.append(band.colour);
    const auto still = [&](Canvas& layer) {
        scale(layer, gauge);
        if (scaled != Scale::small)
            window(layer, cutOut);
    };
    canvas.still(u"gauge"_s, box, still, colours);
    const Needle pointer{.length = r - shortTick,
        .tail = 9,
        .width = 3,
        .pointed = true,
        .fill = needle,
        .hub = hub,
        .hubFill = radial(centre, hub, centre - QPointF(1.5, 2), {{0, bezelLight.lighter(170)}, {1, bezelDark}}),
        .shadow = faded(Qt::black, 0.5)};
    gauge.needle(canvas, fraction, pointer, {.degrees = trembling, .seed = seed, .fps = 12});
    return cutOut;
}

void UprightScale::marks(Canvas& canvas, const Box& box, const Box& line) const
{
    constexpr int steps = 20;
    for (const Band& band : bands)
        canvas.fill(span(line, band.from, band.to), band.colour);
    const TextStyle number = style.caption().sized(numberSize).coloured(style.ink).aligned(Align::right).asAxis();
    for (int step = 0; step <= steps; ++step) {
        const double place = static_cast<double>(step) / steps;
        const double y = line.bottom() - line.height() * place;
        const bool isLong = step % 5 == 0;
        canvas.line({line.left() - (isLong ? longTick : shortTick), y}, {line.left(), y},
            flatPen(style.ink, isLong ? longLine : shortLine));
        if (step % 10 == 0)
            canvas.text(Box(box.left(), y - numberSize / 2, numbers, numberSize),
                QString::number(Units::percent(place)), number);
    }
}

void UprightScale::draw(Canvas& canvas, const Box& box, double fraction) const
{
    constexpr double triangle = 8;
    const Box line(box.left() + numbers + longTick + 2, box.top() + 5, bandWidth + 1, box.height() - 10);
    canvas.still(u"scale"_s, box, [&](Canvas& layer) { marks(layer, box, line); });
    const QPointF tip(line.right() + 1, line.bottom() - line.height() * bounded(fraction));
    QPainterPath mark(tip);
    mark.lineTo(tip + QPointF(triangle, -triangle * 0.6));
    mark.lineTo(tip + QPointF(triangle, triangle * 0.6));
    mark.closeSubpath();
    canvas.fill(mark, pointer);
}

} // namespace ambrelle::cockpit
