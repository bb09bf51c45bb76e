// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/night/NightPieces.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int motes = 90; // of all ways together, at most
constexpr double moteRoom = 1.1; // of the way, for each; points, as all measures here
constexpr int tries = 4; // for each
constexpr double scatter = 14; // to either side of the way
constexpr double tension = 1.0 / 6; // of the curve at its points (Catmull and Rom)

constexpr double flourishLine = 0.8;
constexpr double flourishInk = 0.6;
constexpr double flourishAir = 5; // between it and the items beside it
constexpr double narrowest = 16;
constexpr double widest = 54;
constexpr double flourishHeight = 0.62; // in parts of the hero's

/// A grain of champagne light.
struct Mote {
    QPointF at;
    double radius;
    double ink;

    bool operator==(const Mote&) const = default;
};

/// From one item to the next on a curve through all.
QPainterPath wayFrom(const QList<SceneItem>& stops, qsizetype index)
{
    const auto at = [&](qsizetype stop) {
        return stops[std::clamp<qsizetype>(stop, 0, stops.size() - 1)].frame.center();
    };
    QPainterPath way(at(index));
    way.cubicTo(at(index) + (at(index + 1) - at(index - 1)) * tension,
        at(index + 1) - (at(index + 2) - at(index)) * tension, at(index + 1));
    return way;
}

/// About the way, as far as it is free.
QList<Mote> motesAlong(const SceneOrnament& on, const QPainterPath& way, int most, SeededRandom random)
{
    QList<Mote> grains;
    const double room = way.length();
    const int count = std::min(most, static_cast<int>(room / on.scaled(moteRoom)));
    for (int draw = 0; draw < tries * count && grains.size() < count; ++draw) {
        const double along = random.in(0, 1);
        const double across = on.scaled(scatter) * random.in(-1, 1) * random.in(0.2, 1); // denser in the middle
        const double radius = on.scaled(random.in(0.5, 1.6));
        const double ink = random.in(0.15, 0.6);
        const double angle = way.angleAtPercent(along) * std::numbers::pi / 180;
        const QPointF place = way.pointAtPercent(along) + QPointF(std::sin(angle), std::cos(angle)) * across;
        const double air = radius + 1;
        if (on.isFree({place.x() - air, place.y() - air, 2 * air, 2 * air}))
            grains.append({place, radius, ink});
    }
    return grains;
}

void trail(SceneOrnament& on, const NightLook& look)
{
    const QList<SceneItem> stops = on.walk();
    const auto ways = static_cast<int>(stops.size()) - 1;
    for (int index = 0; index < ways; ++index) {
        const SeededRandom random{seedOf(u"velvet") + static_cast<std::uint64_t>(index)};
        const QPainterPath way = on.outside(wayFrom(stops, index), 1, 2);
        const QList<Mote> grains = motesAlong(on, way, std::max(1, motes / ways), random);
        QList<QRectF> places;
        for (const Mote& mote : grains) {
            const double reach = mote.radius + 1;
            places.append({mote.at.x() - reach, mote.at.y() - reach, 2 * reach, 2 * reach});
        }
        if (grains.isEmpty())
            continue;
        on.add(
            u"trail"_s, places,
            [](Canvas& canvas, const QList<Mote>& dust, const QColor& colour) {
                for (const Mote& mote : dust)
                    canvas.disc(mote.at, mote.radius, faded(colour, mote.ink));
            },
            grains, look.accent);
    }
}

/// How wide the space beside the hero is on that side, over the height of a flourish.
double roomBeside(const SceneOrnament& on, bool isLeft)
{
    const QRectF hero = on.hero().frame;
    const double half = hero.height() * flourishHeight / 2;
    double room = isLeft ? hero.left() : on.screen().right() - hero.right();
    for (const SceneItem& item : on.satellites()) {
        const bool isOver =
            item.frame.bottom() > hero.center().y() - half && item.frame.top() < hero.center().y() + half;
        const double gap = isLeft ? hero.left() - item.frame.right() : item.frame.left() - hero.right();
        const bool isBeyond = isLeft ? item.frame.left() > hero.right() : item.frame.right() < hero.left();
        if (isOver && !isBeyond)
            room = std::min(room, gap);
    }
    return room;
}

/// A brace of two scrolls, a lozenge at its point, around a crescent; `foot` is where its middle is next to the hero,
/// `out` how far it reaches and to which side, `half` how far upwards and downwards.
void flourish(SceneOrnament& on, const NightLook& look, QPointF foot, double out, double half)
{
    const auto at = [&](double x, double y) { return foot + QPointF(x * out, y * half); };
    const QPen pen = roundPen(faded(look.accent, flourishInk), on.scaled(flourishLine));
    for (const double side : {-1.0, 1.0}) {
        QPainterPath scroll(at(0.98, 0));
        scroll.quadTo(at(0.45, side * 0.04), at(0.5, side * 0.45));
        scroll.quadTo(at(0.55, side * 0.98), at(0.15, side));
        scroll.quadTo(at(-0.1, side * 0.9), at(0.12, side * 0.78));
        on.line(u"scroll"_s, scroll, pen);
    }
    QPainterPath crescent(at(0.1, -0.42));
    crescent.quadTo(at(0.5, 0), at(0.1, 0.42));
    on.line(u"crescent"_s, crescent, pen);
    const double gem = on.scaled(3);
    const QPainterPath shape = lozenge(at(1, 0), gem);
    const QRectF place = shape.boundingRect().adjusted(-1, -1, 1, 1);
    if (on.isFree(place))
        on.add(
            u"gem"_s, place,
            [](Canvas& canvas, const QPainterPath& path, const QColor& colour) { canvas.fill(path, colour); }, shape,
            faded(look.accent, flourishInk));
    on.reserve(QRectF(at(0, -1), at(1, 1)).normalized());
}

} // namespace

/// Grains of light on the way from widget to widget, and a flourish at either side of the largest.
Scene velvetScene(SceneOrnament on)
{
    const NightLook look = NightLook::of(Skin::velvet, on.accent());
    const QRectF hero = on.hero().frame;
    const double air = on.scaled(flourishAir);
    const double width = std::min({roomBeside(on, true), roomBeside(on, false), on.scaled(widest) + 2 * air}) - 2 * air;
    if (width >= on.scaled(narrowest)) {
        const double half = hero.height() * flourishHeight / 2;
        flourish(on, look, {hero.left() - air, hero.center().y()}, -width, half);
        flourish(on, look, {hero.right() + air, hero.center().y()}, width, half);
    }
    trail(on, look);
    return on.scene();
}

} // namespace ambrelle
