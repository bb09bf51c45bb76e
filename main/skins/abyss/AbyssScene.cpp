// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/abyss/AbyssPieces.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <numeric>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double pipeWidth = 9; // points
constexpr double pipeBend = 14;
constexpr double flangeDepth = 5;
constexpr double flangeWidth = 15;
constexpr double longestPipe = 360;
constexpr double wheelRadius = 16;
constexpr int spokesOfWheel = 6;
constexpr double spareRoom = 0.5; // between a pipe and the items that it begins at

/// The items that pipes hold together so far.
class Joined {
public:
    explicit Joined(const QList<SceneItem>& items)
        : m_items(items)
        , m_groups(items.size())
    {
        std::iota(m_groups.begin(), m_groups.end(), 0);
    }
    bool are(const SceneItem& one, const SceneItem& other) const { return of(one) == of(other); }
    void join(const SceneItem& one, const SceneItem& other)
    {
        const qsizetype old = of(one);
        const qsizetype now = of(other);
        std::ranges::replace(m_groups, old, now);
    }

private:
    qsizetype of(const SceneItem& item) const { return m_groups[m_items.indexOf(item)]; }

    QList<SceneItem> m_items;
    QList<qsizetype> m_groups;
};

double lengthOf(const QPolygonF& run)
{
    double sum = 0;
    for (qsizetype index = 1; index < run.size(); ++index)
        sum += QLineF(run[index - 1], run[index]).length();
    return sum;
}

/// The room of a straight piece with its flanges.
QRectF roomOf(QPointF from, QPointF to, double half)
{
    const bool lies = std::abs(to.x() - from.x()) > std::abs(to.y() - from.y());
    const QRectF line = QRectF(from, to).normalized();
    return lies ? line.adjusted(spareRoom, -half, -spareRoom, half) : line.adjusted(-half, spareRoom, half, -spareRoom);
}

QPointF unitFrom(QPointF from, QPointF to)
{
    return (to - from) / std::max(1e-6, QLineF(from, to).length());
}

void flange(Canvas& canvas, QPointF end, QPointF inwards, double unit)
{
    const bool lies = std::abs(inwards.x()) > 0.5;
    const double depth = flangeDepth * unit;
    const double width = flangeWidth * unit;
    const Box box =
        Box(QRectF(end + inwards * depth / 2, QSizeF())).centred(lies ? depth : width, lies ? width : depth);
    const QGradientStops brass{
        {0, abyss::brassDark}, {0.3, abyss::rivetBrass}, {0.6, abyss::strip}, {1, abyss::brassDark.darker(160)}};
    canvas.fill(box, lies ? downwards(box, brass) : across(box, brass), unit);
    canvas.frame(box, QPen(faded(abyss::stamped, 0.5), 0.6), unit);
}

