// SPDX-License-Identifier: MIT

#include "skins/abyss/AbyssPortholes.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Gauge.h"
#include "drawing/Gradients.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "drawing/RadarSweep.h"
#include "skins/abyss/AbyssPieces.h"

namespace ambrelle::abyss {

using namespace Qt::StringLiterals;

namespace {

constexpr double broadRing = 9; // with bolts
constexpr double narrowRing = 6;
constexpr int bolts = 8;

/// A spade hand that points upwards from (0, 0).
QPainterPath spade(double length, double width, double head)
{
    constexpr double tail = 7;
    const double neck = -length + head;
    QPainterPath hand(QPointF(-width, tail));
    hand.lineTo(-width * 0.6, neck + head * 0.12);
    hand.cubicTo(-head * 0.62, neck, -head * 0.3, neck - head * 0.5, 0, -length);
    hand.cubicTo(head * 0.3, neck - head * 0.5, head * 0.62, neck, width * 0.6, neck + head * 0.12);
    hand.lineTo(width, tail);
    hand.closeSubpath();
    return hand;
}

void enamelDial(Canvas& canvas, const SkinStyle& style, const Box& inside)
{
    static const QStringList hours{
        u"XII"_s, u"I"_s, u"II"_s, u"III"_s, u"IIII"_s, u"V"_s, u"VI"_s, u"VII"_s, u"VIII"_s, u"IX"_s, u"X"_s, u"XI"_s};
    const Gauge dial = Gauge::in(inside, 0, 360);
    const double r = dial.radius;
    canvas.disc(dial.centre, r,
        radial(dial.centre, r, dial.centre - QPointF(r, r) * 0.2,
            {{0, enamel.lighter(104)}, {0.7, enamel}, {1, enamel.darker(118)}}));
    const Gauge track{.centre = dial.centre, .radius = r - 4, .start = 0, .sweep = 360};
    const QPen thin(enamelInk, 0.6);
    canvas.stroke(track.arc(0, 1, track.radius), thin);
    canvas.stroke(track.arc(0, 1, track.radius - 4), thin);
    track.ticks(canvas, 60, 5, {4, flatPen(enamelInk, 2)}, {4, flatPen(enamelInk, 0.6)});
    const GroundScope ground(canvas, enamel);
    dial.numerals(canvas, hours, r - 20, style.caption().faced(style.number).sized(10.5).coloured(enamelInk));
}

/// The light of a sky, above and at the horizon.
std::pair<QColor, QColor> lightOf(Sky sky)
{
    switch (sky) {
    case Sky::clear: return {QColor(0x1F, 0x6F, 0x9C), QColor(0x7F, 0xC4, 0xCB)};
    case Sky::clearNight: return {QColor(0x06, 0x10, 0x26), QColor(0x1E, 0x3E, 0x62)};
    case Sky::partly: return {QColor(0x2F, 0x73, 0x98), QColor(0x8D, 0xBF, 0xC6)};
    case Sky::partlyNight: return {QColor(0x0A, 0x16, 0x2C), QColor(0x2A, 0x46, 0x60)};
    case Sky::cloudy: return {QColor(0x4A, 0x66, 0x74), QColor(0x86, 0xA0, 0xA6)};
    case Sky::fog: return {QColor(0x5E, 0x74, 0x7A), QColor(0x93, 0xA5, 0xA5)};
    case Sky::drizzle: return {QColor(0x3A, 0x56, 0x66), QColor(0x70, 0x8C, 0x96)};
    case Sky::rain: return {QColor(0x25, 0x3C, 0x4C), QColor(0x56, 0x72, 0x80)};
    case Sky::snow: return {QColor(0x50, 0x6C, 0x80), QColor(0xA2, 0xB8, 0xC0)};
    case Sky::thunder: return {QColor(0x16, 0x1B, 0x30), QColor(0x4A, 0x4D, 0x6C)};
    case Sky::unknown: return {deep, deep.lighter(150)};
    }
    return {};
}

void sea(Canvas& canvas, const Box& inside)
{
    constexpr double horizon = 0.74;
    constexpr double wave = 26; // length
    for (int row = 0; row < 3; ++row) {
        const double y = inside.top() + inside.height() * (horizon + row * 0.085);
        QPainterPath water = wavyLine({inside.left() - row * wave / 3, y}, {inside.right() + wave, y}, 1.6, wave);
        canvas.fill(areaUnder(water, inside.bottom()), blended(QColor(0x1B, 0x5A, 0x66), well, row * 0.4));
    }
}

} // namespace

void chronometer(Canvas& canvas, const SkinStyle& style, const Box& box, int hour, int minute)
{
    const Box square = box.square();
    const Box inside = square.inset(narrowRing);
    canvas.still(u"chronometer"_s, square.inset(-2), [&](Canvas& layer) {
        porthole(layer, square, narrowRing, 0);
        enamelDial(layer, style, inside);
    });
    const double r = inside.width() / 2;
    const QPointF centre = inside.center();
    const auto hand = [&](const QPainterPath& shape, double turns) {
        const QPainterPath placed = QTransform::fromTranslate(centre.x(), centre.y()).rotate(turns * 360).map(shape);
        canvas.fill(placed.translated(1, 1.4), faded(Qt::black, 0.28));
        canvas.fill(placed, blued);
    };
    hand(spade(r * 0.56, 1.7, r * 0.17), (hour % 12 + minute / 60.0) / 12);
    hand(spade(r * 0.88, 1.3, r * 0.11), minute / 60.0);
    rivet(canvas, centre, 3);
}

void sonar(Canvas& canvas, const Box& box, const NetworkReading& reading)
{
    constexpr int echoes = 20;
    const Box square = box.square();
    const Box inside = square.inset(broadRing);
    const Gauge disc = Gauge::in(inside, 0, 360);
    canvas.still(u"sonar"_s, square.inset(-2), [&](Canvas& layer) {
        porthole(layer, square, broadRing, bolts);
        layer.disc(
            disc.centre, disc.radius, radial(disc.centre, disc.radius, {{0, QColor(0x0E, 0x4A, 0x48)}, {1, well}}));
        for (const double range : {0.25, 0.5, 0.75})
            layer.stroke(disc.arc(0, 1, disc.radius * range), QPen(faded(phosphor, 0.35), 0.8));
        for (const double side : {0.0, 0.25})
            layer.line(disc.at(side, disc.radius), disc.at(side + 0.5, disc.radius), QPen(faded(phosphor, 0.2), 0.8));
        disc.ticks(layer, 36, 3, {6, flatPen(faded(phosphor, 0.9), 1.2)}, {3, flatPen(faded(phosphor, 0.5), 0.8)});
        glass(layer, inside);
    });
    const QList<double> traffic = binned(reading.downHistory, echoes);
    for (int index = 0; index < echoes; ++index) {
        const double share = traffic[index] / reading.peak;
        if (share < 0.02)
            continue;
        const QPointF place = disc.at((index + 0.5) / echoes, disc.radius * (0.22 + 0.6 * std::min(share, 1.0)));
        canvas.disc(place, 3.6, faded(phosphor, 0.22));
        canvas.disc(place, 1 + 1.4 * std::min(share, 1.0), phosphor);
    }
    RadarSweep{.colour = phosphor, .period = 5}.draw(canvas, inside);
}

Box seaView(Canvas& canvas, const Box& box, Sky sky)
{
    const Box square = box.square();
    const Box inside = square.inset(broadRing);
    canvas.still(
        u"sea"_s, square.inset(-2),
        [&](Canvas& layer) {
            porthole(layer, square, broadRing, bolts);
            const auto [above, horizon] = lightOf(sky);
            layer.within(arc(inside, 0, 1), [&] {
                layer.fill(inside, downwards(inside, {{0, above}, {0.74, horizon}}));
                sea(layer, inside);
            });
            glass(layer, inside);
        },
        sky);
    return inside;
}

Box hydrophone(Canvas& canvas, const Box& box, bool listening)
{
    constexpr double pitch = 6;
    constexpr int ripples = 4;
    const Box square = box.square().inset(ripples * pitch);
    canvas.still(
        u"hydrophone"_s, box.square().inset(-1),
        [&](Canvas& layer) {
            for (int ring = 1; listening && ring <= ripples; ++ring)
                layer.stroke(arc(square.inset(3 - ring * pitch), 0, 1),
                    QPen(faded(phosphor, 0.62 - 0.12 * ring), 1.8 - 0.2 * ring));
            porthole(layer, square, broadRing, bolts);
        },
        listening);
    return square.inset(broadRing);
}

} // namespace ambrelle::abyss
