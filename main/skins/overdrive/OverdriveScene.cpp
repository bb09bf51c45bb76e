// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "skins/overdrive/OverdrivePieces.h"
#include "skins/overdrive/OverdriveStyle.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double bracketLeg = 12; // points
constexpr double bracketLine = 2;
constexpr double bracketGap = 8; // from the item to the middle of its brackets; less where others are near
constexpr double leastGap = 4;
constexpr double bracketShare = 0.3; // of the way to the nearest item
constexpr double bracketInk = 0.65; // opacity

constexpr double leaderLine = 1.2;
constexpr double leaderInk = 0.8;
constexpr double leaderEnd = 4; // a side of the square
constexpr double leaderStep = 0.4; // of the way between neighbours, that it runs aslant
constexpr double leaderStepMost = 10;
constexpr double leaderClear = 24; // of the corners of items

constexpr double nodeSize = 9;
constexpr double leastNodeSize = 8; // pixels

constexpr double hazardWidth = 6;
constexpr double hazardGap = 26; // from the items

/// How far the nearest other item is, along the farther of both ways.
double clearance(const SceneOrnament& on, const QRectF& frame)
{
    double least = 1e6;
    for (const SceneItem& item : on.items()) {
        if (item.frame == frame)
            continue;
        const double across = std::max(item.frame.left() - frame.right(), frame.left() - item.frame.right());
        const double down = std::max(item.frame.top() - frame.bottom(), frame.top() - item.frame.bottom());
        least = std::min(least, std::max({across, down, 0.0}));
    }
    return least;
}

/// The corners of an item that have room.
void bracketsAround(SceneOrnament& on, const SkinStyle& style, const QRectF& frame)
{
    const double gap = std::min(on.scaled(bracketGap), bracketShare * clearance(on, frame));
    if (gap < on.scaled(leastGap))
        return;
    const double leg = on.scaled(bracketLeg);
    const QRectF box = frame.adjusted(-gap, -gap, gap, gap);
    const QPen pen = flatPen(faded(style.accent, bracketInk), on.scaled(bracketLine));
    for (const double down : {1.0, -1.0}) {
        for (const double in : {1.0, -1.0}) {
            const QPointF corner(in > 0 ? box.left() : box.right(), down > 0 ? box.top() : box.bottom());
            on.line(u"bracket"_s,
                straightLine({corner + QPointF(0, down * leg), corner, corner + QPointF(in * leg, 0)}), pen);
        }
    }
}

/// Over the upper edge of an item, from the end of its bracket on.
void node(SceneOrnament& on, const SkinStyle& style, const QRectF& frame, qsizetype number)
{
    const double size = std::max(leastNodeSize, on.scaled(nodeSize));
    const TextStyle letters = style.caption().sized(size).coloured(style.soft);
    const double gap = std::min(on.scaled(bracketGap), bracketShare * clearance(on, frame));
    const Box line(
        frame.left() + on.scaled(bracketLeg), frame.top() - std::max(gap, size) - size / 2, frame.width() / 2, size);
    on.label(u"node"_s, line, u"NODE "_s + u"%1"_s.arg(number, 2, 10, QChar(u'0')), letters);
}

/// The way from one item to another, and which side of that it comes to.
struct Leader {
    QPolygonF way{};
    QPointF outwards{};

    Leader transposed() const
    {
        Leader other{{}, outwards.transposed()};
        for (const QPointF& point : way)
            other.way.append(point.transposed());
        return other;
    }
};

/// From side to side: straight lines, and one of 45 degrees between them. None where it were too steep for that.
std::optional<Leader> leaderAcross(const QRectF& one, const QRectF& other, double clear, double mostStep)
{
    const bool isForwards = one.right() < other.left();
    if (!isForwards && one.left() <= other.right())
        return std::nullopt;
    const double from = isForwards ? one.right() : one.left();
    const double to = isForwards ? other.left() : other.right();
    const double top = std::max(one.top(), other.top());
    const double bottom = std::min(one.bottom(), other.bottom());
    const double step = std::min(leaderStep * std::abs(to - from), mostStep) / 2;
    double leaves = (top + bottom) / 2 - step;
    double arrives = (top + bottom) / 2 + step;
    if (bottom - top < 2 * clear) {
        leaves = std::clamp(other.center().y(), one.top() + clear, one.bottom() - clear);
        arrives = std::clamp(one.center().y(), other.top() + clear, other.bottom() - clear);
    }
    const double rest = std::abs(to - from) - std::abs(arrives - leaves);
    if (rest < 0)
        return std::nullopt;
    const double straight = std::copysign(rest / 2, to - from);
    return Leader{{{from, leaves}, {from + straight, leaves}, {to - straight, arrives}, {to, arrives}},
        {isForwards ? -1.0 : 1.0, 0}};
}