/// Brass lit from the upper left.
void drawPipe(Canvas& canvas, const QPolygonF& run, double unit)
{
    const QPointF first = unitFrom(run.first(), run[1]);
    const QPointF last = unitFrom(run.last(), run[run.size() - 2]);
    QPolygonF inner = run;
    inner.first() += first * 2 * unit;
    inner.last() += last * 2 * unit;
    const QPainterPath course = bentLine(inner, pipeBend * unit);
    const auto layer = [&](const QColor& colour, double width, double lit) {
        canvas.stroke(course.translated(-lit * unit, -lit * unit),
            QPen(colour, width * unit, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    };
    layer(faded(Qt::black, 0.3), pipeWidth + 2, 0);
    layer(abyss::brassDark.darker(150), pipeWidth, 0);
    layer(abyss::brassDark, pipeWidth - 1.6, 0.3);
    layer(abyss::strip, pipeWidth - 3.6, 0.7);
    layer(abyss::brassLight, 2.2, 1.4);
    layer(faded(Qt::white, 0.45), 0.7, 1.7);
    flange(canvas, run.first(), first, unit);
    flange(canvas, run.last(), last, unit);
}

bool addPipe(SceneOrnament& on, const QPolygonF& run)
{
    const double half = on.scaled(flangeWidth) / 2 + 1;
    for (qsizetype index = 1; index < run.size(); ++index) {
        if (!on.isFree(roomOf(run[index - 1], run[index], half)))
            return false;
    }
    for (qsizetype index = 1; index < run.size(); ++index)
        on.reserve(roomOf(run[index - 1], run[index], half));
    on.addAlong(
        u"pipe"_s, straightLine(run), half,
        [](Canvas& canvas, const QPolygonF& course, double unit) { drawPipe(canvas, course, unit); }, run,
        on.scaled(1));
    return true;
}

/// From the side of the one to the upper or lower edge of the other, if there is room for the bend.
QPolygonF elbow(const SceneOrnament& on, const SceneItem& from, const SceneItem& to)
{
    const QPointF corner(to.frame.center().x(), from.frame.center().y());
    const QPointF start = SceneLayout::edge(from, corner);
    const QPointF end = SceneLayout::edge(to, corner);
    const double least = on.scaled(pipeBend + flangeDepth + 2);
    const bool leaves = !from.frame.contains(corner) && !to.frame.contains(corner);
    if (!leaves || QLineF(start, corner).length() < least || QLineF(corner, end).length() < least)
        return {};
    return {start, corner, end};
}

struct Way {
    SceneItem from;
    SceneItem to;
    QPolygonF run;

    double length() const { return lengthOf(run); }
};

QList<Way> straightWays(const SceneOrnament& on)
{
    QList<Way> ways;
    for (const SceneGutter& gutter : on.gutters(Qt::Horizontal, longestPipe)) {
        const double y = gutter.area.center().y();
        ways.append({gutter.before, gutter.after, {{gutter.area.left(), y}, {gutter.area.right(), y}}});
    }
    for (const SceneGutter& gutter : on.gutters(Qt::Vertical, longestPipe)) {
        const double x = gutter.area.center().x();
        ways.append({gutter.before, gutter.after, {{x, gutter.area.top()}, {x, gutter.area.bottom()}}});
    }
    return ways;
}

QList<Way> bentWays(const SceneOrnament& on)
{
    QList<Way> ways;
    for (const SceneItem& from : on.items()) {
        for (const SceneItem& to : on.items()) {
            if (const QPolygonF run = elbow(on, from, to); !run.isEmpty())
                ways.append({from, to, run});
        }
    }
    return ways;
}

/// Straight pipes between those that face each other, the short ones first, then elbows; never a second way.
QList<QPolygonF> pipes(SceneOrnament& on)
{
    const double least = on.scaled(2 * flangeDepth);
    const double most = on.scaled(longestPipe);
    Joined joined(on.items());
    QList<QPolygonF> runs;
    for (QList<Way> ways : {straightWays(on), bentWays(on)}) {
        std::ranges::stable_sort(ways, {}, &Way::length);
        for (const Way& way : std::as_const(ways)) {
            const bool fits = way.length() >= least && way.length() <= most;
            if (!fits || joined.are(way.from, way.to) || !addPipe(on, way.run))
                continue;
            joined.join(way.from, way.to);
            runs.append(way.run);
        }
    }
    return runs;
}

void drawWheel(Canvas& canvas, QPointF centre, double radius)
{
    const double rim = radius * 0.24;
    const Box ring = squareAbout(centre, radius - rim / 2);
    canvas.disc(centre, radius, faded(abyss::stamped, 0.3));
    for (int spoke = 0; spoke < spokesOfWheel; ++spoke) {
        const QPointF end = pointOn(centre, radius - rim, (spoke + 0.5) / spokesOfWheel);
        canvas.line(centre, end, flatPen(abyss::brassDark.darker(150), radius * 0.2));
        canvas.line(centre, end, flatPen(abyss::brassLight, radius * 0.1));
    }
    canvas.stroke(arc(ring, 0, 1), QPen(abyss::brassDark.darker(160), rim));
    canvas.stroke(arc(ring, 0, 1),
        QPen(linear(ring.topLeft(), ring.bottomRight(),
                 {{0, abyss::rivetBrass}, {0.45, abyss::strip}, {1, abyss::brassDark}}),
            rim * 0.7));
    abyss::rivet(canvas, centre, radius * 0.26);
}

/// On the longest straight piece.
void valve(SceneOrnament& on, const QList<QPolygonF>& runs)
{
    QLineF longest;
    for (const QPolygonF& run : runs) {
        for (qsizetype index = 1; index < run.size(); ++index) {
            if (const QLineF piece(run[index - 1], run[index]); piece.length() > longest.length() + 0.5)
                longest = piece;
        }
    }
    const double radius = on.scaled(wheelRadius);
    const QRectF place = squareAbout(longest.center(), radius + 1);
    const bool apart =
        std::ranges::none_of(on.items(), [&](const SceneItem& item) { return item.frame.intersects(place); });
    if (longest.length() < 2 * (radius + on.scaled(flangeDepth)) || !apart || !on.screen().contains(place))
        return;
    on.add(
        u"valve"_s, place, [](Canvas& canvas, QPointF centre, double size) { drawWheel(canvas, centre, size); },
        longest.center(), radius);
}

} // namespace

/// The boat's plumbing: brass pipes that hold all gauges together, and one valve.
Scene abyssScene(SceneOrnament on)
{
    valve(on, pipes(on));
    return on.scene();
}

} // namespace ambrelle
