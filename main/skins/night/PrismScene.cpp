// SPDX-License-Identifier: MIT

#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/night/NightPieces.h"
#include "skins/SceneRecipes.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double beamWidth = 3; // points
constexpr double beamInk = 0.5; // opacity where it meets the hero
constexpr double farInk = 0.22; // and where it enters the screen
constexpr double beamRise = 0.22; // to the right, for each point: as the one of the wallpaper
constexpr double beamLight = 6; // how far it reaches, whatever the scale

constexpr int rayCount = 6;
constexpr double rayWidth = 2;
constexpr double rayInk = 0.35;
constexpr double rayEndInk = 0.2;
constexpr double leastInside = 30; // the hero, where the rays part, from its right side
constexpr double mostInside = 120;
constexpr double steepestRay = 60; // degrees to an item that a ray is led to
constexpr double leastApart = 2.4; // where they leave the hero: rays never lie over each other
constexpr double underItems = 7; // how far they run below the edges of plates, whose corners are round
constexpr double freeSpread = 8; // the same where they are led nowhere
constexpr double freeLength = 190; // of such rays
constexpr double sidesOfItem = 0.3; // of the height at which rays meet an item, above and below its middle

double degreesOf(QPointF way)
{
    return std::atan2(way.y(), way.x()) * 180 / std::numbers::pi;
}

QPointF wayOf(double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    return {std::cos(angle), std::sin(angle)};
}

/// Where a ray is led.
struct Aim {
    double degrees; ///< downwards from the right
    double distance; ///< from where the rays part
    QRectF frame; ///< of the item; null where there is none
};

/// The items right of the hero that rays can reach, the upper ones first.
QList<SceneItem> screensOf(const SceneOrnament& on)
{
    const QPointF side = SceneLayout::edge(on.hero(), Qt::RightEdge);
    const auto degrees = [side](const SceneItem& item) { return degreesOf(item.frame.center() - side); };
    QList<SceneItem> items = on.satellites();
    items.removeIf(
        [&](const SceneItem& item) { return item.frame.left() <= side.x() || std::abs(degrees(item)) > steepestRay; });
    std::ranges::stable_sort(items, {}, degrees);
    return items;
}

/// Where the rays part: so far inside that all of them leave the hero through its right side.
QPointF splitOf(const SceneOrnament& on, const QList<SceneItem>& items, double side)
{
    const QPointF edge = SceneLayout::edge(on.hero(), Qt::RightEdge);
    double inside = on.scaled(mostInside);
    for (const SceneItem& item : items) {
        const QPointF way = item.frame.center() - edge;
        inside = std::min(inside, 0.8 * side * way.x() / std::max(1.0, std::abs(way.y())));
    }
    return edge - QPointF(std::max(inside, on.scaled(leastInside)), 0);
}

QList<Aim> aimsOf(const SceneOrnament& on, const QList<SceneItem>& items, QPointF split)
{
    QList<Aim> aims;
    for (int index = 0; index < rayCount; ++index) {
        if (items.isEmpty()) {
            aims.append({freeSpread * (index - (rayCount - 1) / 2.0), on.scaled(freeLength), {}});
            continue;
        }
        const double place = (index + 0.5) / rayCount * static_cast<double>(items.size());
        const QRectF& frame = items[static_cast<qsizetype>(place)].frame;
        const double beside = 2 * (place - std::floor(place)) - 1;
        const QPointF way = frame.center() + QPointF(0, beside * sidesOfItem * frame.height()) - split;
        aims.append({degreesOf(way), std::hypot(way.x(), way.y()), frame});
    }
    std::ranges::stable_sort(aims, {}, &Aim::degrees);
    return aims;
}