/// The first way between two items that leads past all others.
std::optional<Leader> leader(const SceneOrnament& on, const QRectF& one, const QRectF& other)
{
    const auto turned = [](const QRectF& frame) {
        return QRectF(frame.topLeft().transposed(), frame.size().transposed());
    };
    const auto isClear = [&](const Leader& found) {
        const QPainterPath line = straightLine(found.way);
        return std::ranges::none_of(
            on.items(), [&](const SceneItem& item) { return comesNear(line, item.frame, -0.5); });
    };
    const double clear = on.scaled(leaderClear);
    const double step = on.scaled(leaderStepMost);
    if (auto across = leaderAcross(one, other, clear, step); across && isClear(*across))
        return across;
    if (auto down = leaderAcross(turned(one), turned(other), clear, step); down && isClear(down->transposed()))
        return down->transposed();
    return std::nullopt;
}

void drawLeader(SceneOrnament& on, const SkinStyle& style, const Leader& leader)
{
    const QColor colour = faded(style.accent2, leaderInk);
    const double half = on.scaled(leaderEnd) / 2;
    const QPointF end = leader.way.last() + leader.outwards * (half + 1);
    const Box square(end.x() - half, end.y() - half, 2 * half, 2 * half);
    on.line(u"leader"_s, straightLine(leader.way), flatPen(colour, on.scaled(leaderLine)));
    if (on.isFree(square)) {
        on.add(
            u"end"_s, square.inset(-1) & on.screen(),
            [](Canvas& canvas, const Box& box, const QColor& ink) { canvas.fill(box, ink); }, square, style.accent2);
    }
}

/// From the hero to all that it sees, and from those to what is behind them. Items that lie over each other are as one.
void leaders(SceneOrnament& on, const SkinStyle& style)
{
    QList<SceneItem> waiting = on.walk();
    QList<SceneItem> reached{waiting.takeFirst()};
    const auto reach = [&](const SceneItem& item) {
        const auto distance = [&](const SceneItem& from) {
            return QLineF(from.frame.center(), item.frame.center()).length();
        };
        std::ranges::stable_sort(reached.begin() + 1, reached.end(), {}, distance);
        for (const SceneItem& from : std::as_const(reached)) {
            const std::optional<Leader> found = leader(on, from.frame, item.frame);
            if (found)
                drawLeader(on, style, *found);
            if (found || from.frame.intersects(item.frame)) {
                reached.append(item);
                return true;
            }
        }
        return false;
    };
    while (waiting.removeIf(reach) > 0) { }
}

/// A warning along the left side of what stands there.
void hazard(SceneOrnament& on, const SkinStyle& style)
{
    const double gap = on.scaled(hazardGap);
    const double leftmost = on.bounds().left();
    QRectF column;
    for (const SceneItem& item : on.items()) {
        if (item.frame.left() <= leftmost + gap)
            column |= item.frame;
    }
    const QRectF strip(leftmost - gap, column.top(), on.scaled(hazardWidth), column.height());
    if (!on.isFree(strip.adjusted(-2, -2, 2, 2)))
        return;
    on.add(
        u"hazard"_s, strip,
        [](Canvas& canvas, const QRectF& area, const QColor& colour) {
            canvas.mapped(QTransform(0, 1, 1, 0, 0, 0),
                [&] { overdrive::hazardStrip(canvas, Box(area.y(), area.x(), area.height(), area.width()), colour); });
        },
        strip, style.accent);
}

} // namespace

/// Everything is under observation.
Scene overdriveScene(SceneOrnament on)
{
    const SkinStyle style = overdrive::makeStyle(on.accent());
    hazard(on, style);
    for (const SceneItem& item : on.items())
        bracketsAround(on, style, item.frame);
    qsizetype number = 0;
    for (const SceneItem& item : on.items())
        node(on, style, item.frame, ++number);
    leaders(on, style);
    return on.scene();
}

} // namespace ambrelle
