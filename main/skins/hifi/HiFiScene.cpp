// SPDX-License-Identifier: MIT

#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/hifi/Cabinet.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double railWidth = 6;
constexpr double railGap = 14; // from the column to the middle of a rail
constexpr double beyondColumn = 12; // of a rail's ends
constexpr double shortestRail = 40;
constexpr double railScrewPitch = 60;
constexpr double railScrewPlace = 9; // of the first one, from a rail's end
constexpr double railScrew = 2.1;
constexpr double fromEdges = 4; // of the screen

constexpr double leadWidth = 4;
constexpr double plugLength = 7;
constexpr double plugWidth = 6;
constexpr double jackRadius = 4.6;
constexpr double leastWay = 15; // across, between the ends of a lead
constexpr double steepest = 2.5; // way down in parts of that across
constexpr double leadReach = 8; // of what is painted around its line
const QColor rubber(0x1A, 0x12, 0x0B);

/// A patch lead: it leaves an item sideways and ends in the jack of a rail, or at the next item.
struct Lead {
    QPointF from; ///< on the item's edge
    QPointF to; ///< the jack's middle, or a place on the other item's edge
    bool endsOnRail = true;
    double unit = 1; ///< points of the screen for one point of the measures

    bool operator==(const Lead&) const = default;

    double side() const { return to.x() > from.x() ? 1 : -1; }
    QPointF start() const { return from + QPointF(side() * plugLength * unit, 0); }
    QPointF end() const { return endsOnRail ? to : to - QPointF(side() * plugLength * unit, 0); }
    QPainterPath line() const
    {
        const QPointF way = end() - start();
        const double sag = std::min(64.0, 12 + 0.1 * std::abs(way.x())) * unit;
        const QPointF along(way.x() * 0.32, 0);
        QPainterPath path(start());
        path.cubicTo(start() + along + QPointF(0, sag * 1.3), end() - along + QPointF(0, sag * 1.3), end());
        return path;
    }
};

void drawPlug(Canvas& canvas, QPointF edge, double side, double unit)
{
    const double length = plugLength * unit;
    const Box barrel(
        std::min(edge.x(), edge.x() + side * length), edge.y() - plugWidth * unit / 2, length, plugWidth * unit);
    canvas.fill(barrel,
        downwards(
            barrel, {{0, hifi::champagne.lighter(125)}, {0.4, hifi::champagne}, {1, hifi::champagne.darker(230)}}),
        1.2 * unit);
}

void drawLead(Canvas& canvas, const Lead& lead)
{
    const QPainterPath line = lead.line();
    const auto moved = [&](double x, double y) { return line.translated(x * lead.unit, y * lead.unit); };
    canvas.stroke(moved(1.5, 3), roundPen(faded(Qt::black, 0.28), leadWidth * lead.unit));
    if (lead.endsOnRail) {
        canvas.disc(lead.to + QPointF(0, 0.8 * lead.unit), (jackRadius + 0.6) * lead.unit, faded(Qt::black, 0.5));
        const double radius = jackRadius * lead.unit;
        canvas.disc(lead.to, radius,
            radial(lead.to, radius * 1.6, lead.to - QPointF(radius, radius) * 0.4,
                {{0, hifi::champagne.lighter(135)}, {1, hifi::champagne.darker(190)}}));
    } else {
        drawPlug(canvas, lead.to, -lead.side(), lead.unit);
    }
    canvas.stroke(line, roundPen(rubber, leadWidth * lead.unit));
    canvas.stroke(moved(-0.4, -0.9), roundPen(faded(hifi::pale, 0.4), lead.unit));
    drawPlug(canvas, lead.from, lead.side(), lead.unit);
}

/// False where something stands in its way.
bool addLead(SceneOrnament& on, const Lead& lead)
{
    const QPainterPath line = lead.line();
    const double reach = leadReach * lead.unit;
    const QRectF place =
        line.boundingRect().united(QRectF(lead.from, lead.to).normalized()).adjusted(-reach, -reach, reach, reach);
    const QPointF way = lead.to - lead.from;
    if (std::abs(way.x()) < leastWay * lead.unit || std::abs(way.y()) > steepest * std::abs(way.x())
        || !on.screen().contains(place))
        return false;
    for (const SceneItem& item : on.items()) {
        if (comesNear(line, item.frame, leadWidth * lead.unit / 2 + 1))
            return false;
    }
    on.add(
        u"lead"_s, place, [](Canvas& canvas, const Lead& drawn) { drawLead(canvas, drawn); }, lead);
    return true;
}

