// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Gradients.h"
#include "skins/night/NightLook.h"
#include "skins/SceneRecipes.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double threadWidth = 1.2; // points
constexpr double threadAlpha = 0.7;
constexpr double lightWidth = 4;
constexpr double lightAlpha = 0.08;
constexpr double beadRadius = 2.5;
constexpr double beadLight = 2.6; // in radii
constexpr double tail = 90; // beyond the first and the last item
constexpr double tailFall = 16;
constexpr double leastTail = 40; // on the screen
constexpr int straightenings = 8; // of the walk, at most
constexpr int mostStraightened = 60; // items: where more stand, little of the thread shows
constexpr double leastBeaded = 8; // length of a stretch
constexpr double beadsApart = 12;

/// The edge of a slab, spread over all items: 0 is their left end.
QColor iridescence(const NightLook& look, double part)
{
    return part < 0.5 ? blended(look.accent3, look.accent, std::max(0.0, 2 * part))
                      : blended(look.accent, look.accent2, std::min(1.0, 2 * part - 1));
}

/// The walk through all items without its detours: a stretch is walked backwards wherever that is shorter.
QList<SceneItem> shortWalk(const SceneOrnament& on)
{
    QList<SceneItem> way = on.walk();
    const auto leg = [&](qsizetype from, qsizetype to) {
        return from < 0 || to >= way.size() ? 0
                                            : QLineF(way.at(from).frame.center(), way.at(to).frame.center()).length();
    };
    bool isShorter = true;
    for (int round = 0; isShorter && round < straightenings && way.size() <= mostStraightened; ++round) {
        isShorter = false;
        for (qsizetype first = 0; first < way.size(); ++first) {
            for (qsizetype last = first + 1; last < way.size(); ++last) {
                const double before = leg(first - 1, first) + leg(last, last + 1);
                if (leg(first - 1, last) + leg(first, last + 1) > before - 1)
                    continue;
                std::reverse(way.begin() + first, way.begin() + last + 1);
                isShorter = true;
            }
        }
    }
    return way;
}

/// 1 where the thread leaves the end of the walk to the right, -1 to the left.
double inwards(QPointF end, QPointF next)
{
    return next.x() < end.x() ? -1 : 1;
}

/// A line through the points that has no corners. It leaves each of them the way from the one before to the next, and
/// is level at both ends.
QPainterPath threadThrough(const QPolygonF& points)
{
    const qsizetype last = points.size() - 1;
    const auto length = [&](qsizetype leg) { return QLineF(points[leg], points[leg + 1]).length(); };
    const auto heading = [&](qsizetype index) {
        if (index == 0)
            return QPointF(inwards(points[0], points[1]) * length(0), 0);
        if (index == last)
            return QPointF(-inwards(points[last], points[last - 1]) * length(last - 1), 0);
        const QPointF way = points[index + 1] - points[index - 1];
        const double whole = QLineF({}, way).length();
        return whole > 0 ? way * (std::min(length(index - 1), length(index)) / whole) : QPointF();
    };
    QPainterPath path(points.first());
    for (qsizetype index = 1; index <= last; ++index)
        path.cubicTo(points[index - 1] + heading(index - 1) / 3, points[index] - heading(index) / 3, points[index]);
    return path;
}

