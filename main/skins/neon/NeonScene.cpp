// SPDX-License-Identifier: MIT

#include "skins/neon/NeonPieces.h"
#include "skins/neon/NeonStyle.h"
#include "skins/SceneRecipes.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double innerTube = 10; // from the hero, points
constexpr double outerTube = 18;
constexpr double heroCorner = 14;
constexpr double tubeWidth = 2.4;
constexpr double tubeLight = 6; // of a tube's light beyond its glass, whatever the scale
// The sign's inner tube flickers less often than plates do, and more coarsely: what is painted for it is longer.
constexpr int signSeed = 41;
constexpr double signPeriod = 18; // seconds
constexpr double signRate = 14; // frames a second
constexpr double bend = 12;
constexpr double besideItems = 14; // of a tube that runs past items
constexpr double leastGutter = 8; // for a tube to run through
constexpr double fromEdges = 8; // of the screen

constexpr int stripes = 5;
constexpr double stripePitch = 8;
constexpr double thickestStripe = 5;
constexpr double sunWidth = 0.46; // in parts of the hero's

QRectF around(const QRectF& frame, double by)
{
    return frame.adjusted(-by, -by, by, by);
}

double reachOf(const SceneOrnament& on)
{
    return on.scaled(tubeWidth) / 2 + tubeLight;
}

QPainterPath roomFor(const SceneOrnament& on, const QPainterPath& tube)
{
    return on.outside(tube, on.scaled(tubeWidth), std::max(fromEdges, reachOf(on)));
}

void addTube(SceneOrnament& on, const QString& name, const QPainterPath& wanted, const QColor& colour)
{
    const double reach = reachOf(on);
    const QPainterPath path = roomFor(on, wanted);
    if (path.isEmpty())
        return;
    on.addAlong(
        name, path, reach,
        [](Canvas& canvas, const QPainterPath& glass, const QColor& gas, double thickness) {
            neon::tube(canvas, glass, gas, thickness);
        },
        path, colour, on.scaled(tubeWidth));
}

/// A tube around the hero that flickers now and then. It lies along four sides, and what they enclose stands still.
void addSign(SceneOrnament& on, double distance, const QColor& colour)
{
    const QRectF box = around(on.hero().frame, on.scaled(distance));
    const double corner = on.scaled(heroCorner + distance);
    const QPainterPath path = roomFor(on, roundedPath(box, corner));
    const double reach = reachOf(on);
    const double inwards = reach + corner * 0.3; // an arc leaves both of its sides by so much
    const QRectF outer = around(path.boundingRect(), reach);
    Box rest = around(box, reach);
    QList<QRectF> sides{rest.cutTop(reach + inwards), rest.cutBottom(reach + inwards), rest.cutLeft(reach + inwards),
        rest.cutRight(reach + inwards)};
    for (QRectF& side : sides)
        side &= outer;
    sides.removeIf([](const QRectF& side) { return side.isEmpty(); });
    if (path.isEmpty())
        return;
    on.add(
        u"sign"_s, sides, Motion::bursts(signPeriod, signSeed, neon::flickerLength, signRate),
        [](Canvas& canvas, double time, const QPainterPath& glass, const QColor& gas, double thickness) {
            neon::tube(canvas, glass, gas, thickness, Wave::flicker(time, signSeed, signPeriod));
        },
        path, colour, on.scaled(tubeWidth));
}

/// Where a tube runs below the hero: through the middle of the gutter to what stands there, if there is one.
double levelBelow(const SceneOrnament& on)
{
    const QRectF hero = on.hero().frame;
    double next = hero.bottom() + 2 * on.scaled(outerTube + tubeWidth);
    for (const SceneItem& item : on.satellites()) {
        if (item.frame.top() >= hero.bottom())
            next = std::min(next, item.frame.top());
    }
    return (hero.bottom() + next) / 2;
}

/// From the hero's lower corner out below the satellites of that side, and up or down past them to where they end.
void sideTube(SceneOrnament& on, bool isLeft, const QColor& colour)
{
    const QRectF hero = on.hero().frame;
    QRectF beside;
    for (const SceneItem& item : on.satellites()) {
        const double x = item.frame.center().x();
        if (isLeft ? x < hero.left() : x > hero.right())
            beside |= item.frame;
    }
    if (beside.isEmpty())
        return;
    const double y = levelBelow(on);
    const double out = on.scaled(besideItems);
    const double start = isLeft ? hero.left() - on.scaled(outerTube) : hero.right() + on.scaled(outerTube);
    const double end = isLeft ? beside.left() - out : beside.right() + out;
    if (!around(on.screen(), -std::max(fromEdges, reachOf(on))).contains(QPointF(end, y)))
        return; // it would end in the open
    const double far = std::abs(beside.bottom() - y) > std::abs(beside.top() - y) ? beside.bottom() : beside.top();
    addTube(on, u"side-tube"_s, bentLine({{start, y}, {end, y}, {end, far}}, on.scaled(bend)), colour);
}

/// What is left of the sun under the sign: bars that get thinner and fainter.
void sunset(SceneOrnament& on, const SkinStyle& style)
{
    const QRectF hero = on.hero().frame;
    const double pitch = on.scaled(stripePitch);
    const double top = hero.bottom() + on.scaled(outerTube + stripePitch);
    for (int index = 0; index < stripes; ++index) {
        const double part = static_cast<double>(index) / stripes;
        const double half = hero.width() * sunWidth / 2 * std::sqrt(1 - part * part);
        const double y = top + pitch * index;
        const QColor colour = faded(blended(style.accent3, style.accent, part), 0.85 - 0.5 * part);
        const QPen pen(colour, on.scaled(thickestStripe) * (1 - 0.7 * part), Qt::SolidLine, Qt::FlatCap);
        const double x = hero.center().x();
        if (on.isFree({x - half, y - pitch / 2, 2 * half, pitch}))
            on.line(u"sunset"_s, {x - half, y}, {x + half, y}, pen);
    }
}

} // namespace

/// A sign over a street: the tubes around it, and those that lead to its neighbours.
Scene neonScene(SceneOrnament on)
{
    const SkinStyle style = neon::makeStyle(on.accent());
    addSign(on, innerTube, style.accent);
    const double outer = on.scaled(outerTube);
    addTube(on, u"sign"_s, roundedPath(around(on.hero().frame, outer), on.scaled(heroCorner) + outer), style.accent2);
    sideTube(on, true, style.accent);
    sideTube(on, false, style.accent2);
    sunset(on, style);
    return on.scene();
}

} // namespace ambrelle
