// SPDX-License-Identifier: MIT

#include "skins/quest/QuestSprites.h"
#include "skins/quest/QuestStyle.h"
#include "skins/quest/QuestTrail.h"
#include "skins/SceneRecipes.h"

#include <QLineF>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double stonePitch = 16;
constexpr double leastPitch = 10; // points of the screen: the map does not become endless
constexpr double stoneSize = 8;
constexpr double stoneShade = 2; // height of its shaded side
constexpr double stoneClear = 7; // from a stone's middle to items: what crawls over it is larger
const QColor sand(0xE8, 0xD5, 0x9A);
const QColor sandShade(0xA9, 0x8D, 0x55);

constexpr double spritePixel = 2;

constexpr int snakeCells = 10;
constexpr std::array snakeSteps{0, 1, 2, 1}; // cells from where it rests, frame by frame
constexpr int snakeReach = 2;
constexpr double snakeRate = 2; // frames a second
constexpr double snakeWidth = 10;
constexpr double headSize = 12;

/// What stands on an item's upper edge, or else on the ground beside it. Its place, where one is free.
std::optional<QRectF> landmark(
    SceneOrnament& on, const QString& name, const SceneItem& item, const Sprite& sprite, bool atRight)
{
    const double pixel = std::max(1.0, std::round(on.scaled(spritePixel)));
    const QSizeF size = QSizeF(sprite.size()) * pixel;
    const QRectF& frame = item.frame;
    const double in = on.scaled(stonePitch);
    const double left = frame.left() + in;
    const double right = frame.right() - in - size.width();
    const double top = std::floor(frame.top()) - size.height();
    const double foot = std::floor(frame.bottom()) - size.height();
    const std::array corners{QPointF(atRight ? right : left, top), QPointF(atRight ? left : right, top),
        QPointF(std::ceil(frame.right()) + 3, foot), QPointF(std::floor(frame.left()) - 3 - size.width(), foot)};
    for (const QPointF& corner : corners) {
        const QRectF place(QPointF(std::round(corner.x()), corner.y()), size);
        if (!on.isFree(place.adjusted(-2, -2, 2, 0)))
            continue;
        on.add(
            name, place.adjusted(-1, -1, 1, 1),
            [](Canvas& canvas, const Box& box, bool isChest, double dot) {
                (isChest ? quest::chest() : quest::flag()).draw(canvas, box, dot);
            },
            Box(place), &sprite == &quest::chest(), pixel);
        on.reserve(place);
        return place;
    }
    return std::nullopt;
}

void stones(SceneOrnament& on, const QList<QPointF>& centres)
{
    if (centres.isEmpty())
        return;
    const double size = std::max(4.0, std::round(on.scaled(stoneSize)));
    QList<QRectF> places;
    for (const QPointF& centre : centres)
        places.append(QRectF(centre, QSizeF()).adjusted(-size, -size, size, size) & on.screen());
    on.add(
        u"stones"_s, places,
        [](Canvas& canvas, const QList<QPointF>& all, double side, double shade) {
            for (const QPointF& centre : all) {
                const Box stone(std::round(centre.x() - side / 2), std::round(centre.y() - side / 2), side, side);
                canvas.fill(stone, sandShade);
                canvas.fill(stone.adjusted(0, 0, 0, -shade), sand);
            }
        },
        centres, size, std::max(1.0, std::round(on.scaled(stoneShade))));
}

