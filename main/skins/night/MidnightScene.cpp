// SPDX-License-Identifier: MIT

#include "drawing/Gradients.h"
#include "skins/night/NightLook.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <limits>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double flowWidth = 2; // points
constexpr double flowAlpha = 0.45;
constexpr double flowLight = 8; // width of the light around it
constexpr double flowLightAlpha = 0.07;
constexpr double portRadius = 3;
constexpr double portGap = 2; // between an item and its port
constexpr double narrow = 20; // way between two items, from which on ports are smaller
constexpr double shortest = 8;
constexpr double steepestFlow = 2; // descent in parts of the way
constexpr double fromOthers = 4; // of a flow that passes an item

/// A flow from the right edge of one item to the left edge of another.
struct Flow {
    SceneItem from;
    SceneItem to;

    QPointF start() const { return SceneLayout::edge(from, Qt::RightEdge); }
    QPointF end() const { return SceneLayout::edge(to, Qt::LeftEdge); }
    /// How far apart the two are; farther where the one lies above the other. Infinite where nothing can flow.
    double effort(double least) const
    {
        const QPointF way = end() - start();
        if (way.x() < least || std::abs(way.y()) > steepestFlow * way.x())
            return std::numeric_limits<double>::infinity();
        return way.x() + 2 * std::abs(way.y());
    }
    bool operator==(const Flow&) const = default;
};

QPainterPath courseOf(QPointF from, QPointF to)
{
    const double middle = (from.x() + to.x()) / 2;
    QPainterPath path(from);
    path.cubicTo({middle, from.y()}, {middle, to.y()}, to);
    return path;
}

bool isClear(const SceneOrnament& on, const Flow& flow)
{
    const QPainterPath course = courseOf(flow.start(), flow.end());
    const double apart = on.scaled(fromOthers);
    const QRectF around = course.boundingRect().adjusted(-apart, -apart, apart, apart);
    return std::ranges::none_of(on.items(), [&](const SceneItem& item) {
        return item != flow.from && item != flow.to && item.frame.intersects(around)
            && comesNear(course, item.frame, apart);
    });
}

/// From each item to the next one at its right, and to each from the next one at its left, where nothing is between.
QList<Flow> flows(const SceneOrnament& on)
{
    QList<Flow> all;
    const auto add = [&](const SceneItem& item, bool rightwards) {
        std::optional<Flow> best;
        double least = std::numeric_limits<double>::infinity();
        for (const SceneItem& other : on.items()) {
            const Flow flow = rightwards ? Flow{item, other} : Flow{other, item};
            if (const double effort = flow.effort(on.scaled(shortest)); effort < least) {
                least = effort;
                best = flow;
            }
        }
        if (best && !all.contains(*best) && isClear(on, *best))
            all.append(*best);
    };
    for (const SceneItem& item : on.items()) {
        add(item, true);
        add(item, false);
    }
    return all;
}

void addFlow(SceneOrnament& on, const NightLook& look, const Flow& flow)
{
    const double room = std::min(1.0, (flow.end().x() - flow.start().x()) / on.scaled(narrow));
    const double radius = on.scaled(portRadius) * room;
    const QPointF beside(radius + on.scaled(portGap) * room, 0);
    const QPointF from = flow.start() + beside;
    const QPointF to = flow.end() - beside;
    const auto pen = [&](double alpha, double width) {
        const QBrush brush = linear(from, to, {{0, faded(look.accent2, alpha)}, {1, faded(look.accent3, alpha)}});
        return QPen(brush, on.scaled(width), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    };
    const QPainterPath course = courseOf(from, to);
    on.line(u"light"_s, course, pen(flowLightAlpha, flowLight));
    on.line(u"flow"_s, course, pen(flowAlpha, flowWidth));
    on.dot(u"port"_s, from, radius, look.accent2);
    on.dot(u"port"_s, to, radius, look.accent3);
}

} // namespace

/// What flows from one card to the next.
Scene midnightScene(SceneOrnament on)
{
    const NightLook look = NightLook::of(Skin::midnight, on.accent());
    for (const Flow& flow : flows(on))
        addFlow(on, look, flow);
    return on.scene();
}

} // namespace ambrelle
