// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/chalk/ChalkMarks.h"
#include "skins/chalk/ChalkStyle.h"
#include "skins/SceneRecipes.h"

#include <QLineF>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double lessonInk = 0.55; // opacity
constexpr double arrowGap = 9; // between an arrow's ends and the items
constexpr double arrowHead = 11;
constexpr double shortestArrow = 18;
constexpr double clearance = 5; // between an arrow and items that it passes

constexpr double ringAway = 14; // from the sides of what is ringed,
constexpr double ringShare = 0.03; // and in parts of its width: the corners of large items reach farther
constexpr double ringLoose = 3; // by which its two rounds differ
constexpr double ringClear = 2;

constexpr double doodleSize = 42;
constexpr double doodleAir = 9;
constexpr double doodleStep = 14; // between places that are tried
constexpr double doodleReach = 90; // beyond all items
constexpr double doodleWay = 300; // from what a doodle belongs to

/// Drawings of the lesson, with all that stays clear of each other.
class Lesson {
public:
    explicit Lesson(SceneOrnament& on)
        : m_on(on)
    {
    }

    /// A curved arrow on the shortest way around other items, if there is one.
    void arrow(const SceneItem& from, const SceneItem& to);
    /// A line that goes twice around an item; none where others stand too near.
    void ring(const SceneItem& item);
    /// A drawing of a square of -1 to 1 in a free place near the anchor.
    void doodle(const QString& name, const QPainterPath& drawing, QPointF anchor, const QColor& colour);

private:
    struct Bow {
        QPointF from;
        QPointF bend;
        QPointF to;
    };

    bool isClear(const Bow& bow) const;
    void draw(const QString& name, const QPainterPath& path, const QColor& colour, double width);

    SceneOrnament& m_on;
    QList<QPainterPath> m_drawn;
};

QPointF onBow(QPointF from, QPointF bend, QPointF to, double part)
{
    const double rest = 1 - part;
    return from * (rest * rest) + bend * (2 * part * rest) + to * (part * part);
}

/// Places beside an item from which arrows leave: outside the middle and the quarters of its sides.
QList<QPointF> gates(const QRectF& frame, double gap)
{
    QList<QPointF> places;
    for (const double part : {0.5, 0.22, 0.78}) {
        const double x = frame.left() + frame.width() * part;
        const double y = frame.top() + frame.height() * part;
        places +=
            {{x, frame.top() - gap}, {x, frame.bottom() + gap}, {frame.left() - gap, y}, {frame.right() + gap, y}};
    }
    return places;
}

bool Lesson::isClear(const Bow& bow) const
{
    constexpr int steps = 40;
    const double half = m_on.scaled(clearance);
    for (int step = 0; step <= steps; ++step) {
        const QPointF point = onBow(bow.from, bow.bend, bow.to, static_cast<double>(step) / steps);
        if (!m_on.isFree({point.x() - half, point.y() - half, 2 * half, 2 * half}))
            return false;
    }
    return true;
}

void Lesson::draw(const QString& name, const QPainterPath& path, const QColor& colour, double width)
{
    if (m_on.line(name, path, roundPen(faded(colour, lessonInk), m_on.scaled(width))))
        m_drawn.append(path);
}

void Lesson::arrow(const SceneItem& from, const SceneItem& to)
{
    constexpr std::array bends{0.16, -0.16, 0.3, -0.3};
    const double gap = m_on.scaled(arrowGap);
    std::optional<Bow> best;
    double shortest = std::numeric_limits<double>::max();
    for (const QPointF& start : gates(from.frame, gap)) {
        for (const QPointF& end : gates(to.frame, gap)) {
            const QPointF way = end - start;
            const double length = std::hypot(way.x(), way.y());
            for (const double bend : bends) {
                const double cost = length * (1 + std::abs(bend) / 2);
                const Bow bow{start, start + way / 2 + QPointF(way.y(), -way.x()) * bend, end};
                if (cost >= shortest || length < m_on.scaled(shortestArrow) || !isClear(bow))
                    continue;
                best = bow;
                shortest = cost;
            }
        }
    }
    if (!best)
        return;
    QPainterPath path(best->from);
    path.quadTo(best->bend, best->to);
    const QPointF last = best->to - onBow(best->from, best->bend, best->to, 0.85);
    const QPointF back = last * (-std::min(m_on.scaled(arrowHead), shortest / 3) / std::hypot(last.x(), last.y()));
    const QPointF aside(-back.y() * 0.55, back.x() * 0.55);
    path.moveTo(best->to + back + aside);
    path.lineTo(best->to);
    path.lineTo(best->to + back * 0.92 - aside * 1.1);
    draw(u"arrow"_s, path, chalk::ink, chalk::bold);
}

