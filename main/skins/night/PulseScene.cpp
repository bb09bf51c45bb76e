// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/night/NightPieces.h"
#include "skins/SceneRecipes.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double traceWidth = 2; // points, as all measures here
constexpr double traceInk = 0.85;
constexpr double traceLight = 5; // how far it reaches
constexpr double traceFades = 90; // over the end of the trace

// Every second beat of the faces', in fewer frames: more is painted for it.
const Motion sceneBeat = Motion::bursts(4.8, 1, 0.5, 8);

constexpr double besideHero = 200; // of the trace, where no other item stands there
constexpr double spikeWidth = 130;
constexpr double leastSpikeWidth = 46;
constexpr double spikeHeight = 58; // as it beats
constexpr double aroundSpike = 10;
constexpr double heartSize = 18;
constexpr double heartGap = 8;

/// A level stretch of the trace.
struct Stretch {
    double from;
    double to;

    double length() const { return to - from; }
    double middle() const { return (from + to) / 2; }
};

/// What of it no item stands in, up to `height` above the level and a dip below it.
QList<Stretch> freeOf(const QList<SceneItem>& items, Stretch whole, double level, double height)
{
    const QRectF band(whole.from, level - height, whole.length(), height * (1 + beatDip));
    QList<Stretch> taken;
    for (const SceneItem& item : items) {
        if (item.frame.intersects(band))
            taken.append({item.frame.left(), item.frame.right()});
    }
    std::ranges::sort(taken, {}, &Stretch::from);
    QList<Stretch> rest;
    for (const Stretch& each : std::as_const(taken)) {
        if (each.from > whole.from)
            rest.append({whole.from, each.from});
        whole.from = std::max(whole.from, each.to);
    }
    if (whole.length() > 0)
        rest.append(whole);
    return rest;
}

/// Which part of the screen the trace runs over.
Stretch traceOf(const SceneOrnament& on, double level)
{
    const QRectF hero = on.hero().frame;
    const QRectF bounds = on.bounds();
    const double least = on.scaled(heartSize + heartGap + traceLight);
    const bool isOpen = !on.isFree({bounds.left(), level, least, 1}); // an item stands where it would begin
    const double from = std::min(bounds.left() - (isOpen ? 2 * least : 0), hero.left() - on.scaled(besideHero));
    const double to = std::max(bounds.right(), hero.right() + on.scaled(besideHero));
    return {std::max(from, 2 * traceLight), std::min(to, on.screen().right() - 2 * traceLight)};
}

/// One beat in the widest free stretch at that side of the hero; no points where there is no room.
QPolygonF beatBeside(const SceneOrnament& on, const QList<Stretch>& room, bool isLeft, double level)
{
    const QPointF hero = on.hero().frame.center();
    Stretch widest{0, 0};
    for (const Stretch& each : room) {
        if ((isLeft ? each.to <= hero.x() : each.from >= hero.x()) && each.length() > widest.length())
            widest = each;
    }
    const double width = std::min(on.scaled(spikeWidth), widest.length() - 2 * on.scaled(aroundSpike));
    if (width < on.scaled(leastSpikeWidth))
        return {};
    const double height =
        on.scaled(spikeHeight) / (1 + beatSwell) * std::min(1.0, 0.4 + 0.6 * width / on.scaled(spikeWidth));
    return heartBeat({widest.middle() - width / 2, level, width, 0}, level, height);
}

/// Of a line, what lies in `room`: one line may be drawn in pieces that meet there.
void drawTrace(Canvas& canvas, const QPainterPath& line, const QRectF& room, const QPen& pen, const QColor& light)
{
    canvas.paint([&](QPainter& painter) {
        painter.setClipRect(room, Qt::IntersectClip);
        canvas.lightAround(line, {.colour = light, .strokes = 3, .alpha = 0.07, .spread = 2 * traceLight / 3});
        canvas.stroke(line, pen);
    });
}

double traceReach(const SceneOrnament& on)
{
    return on.scaled(traceWidth) + traceLight;
}

