// SPDX-License-Identifier: MIT

#include "skins/hifi/Cassette.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "faces/FaceKit.h"
#include "skins/hifi/Cabinet.h"

#include <cmath>

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;

namespace {

const QColor shellLight(0x4A, 0x40, 0x37);
const QColor shellDark(0x26, 0x20, 0x1B);
const QColor tape(0x3A, 0x22, 0x14);

constexpr double secondsPerTurn = 3;
constexpr double hubRadius = 9;
constexpr double leastPack = 12; // radius of an empty reel's tape, points
constexpr double mostPack = 21;
constexpr int cogs = 6;
constexpr int barSteps = 12;

void shell(Canvas& canvas, const Box& box)
{
    canvas.fill(box.moved(0, 1.5), faded(Qt::black, 0.5), 7);
    canvas.fill(box, downwards(box, {{0, shellLight}, {1, shellDark}}), 7);
    canvas.frame(box, QPen(faded(champagne, 0.35), 0.8), 7);
    for (const double x : {box.left() + 6, box.right() - 6})
        for (const double y : {box.top() + 6, box.bottom() - 6})
            screw(canvas, {x, y}, 2, x + y);
    // The raised foot where the heads reach in.
    QPainterPath foot({box.center().x() - 56, box.bottom()});
    foot.lineTo(box.center().x() - 50, box.bottom() - 11);
    foot.lineTo(box.center().x() + 50, box.bottom() - 11);
    foot.lineTo(box.center().x() + 56, box.bottom());
    canvas.fill(foot, faded(Qt::black, 0.28));
    canvas.stroke(foot, QPen(faded(champagne, 0.22), 0.8));
}

void label(Canvas& canvas, const SkinStyle& style, const Box& box, const NowPlayingReading& reading)
{
    const GroundScope ground(canvas, paperShade);
    Box text = box.inset(8, 3);
    const TextStyle title = inked(style.header().sized(13)).faced(style.title.tracked(0));
    trackTexts(canvas, text, reading, title, inked(style.caption()));
}

/// The teeth of a hub, turned by `turns`.
void hub(Canvas& canvas, QPointF centre, double turns)
{
    canvas.disc(centre, hubRadius, pale);
    canvas.disc(centre, hubRadius - 2.4, tubeDark);
    QPainterPath teeth;
    for (int cog = 0; cog < cogs; ++cog) {
        const double place = turns + static_cast<double>(cog) / cogs;
        teeth.moveTo(pointOn(centre, hubRadius - 1.5, place));
        teeth.lineTo(pointOn(centre, hubRadius - 5.4, place));
    }
    canvas.stroke(teeth, QPen(pale, 2, Qt::SolidLine, Qt::FlatCap));
}

/// The radius of wound tape, in steps of half a point: its area grows evenly with `share`.
double packRadius(double share)
{
    const double area = std::lerp(leastPack * leastPack, mostPack * mostPack, std::clamp(share, 0.0, 1.0));
    return std::round(std::sqrt(area) * 2) / 2;
}

/// Tape wound about a hub.
void pack(Canvas& canvas, QPointF centre, double radius)
{
    canvas.disc(centre, radius, tape);
    QPainterPath rings;
    for (double r = hubRadius + 2; r < radius; r += 2.2)
        rings.addEllipse(centre, r, r);
    canvas.stroke(rings, QPen(faded(Qt::white, 0.07), 0.6));
    QPainterPath rim;
    rim.addEllipse(centre, radius - 0.4, radius - 0.4);
    canvas.stroke(rim, QPen(faded(champagne, 0.4), 0.8));
}

void reels(Canvas& canvas, const SkinStyle& style, const Box& box, const NowPlayingReading& reading)
{
    canvas.still(u"tape"_s, box.inset(-1), [&](Canvas& layer) { window(layer, box, style.accent, 8); });
    const double apart = box.width() * 0.25;
    const QPointF left = box.center() - QPointF(apart, 0);
    const QPointF right = box.center() + QPointF(apart, 0);
    const double leftRadius = packRadius(1 - reading.progress);
    const double rightRadius = packRadius(reading.progress);
    canvas.still(u"packs %1 %2"_s.arg(leftRadius).arg(rightRadius), box, [&](Canvas& layer) {
        pack(layer, left, leftRadius);
        pack(layer, right, rightRadius);
    });
    for (const QPointF& centre : {left, right}) {
        if (!reading.playing) {
            hub(canvas, centre, 0);
            continue;
        }
        canvas.moving(squareAbout(centre, hubRadius + 1), Motion::steady(15),
            [&](Canvas& moving, double t) { hub(moving, centre, -std::fmod(t, secondsPerTurn) / secondsPerTurn); });
    }
}

void levelBar(Canvas& canvas, const Box& box, double level)
{
    const int lit = litOf(level, barSteps);
    const auto light = [&](int step) {
        const QColor colour = step >= barSteps - 2 ? pointerRed : pale;
        return step < lit ? colour : faded(colour, 0.14);
    };
    blocks(canvas, box, barSteps, 2, light, {.radius = 1, .upwards = true});
}

} // namespace

void cassette(Canvas& canvas, const SkinStyle& style, const Box& box, const NowPlayingReading& reading)
{
    Box inside = box.inset(12, 8);
    const Box paperLabel = inside.cutTop(38);
    canvas.still(u"cassette"_s, box.inset(-2), [&](Canvas& layer) {
        shell(layer, box);
        sheet(layer, paperLabel);
        layer.fill(Box(paperLabel).cutBottom(3), pointerRed);
    });
    label(canvas, style, paperLabel, reading);
    inside.cutTop(5);
    reels(canvas, style, inside.inset(20, 0), reading);
}

void levelBars(Canvas& canvas, const Box& box, const NowPlayingReading& reading)
{
    const auto both = [&](Canvas& bars, double t) {
        for (int side = 0; side < 2; ++side) {
            const double level = reading.playing ? 0.68 + 0.2 * Wave::wobble(t * 2.4, side + 1) : 0;
            levelBar(bars, box.column(side, 2, 4), level);
        }
    };
    if (reading.playing)
        canvas.moving(box, Motion::steady(12), both);
    else
        both(canvas, 0);
}

} // namespace ambrelle::hifi