void Lesson::ring(const SceneItem& item)
{
    constexpr int pieces = 150;
    constexpr double turns = 2.1;
    constexpr double square = 0.36; // ends of the loop are nearly as full as a box
    const QPointF centre = item.frame.center();
    const double away = m_on.scaled(ringAway) + item.frame.width() * ringShare;
    QPainterPath path;
    for (int piece = 0; piece <= pieces; ++piece) {
        const double along = static_cast<double>(piece) / pieces;
        const QPointF round = pointOn({}, 1, -0.04 - along * turns);
        const double grown = away + m_on.scaled(ringLoose) * std::sin(along * 11);
        const auto full = [](double part) { return std::copysign(std::pow(std::abs(part), square), part); };
        const QPointF point = centre
            + QPointF(full(round.x()) * (item.frame.width() / 2 + grown),
                full(round.y()) * (item.frame.height() / 2 + grown) + m_on.scaled(4) * (along - 0.5) * round.x());
        const double clear = m_on.scaled(ringClear);
        if (!m_on.isFree({point.x() - clear, point.y() - clear, 2 * clear, 2 * clear}))
            return;
        if (piece == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    draw(u"ring"_s, path, chalk::pink, chalk::usual);
    const double beyond = away + m_on.scaled(2 * ringLoose);
    m_on.reserve(item.frame.adjusted(-beyond, -beyond, beyond, beyond));
}

void Lesson::doodle(const QString& name, const QPainterPath& drawing, QPointF anchor, const QColor& colour)
{
    const double half = m_on.scaled(doodleSize / 2 + doodleAir);
    const double step = m_on.scaled(doodleStep);
    const double reach = m_on.scaled(doodleReach);
    const QRectF room = m_on.bounds().adjusted(-reach, -reach, reach, reach) & m_on.screen();
    QPointF best;
    double nearest = m_on.scaled(doodleWay);
    for (double y = room.top() + half; y <= room.bottom() - half; y += step) {
        for (double x = room.left() + half; x <= room.right() - half; x += step) {
            const double away = QLineF(anchor, {x, y}).length();
            const QRectF place(x - half, y - half, 2 * half, 2 * half);
            if (away >= nearest || !m_on.isFree(place)
                || std::ranges::any_of(m_drawn, [&](const QPainterPath& line) { return comesNear(line, place, 2); }))
                continue;
            best = {x, y};
            nearest = away;
        }
    }
    if (best.isNull())
        return;
    SeededRandom random{seedOf(name)};
    QTransform change = QTransform::fromTranslate(best.x(), best.y());
    change.rotate(random.in(-8, 8));
    change.scale(m_on.scaled(doodleSize / 2), m_on.scaled(doodleSize / 2));
    draw(name, change.map(drawing), colour, chalk::usual + 0.3);
    m_on.reserve(QRectF(best.x() - half, best.y() - half, 2 * half, 2 * half));
}

QPainterPath sunDoodle()
{
    constexpr int rays = 9;
    QPainterPath path;
    path.addEllipse(QPointF(), 0.5, 0.48);
    for (int ray = 0; ray < rays; ++ray) {
        path.moveTo(pointOn({}, 0.66, (ray + 0.1) / rays));
        path.lineTo(pointOn({}, ray % 3 == 0 ? 1 : 0.86, (ray + 0.1) / rays));
    }
    return path;
}

/// With its right angle marked.
QPainterPath triangleDoodle()
{
    QPainterPath path(QPointF(-0.86, 0.66));
    path.lineTo(0.95, 0.6);
    path.lineTo(-0.8, -0.86);
    path.lineTo(-0.84, 0.72);
    path.moveTo(-0.83, 0.32);
    path.lineTo(-0.5, 0.31);
    path.lineTo(-0.49, 0.65);
    return path;
}

QPainterPath tickDoodle()
{
    QPainterPath path;
    path.addPolygon(QPolygonF{{-0.8, -0.36}, {0.42, -0.4}, {0.46, 0.8}, {-0.76, 0.82}, {-0.81, -0.42}});
    path.addPath(chalk::tickPath(Box(-0.72, -0.42, 1.36, 1.1)));
    return path;
}

} // namespace

/// The lesson between the widgets: arrows to what comes, a ring around what runs out, and what was drawn beside it.
Scene chalkScene(SceneOrnament on)
{
    on.drawLike(chalk::makeStyle(on.accent()));
    Lesson lesson(on);
    const QList<SceneItem> others = on.satellites();
    const auto first = [&](WidgetKind kind) -> const SceneItem* {
        const auto found = std::ranges::find(others, kind, &SceneItem::kind);
        return found == others.end() ? nullptr : &*found;
    };
    const SceneItem* battery = first(WidgetKind::battery);
    const SceneItem* weather = first(WidgetKind::weather);
    const SceneItem* events = first(WidgetKind::events);
    if (battery != nullptr)
        lesson.ring(*battery);
    for (const SceneItem* target : {weather, events}) {
        if (target != nullptr)
            lesson.arrow(on.hero(), *target);
    }
    if (weather == nullptr && events == nullptr && !others.isEmpty())
        lesson.arrow(on.hero(), on.walk().at(1));
    const QColor yellow = on.accent().value_or(chalk::yellow);
    lesson.doodle(
        u"sun"_s, sunDoodle(), weather != nullptr ? weather->frame.topRight() : on.bounds().topRight(), yellow);
    lesson.doodle(u"triangle"_s, triangleDoodle(), on.bounds().center(), chalk::blue);
    lesson.doodle(u"tick"_s, tickDoodle(), on.items().last().frame.bottomLeft(), chalk::green);
    return on.scene();
}

} // namespace ambrelle