void addRail(SceneOrnament& on, const QRectF& rail)
{
    const double unit = on.scaled(1);
    on.add(
        u"rail"_s, rail.adjusted(-1, -1, 3 * unit + 1, 3 * unit + 1),
        [](Canvas& canvas, const Box& bar, double scale) {
            canvas.fill(bar.moved(2 * scale, 2 * scale), faded(Qt::black, 0.3), 1.5 * scale);
            canvas.fill(bar,
                across(bar,
                    {{0, hifi::champagne.darker(180)}, {0.3, hifi::champagne.lighter(122)}, {0.55, hifi::champagne},
                        {1, hifi::champagne.darker(215)}}),
                1.5 * scale);
            SeededRandom random{seedOf(u"hifi")};
            const double rest = bar.height() - 2 * railScrewPlace * scale;
            const int screws = std::max(1, static_cast<int>(std::lround(rest / (railScrewPitch * scale))));
            for (int index = 0; index <= screws; ++index) {
                const double y = bar.top() + railScrewPlace * scale + rest * index / screws;
                hifi::screw(canvas, {bar.center().x(), y}, railScrew * scale, random.in(0, 180));
            }
        },
        Box(rail), unit);
}

/// Down one side of the column, in the middle of the gap where a narrow one follows; what items leave of it.
QList<QRectF> addRails(SceneOrnament& on, const QRectF& column, bool isLeft)
{
    double gap = 2 * on.scaled(railGap);
    for (const SceneItem& item : on.items()) {
        const double apart = isLeft ? column.left() - item.frame.right() : item.frame.left() - column.right();
        if (apart >= 0 && item.frame.top() < column.bottom() && item.frame.bottom() > column.top())
            gap = std::min(gap, apart);
    }
    const double x = isLeft ? column.left() - gap / 2 : column.right() + gap / 2;
    const double half = on.scaled(railWidth) / 2;
    const double beyond = on.scaled(beyondColumn);
    QPainterPath line({x, column.top() - beyond});
    line.lineTo(x, column.bottom() + beyond);
    QList<QRectF> rails;
    for (const QPolygonF& piece : on.outside(line, half + 1, half + fromEdges).toSubpathPolygons()) {
        const QRectF rail = piece.boundingRect().adjusted(-half, 0, half, 0);
        if (rail.height() < on.scaled(shortestRail))
            continue;
        addRail(on, rail);
        rails.append(rail);
    }
    return rails;
}

/// From an item to the rail, or where another one stands in the way to that one.
void connect(SceneOrnament& on, const SceneItem& item, const QList<QRectF>& rails, bool isLeft)
{
    constexpr std::array heights{0.5, 0.64, 0.36, 0.8, 0.2};
    const QRectF& frame = item.frame;
    const double x = isLeft ? frame.right() : frame.left();
    const double clear = on.scaled(railScrewPlace + railScrewPitch / 4);
    for (const double height : heights) {
        const double y = frame.top() + frame.height() * height;
        for (const QRectF& rail : rails) {
            const double end = std::clamp(
                y, rail.top() + std::min(clear, rail.height() / 2), rail.bottom() - std::min(clear, rail.height() / 2));
            if (addLead(on, {{x, y}, {rail.center().x(), end}, true, on.scaled(1)}))
                return;
        }
    }
    for (const SceneItem& other : on.items()) {
        const double near = isLeft ? other.frame.left() : other.frame.right();
        const double top = std::max(frame.top(), other.frame.top());
        const double bottom = std::min(frame.bottom(), other.frame.bottom());
        const double y = (top + bottom) / 2 - on.scaled(6);
        if ((isLeft ? near > x : near < x) && bottom - top > on.scaled(40)
            && addLead(on, {{x, y}, {near, y}, false, on.scaled(1)}))
            return;
    }
}

} // namespace

/// A rack: brass rails beside the column of the widest instruments, and leads from the others to their jacks.
Scene hifiScene(SceneOrnament on)
{
    const QList<QList<SceneItem>> columns = on.columns();
    const auto widest = std::ranges::max_element(columns, {}, [](const QList<SceneItem>& column) {
        return std::ranges::max_element(column, {}, [](const SceneItem& item) {
            return item.frame.width();
        })->frame.width();
    });
    QRectF column;
    for (const SceneItem& item : *widest)
        column |= item.frame;
    const QList<QRectF> left = addRails(on, column, true);
    const QList<QRectF> right = addRails(on, column, false);
    for (const SceneItem& item : on.items()) {
        if (item.frame.right() < column.left())
            connect(on, item, left, true);
        else if (item.frame.left() > column.right())
            connect(on, item, right, false);
    }
    return on.scene();
}

} // namespace ambrelle
