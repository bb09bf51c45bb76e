// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "skins/minimal/MinimalLook.h"
#include "skins/SceneRecipes.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double markInk = 0.35;
constexpr double markWidth = 1; // points
constexpr double crossArm = 5;
constexpr double leastArm = 2;
constexpr double widestGap = 60; // that is marked
constexpr double fromPlates = 14; // of dimension lines
constexpr double deepest = 60; // that an item may lie behind the outermost one to be measured
constexpr double tick = 3; // to either side
constexpr double figureSize = 9;
constexpr double figureGap = 4; // between a figure and its line
constexpr double keyRadius = 4;

/// Between two pixels, so that lines of one point are crisp.
double crisp(double place)
{
    return std::floor(place) + 0.5;
}

double outsideOf(double place, double from, double to)
{
    return std::abs(place - std::clamp(place, from, to));
}

/// Whether the two gutters meet: they part the same items, or the end of one is at the other.
bool meet(const SceneGutter& upright, const SceneGutter& level, QPointF at)
{
    const bool isShared = upright.before == level.before || upright.before == level.after
        || upright.after == level.before || upright.after == level.after;
    return isShared && outsideOf(at.y(), upright.area.top(), upright.area.bottom()) <= level.area.height()
        && outsideOf(at.x(), level.area.left(), level.area.right()) <= upright.area.width();
}

void crosses(SceneOrnament& on, const QPen& pen)
{
    const QList<SceneGutter> levels = on.gutters(Qt::Vertical, widestGap);
    for (const SceneGutter& upright : on.gutters(Qt::Horizontal, widestGap)) {
        for (const SceneGutter& level : levels) {
            const QPointF at(crisp(upright.area.center().x()), crisp(level.area.center().y()));
            const double room = std::min(upright.area.width(), level.area.height()) / 2 - 1;
            const double arm = std::min(on.scaled(crossArm), room);
            const QRectF place = squareAbout(at, arm);
            if (arm < leastArm || !meet(upright, level, at) || !on.isFree(place))
                continue;
            QPainterPath cross(QPointF(at.x() - arm, at.y()));
            cross.lineTo(at.x() + arm, at.y());
            cross.moveTo(at.x(), at.y() - arm);
            cross.lineTo(at.x(), at.y() + arm);
            on.line(u"cross"_s, cross, pen);
            on.reserve(place);
        }
    }
}

/// A length along an edge of all items, told in the middle of its line.
void dimension(SceneOrnament& on, const MinimalLook& look, const QPen& pen, QPointF from, QPointF to, double length)
{
    const bool isLevel = from.y() == to.y();
    const double half = on.scaled(tick);
    const QPointF across = isLevel ? QPointF(0, half) : QPointF(half, 0);
    const TextStyle figures{.face = look.body,
        .size = std::max(figureSize, on.scaled(figureSize)),
        .colour = look.soft,
        .align = Align::centre};
    const QString text = QString::number(qRound(length));
    const double width = shape(figures.face, figures.size, text)->width + 1;
    const QPointF middle = (from + to) / 2;
    if (!on.label(u"length"_s,
            squareAbout(middle, 0).adjusted(-width / 2, -figures.size / 2, width / 2, figures.size / 2), text, figures))
        return;
    const double gap = (isLevel ? width : figures.size) / 2 + figureGap;
    const QPointF apart = isLevel ? QPointF(gap, 0) : QPointF(0, gap);
    QPainterPath path;
    for (const auto& [start, end] : {std::pair(from, middle - apart), {middle + apart, to},
             {from - across, from + across}, {to - across, to + across}}) {
        path.moveTo(start);
        path.lineTo(end);
    }
    on.line(u"dimension"_s, path, pen);
}

/// The widths of what stands at the upper edge of all items, and the heights of what stands at the left one.
void dimensions(SceneOrnament& on, const MinimalLook& look, const QPen& pen)
{
    const double reach = on.scaled(tick) + 1;
    const double y = crisp(on.bounds().top() - on.scaled(fromPlates));
    const double x = crisp(on.bounds().left() - on.scaled(fromPlates));
    for (const SceneItem& item : on.items()) {
        const QRectF& frame = item.frame;
        const QRectF above(QPointF(frame.left(), y - reach), frame.topRight());
        if (frame.top() - on.bounds().top() < on.scaled(deepest) && on.isFree(above)) {
            dimension(on, look, pen, {crisp(frame.left()), y}, {crisp(frame.right() - 1), y}, frame.width());
            on.reserve(above);
        }
        const QRectF beside(QPointF(x - reach, frame.top()), frame.bottomLeft());
        if (frame.left() - on.bounds().left() < on.scaled(deepest) && on.isFree(beside)) {
            dimension(on, look, pen, {x, crisp(frame.top())}, {x, crisp(frame.bottom() - 1)}, frame.height());
            on.reserve(beside);
        }
    }
}

/// The key of the drawing at the upper left of the hero: where the dimension lines would meet, or nearer.
void key(SceneOrnament& on, const QColor& colour)
{
    const double radius = on.scaled(keyRadius);
    for (const double away : {fromPlates, 10.0, 5.0}) {
        const QPointF centre = on.hero().frame.topLeft() - QPointF(on.scaled(away), on.scaled(away));
        if (!on.dot(u"key"_s, centre, radius, colour))
            continue;
        on.reserve(squareAbout(centre, radius + 2));
        return;
    }
}

Scene fieldMarks(SceneOrnament on, Skin skin)
{
    const MinimalLook look = MinimalLook::original(skin).accented(on.accent());
    const QPen pen = flatPen(faded(look.ink, markInk), on.scaled(markWidth));
    dimensions(on, look, pen);
    key(on, look.accent);
    crosses(on, pen);
    return on.scene();
}

} // namespace

/// The drawing that the instruments were built from: their measures, and marks where the gaps between them cross.
Scene fieldScene(SceneOrnament on)
{
    return fieldMarks(std::move(on), Skin::field);
}

Scene fieldDarkScene(SceneOrnament on)
{
    return fieldMarks(std::move(on), Skin::fieldDark);
}

} // namespace ambrelle
