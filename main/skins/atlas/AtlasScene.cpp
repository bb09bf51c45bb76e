// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/atlas/AtlasPieces.h"
#include "skins/atlas/AtlasStyle.h"
#include "skins/SceneRecipes.h"

#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double routeWidth = 3;
constexpr double casingWidth = 5;
constexpr double casingAlpha = 0.6;
const QList<qreal> dashes{7.0 / routeWidth, 5.0 / routeWidth}; // in parts of the pen's width
constexpr double townRadius = 5;
constexpr double townCore = 2.6;
constexpr double townGap = 7; // from an item to the middle of its town
constexpr double heightSize = 10.5;
constexpr double heightRoom = 46; // for the longest number
constexpr int lowest = 40; // of towns, metres
constexpr int highest = 1900;

constexpr double roseWidth = 40;
constexpr double roseHeight = 51;
constexpr double roseGap = 14;
constexpr double roseClear = 28; // of the screen's edge, along which the map's border runs

/// One way from item to item, cut where it passes behind others.
void route(SceneOrnament& on, const SkinStyle& style, QPointF from, QPointF to)
{
    QPen casing = flatPen(faded(Qt::white, casingAlpha), on.scaled(casingWidth));
    on.line(u"casing"_s, from, to, casing);
    QPen dashed = flatPen(style.accent, on.scaled(routeWidth));
    dashed.setDashPattern(dashes);
    on.line(u"route"_s, from, to, dashed);
}

bool town(SceneOrnament& on, const SkinStyle& style, QPointF place)
{
    if (!on.dot(u"town"_s, place, on.scaled(townRadius), style.accent))
        return false;
    on.dot(u"town-core"_s, place, on.scaled(townCore), Qt::white);
    const double apart = on.scaled(townRadius) + 1;
    on.reserve(QRectF(place, QSizeF()).adjusted(-apart, -apart, apart, apart));
    return true;
}

/// Beside its town, on a side where there is room.
void height(SceneOrnament& on, const SkinStyle& style, QPointF town, int metres)
{
    const double gap = on.scaled(townRadius) + 4;
    const double size = std::max(style.floor, on.scaled(heightSize));
    const double width = heightRoom * size / heightSize;
    const Box line(0, 0, width, size);
    const TextStyle figures = style.caption().sized(size).coloured(style.ink);
    const QString text = QString::number(metres);
    const std::array across{std::pair(gap, Align::left), std::pair(-gap - width, Align::right)};
    for (const double down : {-size / 2, -size - 1, 1.0}) {
        for (const auto& [right, align] : across) {
            if (on.label(u"height"_s, line.moved(town.x() + right, town.y() + down), text, figures.aligned(align)))
                return;
        }
    }
    for (const double down : {-gap - size, gap}) {
        if (on.label(
                u"height"_s, line.moved(town.x() - width / 2, town.y() + down), text, figures.aligned(Align::centre)))
            return;
    }
}

/// Where a town stands on the way from an item's edge to `to`: clear of the item, also where the way leaves it aslant.
QPointF beside(const SceneItem& item, QPointF from, QPointF to, double gap)
{
    const QPointF way = to - from;
    const bool isBeside = from.x() <= item.frame.left() + 1 || from.x() >= item.frame.right() - 1;
    const double leaving = std::abs(isBeside ? way.x() : way.y());
    return from + way * std::min(0.5, gap / std::max(1.0, leaving));
}

void atlasRoute(SceneOrnament& on, const SkinStyle& style)
{
    const QList<SceneItem> stops = on.walk();
    struct Town {
        QPointF place;
        int metres;
    };
    QList<Town> towns;
    for (qsizetype index = 1; index < stops.size(); ++index) {
        const QPointF from = stops[index - 1].frame.center();
        const QPointF to = stops[index].frame.center();
        if (stops[index - 1].frame.intersects(stops[index].frame))
            continue;
        const QPointF leaves = SceneLayout::edge(stops[index - 1], to);
        const QPointF arrives = SceneLayout::edge(stops[index], from);
        SeededRandom random{seedOf(u"atlas") + static_cast<std::uint64_t>(index)};
        const auto metres = [&random] { return lowest + static_cast<int>(random.next(highest - lowest)); };
        const double gap = on.scaled(townGap);
        if (QLineF(leaves, arrives).length() < 5 * gap) { // one town between two neighbours
            towns.append({(leaves + arrives) / 2, metres()});
        } else {
            towns.append({beside(stops[index - 1], leaves, arrives, gap), metres()});
            towns.append({beside(stops[index], arrives, leaves, gap), metres()});
        }
        route(on, style, leaves, arrives);
    }
    towns.removeIf([&](const Town& each) { return !town(on, style, each.place); });
    for (const Town& each : std::as_const(towns))
        height(on, style, each.place, each.metres);
}

/// Beside the upper right corner of all items, or above it.
void northArrow(SceneOrnament& on, const SkinStyle& style)
{
    const QRectF bounds = on.bounds();
    const QSizeF size(on.scaled(roseWidth), on.scaled(roseHeight));
    const double gap = on.scaled(roseGap);
    const double clear = on.scaled(roseClear);
    const std::array corners{
        QPointF(bounds.right() + gap, bounds.top()),
        QPointF(bounds.right() - size.width(), bounds.top() - gap - size.height()),
    };
    for (const QPointF& corner : corners) {
        const QRectF place(corner, size);
        if (!on.isFree(place.adjusted(-2, -2, 2, 2))
            || !on.screen().contains(place.adjusted(-clear, -clear, clear, clear)))
            continue;
        on.add(
            u"north"_s, place.adjusted(-2, -2, 2, 2),
            [](Canvas& canvas, const QRectF& area, const SkinStyle& look) {
                const double scale = area.width() / roseWidth;
                canvas.mapped(QTransform::fromTranslate(area.x(), area.y()).scale(scale, scale), [&] {
                    atlas::compassRose(canvas, look, {0, 0, roseWidth, roseHeight});
                });
            },
            place, style);
        on.reserve(place);
        return;
    }
}

} // namespace

/// A walk over the map from widget to widget.
Scene atlasScene(SceneOrnament on)
{
    const SkinStyle style = atlas::makeStyle(on.accent());
    northArrow(on, style);
    atlasRoute(on, style);
    return on.scene();
}

} // namespace ambrelle
