// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Ribbon.h"
#include "skins/groove/GroovePieces.h"
#include "skins/groove/GrooveStyle.h"
#include "skins/SceneRecipes.h"

#include <QLineF>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double rainbowStripe = 9;
constexpr double rainbowPitch = 12;
constexpr double rainbowInset = 85; // from the bounds: through the middles of the outer items
constexpr double flattest = 60; // height of an arch that is still one
constexpr double sunRadius = 14;
constexpr double sunReach = 2.2; // of its rays, in parts of the radius
constexpr double sunAbove = 6; // of its middle above the item
constexpr int arcSteps = 96;

QPointF onArch(const QRectF& room, double turn) // from the lower left (0) over the top to the lower right (1)
{
    const double angle = std::numbers::pi * turn;
    return {room.center().x() - std::cos(angle) * room.width() / 2, room.bottom() - std::sin(angle) * room.height()};
}

bool isBehindItem(const SceneOrnament& on, QPointF point)
{
    return std::ranges::any_of(on.items(), [&](const SceneItem& item) { return item.frame.contains(point); });
}

/// The middle line of the rainbow, from left to right: an arch that begins and ends behind items, or else a bow from
/// the outermost item on the left to that on the right.
QPolygonF rainbowLine(const SceneOrnament& on)
{
    const double inset = on.scaled(rainbowInset);
    const QRectF room = on.bounds().adjusted(inset, inset, -inset, -inset);
    const double least = on.scaled(flattest);
    if (room.width() > least && room.height() > least && isBehindItem(on, onArch(room, 0))
        && isBehindItem(on, onArch(room, 1))) {
        QPolygonF points;
        for (int step = 0; step <= arcSteps; ++step)
            points.append(onArch(room, static_cast<double>(step) / arcSteps));
        return points;
    }
    return on.bow(least);
}

/// The line moved to its left by so many points.
QPolygonF beside(const QPolygonF& line, double by)
{
    QPolygonF moved;
    for (qsizetype index = 0; index < line.size(); ++index) {
        const QLineF way(line[std::max<qsizetype>(index - 1, 0)], line[std::min(index + 1, line.size() - 1)]);
        const double length = std::max(0.001, way.length());
        moved.append(line[index] + QPointF(way.dy(), -way.dx()) * (by / length));
    }
    return moved;
}

/// The stretches of the line that come near to the area, each of them beginning and ending outside.
QList<QPolygonF> stretchesAt(const QPolygonF& line, const QRectF& area)
{
    QList<QPolygonF> stretches;
    bool goesOn = false;
    for (qsizetype index = 1; index < line.size(); ++index) {
        const QRectF step = QRectF(line[index - 1], line[index]).normalized().adjusted(-0.1, -0.1, 0.1, 0.1);
        if (!step.intersects(area)) {
            goesOn = false;
            continue;
        }
        if (!goesOn)
            stretches.append(QPolygonF{line[index - 1]});
        stretches.last().append(line[index]);
        goesOn = true;
    }
    return stretches;
}

/// Strong where it is free, and behind items as strong as it may, which shows beside the round corners of plates.
void drawStripe(Canvas& canvas, const QPolygonF& middle, double width, const QRegion& free, const QRegion& behind,
    const QColor& colour)
{
    canvas.paint([&](QPainter& painter) {
        const QRectF shown = painter.clipBoundingRect();
        QPainterPath shape;
        for (const QPolygonF& stretch : stretchesAt(middle, shown.adjusted(-width, -width, width, width)))
            shape.addPath(ribbon(stretch, width, true));
        const auto fill = [&](const QRegion& region, const QColor& paint) {
            const QRegion here = region & shown.toAlignedRect();
            if (here.isEmpty() || shape.isEmpty())
                return;
            painter.save();
            painter.setClipRegion(here, Qt::IntersectClip);
            canvas.fill(shape, paint);
            painter.restore();
        };
        fill(behind, faded(colour, SceneOrnament::strong));
        fill(free, colour);
    });
}

void rainbow(SceneOrnament& on, const SkinStyle& style, const QPolygonF& line)
{
    if (QLineF(line.first(), line.last()).length() < on.scaled(flattest))
        return;
    double by = on.scaled(rainbowPitch);
    for (const QColor& colour : groove::stripes(style, style.accent)) {
        const QPolygonF middle = beside(line, by);
        const double width = on.scaled(rainbowStripe);
        QPainterPath way;
        way.addPolygon(middle);
        const QRectF place = way.boundingRect().adjusted(-width, -width, width, width) & on.screen();
        const QRegion free = on.besideItems(place);
        if (!place.isEmpty())
            on.addAlong(
                u"stripe"_s, way, width / 2 + 1,
                [](Canvas& canvas, const QPolygonF& along, double across, const QRegion& bare, const QRegion& behind,
                    const QColor& paint) { drawStripe(canvas, along, across, bare, behind, paint); },
                middle, width, free, QRegion(place.toAlignedRect()) - free, colour);
        by -= on.scaled(rainbowPitch);
    }
}

/// Rises behind the upper edge of the hero.
void sunrise(SceneOrnament& on, const SkinStyle& style, const QPolygonF& line)
{
    const QRectF hero = on.hero().frame;
    const double radius = on.scaled(sunRadius);
    const double reach = radius * sunReach;
    const double above = on.scaled(sunAbove);
    for (const double part : {0.5, 0.25, 0.75}) {
        const QPointF centre(hero.left() + hero.width() * part, hero.top() - above);
        const QRectF place(centre.x() - reach, centre.y() - reach, 2 * reach, reach + above);
        const QRectF clear = place.adjusted(-reach, -reach, reach, reach);
        if (!on.isFree(place) || std::ranges::any_of(line, [&](QPointF point) { return clear.contains(point); }))
            continue;
        on.add(
            u"sun"_s, place,
            [](Canvas& canvas, const QRectF& sky, QPointF middle, double size, const QColor& disc, const QColor& rays) {
                canvas.within(
                    [&] {
                        QPainterPath edge;
                        edge.addRect(sky);
                        return edge;
                    }(),
                    [&] { groove::sunburst(canvas, middle, size, disc, rays); });
            },
            place, centre, radius, style.accent2, style.accent);
        return;
    }
}

} // namespace

/// A rainbow over the room that runs behind the widgets, and a sun that rises behind the largest one.
Scene grooveScene(SceneOrnament on)
{
    const SkinStyle style = groove::makeStyle(on.accent());
    const QPolygonF line = rainbowLine(on);
    rainbow(on, style, line);
    sunrise(on, style, line);
    return on.scene();
}

} // namespace ambrelle
