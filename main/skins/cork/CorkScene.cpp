// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "scenes/LineCut.h"
#include "skins/cork/CorkPaper.h"
#include "skins/cork/CorkStyle.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double stringWidth = 1.6; // points
constexpr double stringShadow = 2; // by which it falls below
constexpr double shadowInk = 0.3;
constexpr double sag = 14;
constexpr double tuckedInk = 0.34; // of the string where it slips under a paper
constexpr double tucked = 12; // of it that may be seen beside a paper that hangs askew
constexpr double pinDepth = 5; // of a pin's centre below the item's upper edge
constexpr double clipPlace = 26; // from a card's right edge
constexpr double knotRadius = 2.2;
constexpr double boardFrame = 0.02; // of the board, in parts of the screen's height
constexpr double pinRoom = 12; // around a spare pin
const QSizeF scrapSize(30, 22);

/// What the string is tied to.
QPointF pinOf(const SceneOrnament& on, const SceneItem& item)
{
    const bool isCard = cork::paperOf(item.kind) == cork::Paper::card;
    const double x = isCard ? item.frame.right() - on.scaled(clipPlace) : item.frame.center().x();
    return {x, item.frame.top() + on.scaled(pinDepth)};
}

/// First what belongs to a story, then always what hangs nearest.
QList<SceneItem> storyOrder(const SceneOrnament& on)
{
    QList<SceneItem> order;
    QList<SceneItem> waiting = on.items();
    const auto take = [&](QList<SceneItem>::iterator item) {
        order.append(*item);
        waiting.erase(item);
    };
    for (const WidgetKind kind :
        {WidgetKind::clock, WidgetKind::events, WidgetKind::photo, WidgetKind::weather, WidgetKind::nowPlaying}) {
        if (const auto item = std::ranges::find(waiting, kind, &SceneItem::kind); item != waiting.end())
            take(item);
    }
    if (order.isEmpty())
        take(waiting.begin());
    while (!waiting.isEmpty()) {
        const QPointF here = pinOf(on, order.last());
        take(std::ranges::min_element(
            waiting, {}, [&](const SceneItem& item) { return QLineF(here, pinOf(on, item)).length(); }));
    }
    return order;
}

QPainterPath slack(QPointF from, QPointF to, double depth)
{
    QPainterPath path(from);
    path.quadTo((from + to) / 2 + QPointF(0, 2 * depth), to);
    return path;
}

/// The ends that slip under a paper; where several do, they are but one mark.
void tuck(SceneOrnament& on, const QList<QPainterPath>& strings, const QColor& red)
{
    const double inside = on.scaled(tucked);
    QList<QRectF> done;
    for (const SceneItem& item : on.items()) {
        const QRectF& paper = item.frame;
        QPainterPath ends;
        for (const QPainterPath& string : strings)
            ends.addPath(cutLine(string, paper.adjusted(-1, -1, 1, 1) & on.screen().adjusted(4, 4, -4, -4),
                done + QList<QRectF>{paper.adjusted(inside, inside, -inside, -inside)}, 0));
        const double beyond = 1 + on.scaled(stringWidth);
        done.append(paper.adjusted(-beyond, -beyond, beyond, beyond));
        if (!ends.isEmpty())
            on.line(u"tucked"_s, ends, flatPen(faded(red, tuckedInk), on.scaled(stringWidth)));
    }
}

/// What is left of the string above the knot at a pin.
void looseEnd(SceneOrnament& on, const SceneItem& item, const QColor& red, qsizetype index)
{
    if (cork::paperOf(item.kind) == cork::Paper::card)
        return;
    SeededRandom random{seedOf(u"cork") + static_cast<std::uint64_t>(index)};
    const double side = random.next(2) == 0 ? -1 : 1;
    const double length = on.scaled(random.in(9, 14));
    const QPointF knot(item.frame.center().x() + side * on.scaled(3), item.frame.top() - on.scaled(1));
    const auto curl = [&](QPointF from) {
        QPainterPath end(from);
        end.cubicTo(from + QPointF(side * 0.2, -0.55) * length, from + QPointF(side * 0.75, -0.6) * length,
            from + QPointF(side, -0.2) * length);
        return end;
    };
    const double width = on.scaled(stringWidth);
    on.line(u"end-shadow"_s, on.outside(curl(knot + QPointF(0.5, 1) * on.scaled(stringShadow)), width, 2 * width + 2),
        roundPen(faded(Qt::black, shadowInk), width));
    on.line(u"end"_s, curl(knot), roundPen(red, width));
    on.dot(u"knot"_s, knot - QPointF(0, on.scaled(knotRadius)), on.scaled(knotRadius), red);
}