/// One frame: the body from tail to head, and a tongue where it is farthest.
void drawSnake(Canvas& canvas, const QList<QPointF>& way, int step, double unit)
{
    const auto square = [&](QPointF centre, double side, const QColor& colour) {
        const double edge = std::max(2.0, std::round(side * unit));
        canvas.fill(Box(std::round(centre.x() - edge / 2), std::round(centre.y() - edge / 2), edge, edge), colour);
    };
    for (const bool isRim : {true, false}) {
        for (int cell = 0; cell < snakeCells; ++cell) {
            const double taper = cell == 0 ? 4 : cell == 1 ? 2 : 0;
            const double side = (cell == snakeCells - 1 ? headSize : snakeWidth - taper) + (isRim ? 2 : -2);
            const QPointF here = way[cell + step];
            const QColor scale = cell % 2 == 0 ? quest::leaf : quest::darker(quest::leaf);
            if (cell + 1 < snakeCells)
                square((here + way[cell + step + 1]) / 2, snakeWidth - taper + (isRim ? 2 : -2),
                    isRim ? quest::night : scale);
            square(here, side, isRim ? quest::night : scale);
        }
    }
    const QPointF head = way[snakeCells - 1 + step];
    const QPointF ahead = (head - way[snakeCells - 2 + step]) / (QLineF(head, way[snakeCells - 2 + step]).length());
    const QPointF aside(-ahead.y(), ahead.x());
    square(head, headSize - 2, quest::leaf);
    for (const double side : {-1.0, 1.0})
        square(head + (ahead * 2 + aside * 3 * side) * unit, 2, quest::night);
    if (step == snakeReach)
        for (const double reach : {7.0, 9.0})
            square(head + ahead * reach * unit, 2, quest::blood);
}

/// A snake on the longest of the ways, if there is room for it: it crawls to and fro.
void snake(SceneOrnament& on, const QList<QPointF>& way)
{
    constexpr int cells = snakeCells + snakeReach;
    if (way.size() < cells + 2)
        return;
    const QList<QPointF> room = way.mid((way.size() - cells) / 2, cells);
    const double unit = on.scaled(1);
    QRectF place;
    for (const QPointF& centre : room)
        place |= QRectF(centre, QSizeF())
                     .adjusted(-stonePitch * unit, -stonePitch * unit, stonePitch * unit, stonePitch * unit);
    on.add(
        u"snake"_s, QList{place & on.screen()}, Motion::steady(snakeRate),
        [](Canvas& canvas, double time, const QList<QPointF>& course, double scale) {
            const double count = static_cast<double>(snakeSteps.size());
            const auto index = static_cast<std::size_t>(std::fmod(std::floor(time * snakeRate), count));
            drawSnake(canvas, course, snakeSteps.at(index), scale);
        },
        room, unit);
}

} // namespace

/// The map of a world: stepping stones from widget to widget in the order of their creation, a chest where the
/// downloads are, a flag at the end.
Scene questScene(SceneOrnament on)
{
    on.drawLike(quest::makeStyle(on.accent()));
    const double pitch = std::max(leastPitch, on.scaled(stonePitch));
    quest::QuestTrail trail(on, pitch, on.scaled(stoneClear));
    const auto build = [&](const QString& name, const SceneItem& item, const Sprite& sprite, bool atRight) {
        if (const std::optional<QRectF> place = landmark(on, name, item, sprite, atRight))
            trail.block(*place);
    };
    const QList<SceneItem>& items = on.items();
    if (items.size() > 1)
        build(u"flag"_s, items.last(), quest::flag(), true);
    const auto downloads = std::ranges::find(items, WidgetKind::downloads, &SceneItem::kind);
    if (downloads != items.end())
        build(u"chest"_s, *downloads, quest::chest(), false);
    QSet<QPoint> laid;
    QList<QPointF> longest;
    for (qsizetype index = 1; index < items.size(); ++index) {
        QList<QPointF> way;
        QList<QPointF> fresh;
        for (const QPoint& cell : trail.link(items[index - 1].frame, items[index].frame)) {
            way.append(trail.centre(cell));
            if (!laid.contains(cell))
                fresh.append(way.last());
            laid.insert(cell);
        }
        stones(on, fresh);
        if (way.size() > longest.size())
            longest = way;
    }
    snake(on, longest);
    return on.scene();
}

} // namespace ambrelle