/// Turns the rays at least `apart` degrees away from each other, all within `limit` degrees of the right.
void spread(QList<Aim>& aims, double apart, double limit)
{
    double turned = 0;
    for (qsizetype index = 1; index < aims.size(); ++index) {
        const double least = aims[index - 1].degrees + apart;
        turned += std::max(0.0, least - aims[index].degrees) / rayCount;
        aims[index].degrees = std::max(aims[index].degrees, least);
    }
    for (qsizetype index = 0; index < aims.size(); ++index) {
        const double above = static_cast<double>(index) * apart;
        const double below = static_cast<double>(rayCount - 1) * apart - above;
        aims[index].degrees = std::max(std::min(aims[index].degrees - turned, limit - below), above - limit);
    }
}

/// From the hero's side to its item, or as far as that is.
QLineF rayTo(const SceneOrnament& on, QPointF split, const Aim& aim)
{
    const QPointF way = wayOf(aim.degrees);
    const QPointF start = split + way * (on.hero().frame.right() - split.x()) / way.x();
    return {start, split + way * std::max(aim.distance, QLineF(split, start).length())};
}

void rays(SceneOrnament& on, const NightLook& look)
{
    const QList<SceneItem> items = screensOf(on);
    const double side = std::max(1.0, on.hero().frame.height() / 2 - on.scaled(look.corner));
    const QPointF split = splitOf(on, items, side);
    const double inside = on.hero().frame.right() - split.x();
    QList<Aim> aims = aimsOf(on, items, split);
    spread(aims, degreesOf({inside, on.scaled(leastApart)}), degreesOf({inside, side}));
    const double width = on.scaled(rayWidth);
    const double reach = width / 2 + 1;
    for (int index = 0; index < rayCount; ++index) {
        const QLineF ray = rayTo(on, split, aims[index]);
        QPainterPath line(ray.p1());
        line.lineTo(ray.p2());
        const QPainterPath kept = on.outside(line, -on.scaled(underItems), reach + 1);
        if (kept.isEmpty())
            continue;
        const QColor colour = spectrumOf(look)[static_cast<std::size_t>(index)];
        const double last = aims[index].frame.contains(ray.p2()) ? rayEndInk : 0;
        const QBrush light = linear(ray.p1(), ray.p2(), {{0, faded(colour, rayInk)}, {1, faded(colour, last)}});
        on.addAlong(
            u"ray"_s, kept, reach,
            [](Canvas& canvas, const QPainterPath& course, const QPen& pen) { canvas.stroke(course, pen); }, kept,
            flatPen(light, width));
    }
}

/// From the left edge of the screen to the hero; where items stand it passes behind them.
void sceneBeam(SceneOrnament& on)
{
    const QRectF hero = on.hero().frame;
    const QPointF end(hero.left(), hero.center().y());
    const QPointF start(0, end.y() + end.x() * beamRise);
    const double width = on.scaled(beamWidth);
    QPainterPath line(start);
    line.lineTo(end);
    const QPainterPath kept = on.outside(line, width / 2, 0);
    if (end.x() <= beamLight || kept.isEmpty())
        return;
    const double reach = width + beamLight;
    const QRectF place =
        kept.boundingRect().adjusted(-reach, -reach, reach, reach) & on.screen().adjusted(0, 1, -1, -1);
    const auto white = [](double ink) { return faded(Qt::white, ink); };
    on.add(
        u"beam"_s, place,
        [](Canvas& canvas, const QPainterPath& course, const QPen& pen, const QRectF& room) {
            QPainterPath screen;
            screen.addRect(room);
            canvas.within(screen, [&] {
                canvas.lightAround(course, {.colour = Qt::white, .strokes = 4, .alpha = 0.03, .spread = beamLight / 2});
                canvas.stroke(course, pen);
            });
        },
        kept, flatPen(linear(start, end, {{0, white(farInk)}, {1, white(beamInk)}}), width), place);
}

} // namespace

/// A desktop as a prism: white light falls on the largest widget, and its colours on the others.
Scene prismScene(SceneOrnament on)
{
    rays(on, NightLook::of(Skin::prism, on.accent()));
    sceneBeam(on);
    return on.scene();
}

} // namespace ambrelle
