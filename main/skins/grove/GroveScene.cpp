// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/grove/GrovePieces.h"
#include "skins/grove/GroveStyle.h"
#include "skins/SceneRecipes.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double gardenInset = 85; // of the vine's ellipse from the bounds of all items, points
constexpr double vineWidth = 1;
constexpr double vineInk = 0.55; // opacity
constexpr double leafInk = 0.7;
constexpr double leafPitch = 26;
constexpr double vineLeaf = 9;
constexpr double vineSpread = 46; // degrees between the vine and its leaves
constexpr double sway = 12; // by which that varies
constexpr double shortest = 12; // stretch of a vine that is worth to be drawn
constexpr double berryRadius = 2.2;
constexpr double flattest = 60; // height of a bow that is still one
constexpr double fromEdges = 14; // of the screen

constexpr double laurelWidth = 66; // of each branch
constexpr double laurelDrop = 24; // of its root below the hero
constexpr double laurelRise = 13; // of its tip above the root

/// A plant that is drawn as one: lines, and leaves that grow on them.
void plant(SceneOrnament& on, const SkinStyle& style, const QString& name, const QPainterPath& stem,
    const QPainterPath& leaves)
{
    const double width = on.scaled(vineWidth);
    const QRectF place = stem.boundingRect().adjusted(-width, -width, width, width) | leaves.boundingRect();
    on.add(
        name, place.adjusted(-1, -1, 1, 1),
        [](Canvas& canvas, const QPainterPath& wood, const QPainterPath& green, double thickness, const QColor& gold,
            const QColor& colour) {
            canvas.fill(green, colour);
            canvas.stroke(wood, roundPen(gold, thickness));
        },
        stem, leaves, width, faded(style.accent, vineInk), faded(style.accent2, leafInk));
}

/// Two branches tied together, as below the title of a book.
void laurel(SceneOrnament& on, const SkinStyle& style)
{
    const QRectF hero = on.hero().frame;
    const QPointF root(hero.center().x(), hero.bottom() + on.scaled(laurelDrop));
    const double width = on.scaled(laurelWidth);
    QPainterPath branch(root - QPointF(on.scaled(5), on.scaled(-2)));
    branch.quadTo(root + QPointF(0.55 * width, on.scaled(5)), root + QPointF(width, -on.scaled(laurelRise)));
    QPainterPath leaves =
        grove::Twig{.stem = branch, .pairs = 7, .length = on.scaled(vineLeaf + 1), .from = 0.14}.leaves();
    const QTransform mirror(-1, 0, 0, 1, 2 * root.x(), 0);
    branch.addPath(mirror.map(branch));
    leaves.addPath(mirror.map(leaves));
    const QRectF place = (branch.boundingRect() | leaves.boundingRect()).adjusted(-3, -3, 3, 3);
    if (!on.isFree(place))
        return;
    plant(on, style, u"laurel"_s, branch, leaves);
    on.dot(u"berry"_s, root + QPointF(0, on.scaled(1)), on.scaled(berryRadius), style.accent);
    on.reserve(place);
}

bool meetsItem(const SceneOrnament& on, QPointF end)
{
    const double near = on.scaled(berryRadius) + 2;
    return !on.isFree(QRectF(end, QSizeF()).adjusted(-near, -near, near, near));
}

/// Where a stretch of the vine ends in the open it grows into a sprig, where it meets an item there is a berry.
void vineEnd(SceneOrnament& on, const SkinStyle& style, QPointF end, QPointF before)
{
    if (meetsItem(on, end)) {
        on.dot(u"berry"_s, end, on.scaled(berryRadius), style.accent);
        return;
    }
    QLineF way(before, end);
    way.setLength(on.scaled(34));
    const QPointF forth = way.p2() - way.p1();
    const QPointF inwards = forth.y() > 0 ? QPointF(on.bounds().center().x() > end.x() ? 1 : -1, 0) : QPointF(0, 0);
    QPainterPath stem(end);
    stem.quadTo(end + 0.6 * forth, end + forth + on.scaled(12) * inwards);
    const QPainterPath leaves = grove::Twig{.stem = stem, .pairs = 5, .length = on.scaled(vineLeaf)}.leaves();
    if (on.isFree((stem.boundingRect() | leaves.boundingRect()).adjusted(-2, -2, 2, 2)))
        plant(on, style, u"sprig"_s, stem, leaves);
}

void vineStretch(SceneOrnament& on, const SkinStyle& style, const QPolygonF& points, SeededRandom random)
{
    const QPainterPath stem = straightLine(points);
    const double length = stem.length();
    if (length < on.scaled(shortest))
        return;
    QPainterPath leaves;
    leaves.setFillRule(Qt::WindingFill);
    const int pairs = std::max(1, static_cast<int>(length / on.scaled(leafPitch)));
    for (int pair = 0; pair < pairs; ++pair) {
        const double place = (pair + 0.4) / pairs;
        for (const double side : {-vineSpread, vineSpread}) {
            const double angle = side + random.in(-sway, sway);
            const QPainterPath leaf = grove::leafOn(stem, place, angle, on.scaled(vineLeaf));
            if (on.isFree(leaf.boundingRect().adjusted(-2, -2, 2, 2)))
                leaves.addPath(leaf);
        }
    }
    plant(on, style, u"vine"_s, stem, leaves);
    vineEnd(on, style, points.first(), points[1]);
    vineEnd(on, style, points.last(), points[points.size() - 2]);
}

QList<QPolygonF> stretchesOf(const SceneOrnament& on, const QPainterPath& line)
{
    const QPainterPath way = on.outside(line, on.scaled(berryRadius) + 0.5, on.scaled(fromEdges));
    QList<QPolygonF> stretches = way.toSubpathPolygons();
    stretches.removeIf([](const QPolygonF& stretch) { return stretch.size() < 2; });
    return stretches;
}

/// The upper half of an ellipse through the items, or a bow between the outermost where that would pass them by.
void garland(SceneOrnament& on, const SkinStyle& style)
{
    const QRectF bounds = on.bounds();
    const double inset = std::min({on.scaled(gardenInset), bounds.width() / 4, bounds.height() / 4});
    QList<QPolygonF> stretches = stretchesOf(on, arc(Box(bounds).inset(inset), 0.75, 0.5));
    const auto passesBy = [&](const QPolygonF& stretch) {
        return !meetsItem(on, stretch.first()) && !meetsItem(on, stretch.last());
    };
    if (std::ranges::any_of(stretches, passesBy))
        stretches = stretchesOf(on, straightLine(on.bow(on.scaled(flattest))));
    std::uint64_t index = 0;
    for (const QPolygonF& stretch : std::as_const(stretches))
        vineStretch(on, style, stretch, SeededRandom{seedOf(u"grove") + index++});
}

} // namespace

/// A vine that grows from widget to widget, and the laurel of the largest.
Scene groveScene(SceneOrnament on)
{
    const SkinStyle style = grove::makeStyle(on.accent());
    laurel(on, style);
    garland(on, style);
    return on.scene();
}

} // namespace ambrelle
