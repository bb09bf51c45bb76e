// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "skins/kyoto/KyotoPieces.h"
#include "skins/kyoto/KyotoStyle.h"
#include "skins/SceneRecipes.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double signSize = 40; // of the column, points
constexpr double signPitch = 48;
constexpr double columnInk = 0.75;
constexpr double columnGap = 34; // beside the items
constexpr double columnEdge = 16; // of the screen
constexpr QPointF sunAt(0.78, 0.26); // of the wallpaper, where ink is not read well; parts of the screen
constexpr double sunRadius = 0.11; // in parts of its height
constexpr double stampSide = 34;
constexpr double stampGap = 12;

constexpr double railHeight = 10; // above its row
constexpr double railWidth = 2.6;
constexpr double railReach = 6; // beyond its items
constexpr double railKnob = 2.4;
constexpr double sameRail = 14; // by which the upper edges of its items differ at most
constexpr double widestGap = 120; // a rail goes over
constexpr double cordWidth = 0.9;
constexpr double cordSpread = 26; // between its ends, half

/// Where a column of that size may stand beside the items, the best place first.
QList<Box> columnPlaces(const SceneOrnament& on, const QSizeF& size)
{
    const QRectF bounds = on.bounds();
    const double clear = on.scaled(columnEdge);
    const double lowest = on.screen().bottom() - clear - size.height();
    if (lowest < clear)
        return {};
    const double gap = on.scaled(columnGap);
    QList<Box> places;
    for (const double x : {bounds.right() + gap, bounds.left() - gap - size.width()}) {
        for (const double top : {bounds.top(), bounds.bottom() - size.height()})
            places.append({x, std::clamp(top, clear, lowest), size.width(), size.height()});
    }
    places.removeIf([&](const Box& place) { return !on.isFree(place.inset(-clear)); });
    const QRectF sun = squareAbout(
        {sunAt.x() * on.screen().width(), sunAt.y() * on.screen().height()}, sunRadius * on.screen().height());
    std::ranges::stable_partition(places, [&](const Box& place) { return !sun.intersects(place); });
    return places;
}

void stamp(SceneOrnament& on, const Box& place, const QColor& red)
{
    on.add(
        u"seal"_s, place.inset(-1),
        [](Canvas& canvas, const Box& box, const QColor& colour) {
            const double scale = box.width() / kyoto::sealSide;
            canvas.mapped(QTransform::fromTranslate(box.x(), box.y()).scale(scale, scale), [&] {
                kyoto::seal(canvas, {0, 0, kyoto::sealSide, kyoto::sealSide}, colour);
            });
        },
        place, red);
}

/// A poem of four signs and who set his seal to it, in the empty paper beside the items.
void kyotoColumn(SceneOrnament& on, const SkinStyle& style)
{
    static const QString poem = u"今日静寂"_s;
    const double signs = on.scaled(signPitch) * static_cast<double>(poem.size());
    const double side = on.scaled(stampSide);
    const QList<Box> places = columnPlaces(on, {on.scaled(signSize) + 4, signs + on.scaled(stampGap) + side});
    if (places.isEmpty())
        return;
    Box rest = places.first();
    on.reserve(rest);
    const Box column = rest.cutTop(signs);
    on.add(
        u"column"_s, column.inset(-4),
        [](Canvas& canvas, const Box& box, const QString& text, double size, const QColor& ink) {
            kyoto::kanji(canvas, box, text, size, ink);
        },
        column, poem, on.scaled(signSize), faded(style.ink, columnInk));
    stamp(on, rest.cutBottom(side).centred(side, side), kyoto::vermilion);
}

/// The bamboo rail that neighbours hang on, each by a cord.
void rail(SceneOrnament& on, const QList<SceneItem>& hung)
{
    double y = hung.first().frame.top();
    for (const SceneItem& item : hung)
        y = std::min(y, item.frame.top());
    y -= on.scaled(railHeight);
    const double reach = on.scaled(railReach);
    const double from = hung.first().frame.left() - reach;
    const double to = hung.last().frame.right() + reach;
    const double width = on.scaled(railWidth);
    if (!on.isFree(QRectF(from, y - width, to - from, 2 * width)))
        return;
    const QPen cord = roundPen(faded(kyoto::rodColour, 0.7), on.scaled(cordWidth));
    for (const SceneItem& item : hung) {
        const QPointF middle(item.frame.center().x(), y);
        for (const double side : {-1.0, 1.0})
            on.line(u"cord"_s, middle, {middle.x() + side * on.scaled(cordSpread), item.frame.top()}, cord);
    }
    on.line(u"rail"_s, {from, y}, {to, y}, flatPen(kyoto::rodColour, width));
    for (const double x : {from, to})
        on.dot(u"knob"_s, {x, y}, on.scaled(railKnob), kyoto::rodColour);
}

void rails(SceneOrnament& on)
{
    for (const QList<SceneItem>& row : on.rows()) {
        QList<SceneItem> hung;
        for (const SceneItem& item : row) {
            const bool fits = hung.isEmpty()
                || (item.frame.left() - hung.last().frame.right() <= on.scaled(widestGap)
                    && std::abs(item.frame.top() - hung.first().frame.top()) <= on.scaled(sameRail));
            if (!fits) {
                rail(on, hung);
                hung.clear();
            }
            hung.append(item);
        }
        rail(on, hung);
    }
}

} // namespace

/// A quiet room: rails that the scrolls of a row hang on, and a column of writing with its seal.
Scene kyotoScene(SceneOrnament on)
{
    kyotoColumn(on, kyoto::makeStyle(on.accent()));
    rails(on);
    return on.scene();
}

} // namespace ambrelle