void addTrace(SceneOrnament& on, const QPolygonF& points, const QRectF& room, const QPen& pen, const QColor& light)
{
    const double reach = traceReach(on);
    const QPainterPath path = on.outside(straightLine(points), on.scaled(traceWidth), reach + 1);
    const QRectF place = path.boundingRect().adjusted(-reach, -reach, reach, reach) & room;
    if (path.isEmpty() || place.isEmpty())
        return;
    on.add(
        u"trace"_s, place,
        [](Canvas& canvas, const QPainterPath& line, const QRectF& seen, const QPen& ink, const QColor& colour) {
            drawTrace(canvas, line, seen, ink, colour);
        },
        path, place, pen, light);
}

/// Where the newest beat swells with the heart; none where something is in its way.
std::optional<QRectF> roomOfBeat(const SceneOrnament& on, const QPolygonF& beat)
{
    if (beat.isEmpty())
        return std::nullopt;
    const double reach = traceReach(on) + 1;
    const double grows = beat.boundingRect().height() * beatSwell;
    const QRectF room = beat.boundingRect().adjusted(0, -grows - reach, 0, grows + reach).toAlignedRect();
    return on.isFree(room) ? std::optional(room) : std::nullopt;
}

void addBeat(SceneOrnament& on, const QPolygonF& beat, const QRectF& room, const QPen& pen, const QColor& light)
{
    const double reach = 2 * traceReach(on); // the line goes on beyond both edges of the room
    const double level = beat.first().y();
    QPolygonF points{{beat.first().x() - reach, level}};
    points += beat;
    points.append({beat.last().x() + reach, level});
    on.add(
        u"beat"_s, QList{room}, sceneBeat,
        [](Canvas& canvas, double time, QPolygonF line, const QRectF& seen, const QPen& ink, const QColor& colour) {
            const double rest = line.first().y();
            for (QPointF& point : line)
                point.setY(rest + (point.y() - rest) * beatAt(time, sceneBeat));
            drawTrace(canvas, straightLine(line), seen, ink, colour);
        },
        points, room, pen, light);
}

bool addHeart(SceneOrnament& on, QPointF centre, double size, const QColor& colour)
{
    const double half = size * (1 + beatSwell) / 2 + 1;
    const QRectF place(centre.x() - half, centre.y() - half, 2 * half, 2 * half);
    if (!on.isFree(place))
        return false;
    on.reserve(place);
    on.add(
        u"heart"_s, QList{place}, sceneBeat,
        [](Canvas& canvas, double time, const QRectF& where, double across, const QColor& ink) {
            canvas.symbol(where, u"heart.fill"_s, across * beatAt(time, sceneBeat), ink);
        },
        place, size, colour);
    return true;
}

} // namespace

/// The heartbeat of the desktop: it rests behind the widgets and beats at either side of the largest.
Scene pulseScene(SceneOrnament on)
{
    const NightLook look = NightLook::of(Skin::pulse, on.accent());
    const double level = on.hero().frame.center().y();
    Stretch whole = traceOf(on, level);
    const double heart = on.scaled(heartSize);
    if (addHeart(on, {whole.from + heart / 2 + 1, level}, heart, look.accent))
        whole.from += heart + on.scaled(heartGap);
    if (whole.length() <= 0)
        return on.scene();
    const QList<Stretch> room = freeOf(on.items(), whole, level, on.scaled(spikeHeight));
    QPolygonF points{{whole.from, level}};
    const QPolygonF older = beatBeside(on, room, true, level);
    const QPolygonF newer = beatBeside(on, room, false, level);
    points += older + newer;
    points.append({whole.to, level});
    const double fades = std::max(0.0, 1 - on.scaled(traceFades) / whole.length());
    const QColor ink = faded(look.accent, traceInk);
    const QPen pen = roundPen(
        linear(points.first(), points.last(), {{0, ink}, {fades, ink}, {1, faded(ink, 0)}}), on.scaled(traceWidth));
    const QPolygonF& newest = newer.isEmpty() ? older : newer;
    QRectF rest = on.screen();
    if (const std::optional<QRectF> place = roomOfBeat(on, newest)) {
        addTrace(on, points, QRectF(rest.topLeft(), QPointF(place->left(), rest.bottom())), pen, look.accent);
        addBeat(on, newest, *place, pen, look.accent);
        rest.setLeft(place->right());
    }
    addTrace(on, points, rest, pen, look.accent);
    return on.scene();
}

} // namespace ambrelle