/// What shows of a part of the thread between the items; each stretch is a mark of its own.
QList<QPainterPath> addThread(SceneOrnament& on, const QPainterPath& part, const QBrush& ink, const QBrush& light)
{
    const double reach = on.scaled(lightWidth) / 2 + 1;
    const QPainterPath shown = on.outside(part, on.scaled(threadWidth), reach);
    QList<QPainterPath> stretches;
    if (shown == part) // a curve yet
        stretches.append(shown);
    else
        for (const QPolygonF& stretch : shown.toSubpathPolygons())
            stretches.append(straightLine(stretch));
    for (const QPainterPath& stretch : std::as_const(stretches)) {
        on.addAlong(
            u"thread"_s, stretch, reach,
            [](Canvas& canvas, const QPainterPath& way, const QBrush& colour, const QBrush& around, double scale) {
                canvas.stroke(way, QPen(around, lightWidth * scale, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
                canvas.stroke(way, QPen(colour, threadWidth * scale, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
            },
            stretch, ink, light, on.scaled(1));
    }
    return stretches;
}

/// A bead in the middle of each gap that the thread shows in.
void beads(SceneOrnament& on, const NightLook& look, const QList<QPainterPath>& stretches)
{
    const double radius = on.scaled(beadRadius);
    const double light = radius * beadLight;
    const QRectF all = on.bounds();
    for (const QPainterPath& stretch : stretches) {
        const QPointF centre = stretch.pointAtPercent(0.5);
        const QRectF place = squareAbout(centre, light + 1);
        if (stretch.length() < on.scaled(leastBeaded) || !on.isFree(squareAbout(centre, radius + 1))
            || !on.screen().contains(place))
            continue;
        const QColor colour = iridescence(look, (centre.x() - all.left()) / all.width());
        on.add(
            u"bead"_s, place,
            [](Canvas& canvas, QPointF at, double size, const QColor& glass, const QColor& glint) {
                canvas.disc(at, size * beadLight, halo(at, size * beadLight, glass, 0.35));
                canvas.disc(at, size, glint);
            },
            centre, radius, colour, blended(colour, look.ink, 0.6));
        on.reserve(squareAbout(centre, on.scaled(beadsApart)));
    }
}

/// An end of the thread, which comes out at a side of the item and fades away; false where others stand.
bool looseEnd(SceneOrnament& on, const NightLook& look, const SceneItem& item, double sign)
{
    const QPointF from = SceneLayout::edge(item, sign < 0 ? Qt::LeftEdge : Qt::RightEdge);
    const QPointF out(sign * on.scaled(tail), 0);
    const QPointF to = from + out + QPointF(0, on.scaled(tailFall));
    const QRectF room = QRectF(from + QPointF(sign, 0), to).normalized() & on.screen();
    if (!on.isFree(room) || room.width() < on.scaled(leastTail))
        return false;
    QPainterPath path(from);
    path.cubicTo(from + out * 0.5, to - out * 0.4, to);
    const QColor colour = iridescence(look, (from.x() - on.bounds().left()) / on.bounds().width());
    const auto fading = [&](double alpha) {
        return linear(from, from + out, {{0, faded(colour, alpha)}, {1, faded(colour, 0)}});
    };
    addThread(on, path, fading(threadAlpha), fading(lightAlpha));
    return true;
}

/// The thread's end on the side that it does not leave to, or on the other one.
void looseEnd(SceneOrnament& on, const NightLook& look, const SceneItem& item, const SceneItem& next)
{
    const double sign = -inwards(item.frame.center(), next.frame.center());
    if (!looseEnd(on, look, item, sign))
        looseEnd(on, look, item, -sign);
}

} // namespace

/// A thread from slab to slab in the colours of their edges, on the shortest way.
Scene obsidianScene(SceneOrnament on)
{
    const NightLook look = NightLook::of(Skin::obsidian, on.accent());
    const QList<SceneItem> stops = shortWalk(on);
    if (stops.size() == 1) {
        looseEnd(on, look, stops.first(), -1);
        looseEnd(on, look, stops.first(), 1);
        return on.scene();
    }
    QPolygonF centres;
    for (const SceneItem& item : stops)
        centres.append(item.frame.center());
    const auto brush = [&](double alpha) {
        QGradientStops colours;
        for (const double part : {0.0, 0.5, 1.0})
            colours.append({part, faded(iridescence(look, part), alpha)});
        return linear(on.bounds().topLeft(), on.bounds().topRight(), colours);
    };
    const QList<QPainterPath> shown = addThread(on, threadThrough(centres), brush(threadAlpha), brush(lightAlpha));
    looseEnd(on, look, stops.first(), stops[1]);
    looseEnd(on, look, stops.last(), stops[stops.size() - 2]);
    beads(on, look, shown);
    return on.scene();
}

} // namespace ambrelle