QList<QPainterPath> corkString(SceneOrnament& on, const QColor& red)
{
    const QList<SceneItem> order = storyOrder(on);
    const double width = on.scaled(stringWidth);
    const double fromEdges = 2 * width + 2;
    QList<QPainterPath> strings;
    for (qsizetype index = 1; index < order.size(); ++index)
        strings.append(slack(pinOf(on, order[index - 1]), pinOf(on, order[index]), on.scaled(sag)));
    const auto shade = [&](const QPainterPath& path) {
        on.line(u"shadow"_s, on.outside(path.translated(0, on.scaled(stringShadow)), width, fromEdges),
            roundPen(faded(Qt::black, shadowInk), width));
    };
    for (const QPainterPath& string : std::as_const(strings))
        shade(string);
    tuck(on, strings, red);
    for (const QPainterPath& string : std::as_const(strings))
        on.line(u"string"_s, on.outside(string, width / 2, fromEdges), roundPen(red, width));
    for (qsizetype index = 0; index < order.size() && order.size() > 1; ++index)
        looseEnd(on, order[index], red, index);
    return strings;
}

void spare(SceneOrnament& on, QPointF place, bool holdsScrap, unsigned seed)
{
    const double reach = on.scaled(holdsScrap ? scrapSize.width() * 0.75 : pinRoom);
    on.add(
        u"spare"_s, squareAbout(place, reach),
        [](Canvas& canvas, QPointF at, double scale, bool scrap, unsigned number) {
            canvas.mapped(QTransform::fromTranslate(at.x(), at.y()).scale(scale, scale), [&] {
                if (scrap)
                    canvas.turned({}, -9, [&] {
                        cork::tornStrip(
                            canvas, {-scrapSize.width() / 2, -5, scrapSize.width(), scrapSize.height()}, number);
                    });
                cork::pin(canvas, {0, 0});
            });
        },
        place, on.scaled(1), holdsScrap, seed);
}

/// A scrap of paper that was left behind, and a pin that waits for the next.
void spares(SceneOrnament& on, const QList<QPainterPath>& strings)
{
    QList<QPointF> places;
    for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
        for (const SceneGutter& gutter : on.gutters(direction, 240))
            places.append(gutter.area.center());
    }
    const QRectF bounds = on.bounds();
    const double beside = on.scaled(50);
    places += {{bounds.left() - beside, bounds.bottom() - beside}, {bounds.right() + beside, bounds.top() + beside},
        {bounds.right() + beside, bounds.bottom() - beside}, {bounds.left() - beside, bounds.top() + beside}};
    const double edge = boardFrame * on.screen().height() + on.scaled(8);
    const QRectF board = on.screen().adjusted(edge, edge, -edge, -edge);
    for (const bool holdsScrap : {true, false}) {
        const double reach = on.scaled(holdsScrap ? scrapSize.width() * 0.75 : pinRoom);
        for (const QPointF& place : std::as_const(places)) {
            const QRectF area = squareAbout(place, reach + on.scaled(3));
            const bool isCrossed = std::ranges::any_of(
                strings, [&](const QPainterPath& string) { return comesNear(string, area, on.scaled(stringWidth)); });
            if (isCrossed || !on.isFree(area) || !board.contains(area))
                continue;
            spare(on, place, holdsScrap, static_cast<unsigned>(seedOf(u"cork") % 97));
            on.reserve(squareAbout(place, on.scaled(120)));
            break;
        }
    }
}

} // namespace

/// Red string from pin to pin, as on the board of somebody who looks for a connection.
Scene corkScene(SceneOrnament on)
{
    const QColor red = cork::makeStyle(on.accent()).accent;
    spares(on, corkString(on, red));
    return on.scene();
}

} // namespace ambrelle
