// SPDX-License-Identifier: MIT

#include "scenes/SceneLayout.h"

#include "scenes/LineCut.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr double designHeight = 170; // of the item that measures of scenes are given for, points
constexpr double leastGutter = 2; // points
constexpr double leastStretch = 1;

double areaOf(const SceneItem& item)
{
    return item.frame.width() * item.frame.height();
}

double distance(QPointF one, QPointF other)
{
    return std::hypot(one.x() - other.x(), one.y() - other.y());
}

/// A side of a rectangle as a stretch of a line.
struct Span {
    double from;
    double to;

    double length() const { return to - from; }
    double middle() const { return (from + to) / 2; }
    bool holds(double place) const { return place > from && place < to; }
    Span shared(const Span& other) const { return {std::max(from, other.from), std::min(to, other.to)}; }
};

Span spanOf(const QRectF& rect, Qt::Orientation direction)
{
    return direction == Qt::Horizontal ? Span{rect.left(), rect.right()} : Span{rect.top(), rect.bottom()};
}

QRectF rectOf(const Span& along, const Span& across, Qt::Orientation direction)
{
    const QRectF rect(along.from, across.from, along.length(), across.length());
    return direction == Qt::Horizontal ? rect : QRectF(rect.y(), rect.x(), rect.height(), rect.width());
}

/// The points that lie wholly inside round corners, and a point away from them.
QRegion roundedRegion(const QRect& rect, double radius)
{
    if (radius <= 0)
        return rect;
    const int height = std::min(static_cast<int>(std::ceil(radius)), rect.height() / 2);
    const auto row = [&](int index) {
        const double rise = radius - index;
        const int cut =
            static_cast<int>(std::ceil(radius - std::sqrt(std::max(0.0, radius * radius - rise * rise)))) + 1;
        return QRect(rect.left() + cut, rect.top() + index, rect.width() - 2 * cut, 1);
    };
    QRegion region = rect.adjusted(0, height, 0, -height);
    for (int index = 0; index < height; ++index) {
        const QRect above = row(index);
        region += above;
        region += above.translated(0, rect.height() - 1 - 2 * index);
    }
    return region;
}

Qt::Orientation acrossOf(Qt::Orientation direction)
{
    return direction == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
}

} // namespace

SceneLayout::SceneLayout(QList<SceneItem> items, const QSizeF& size)
    : m_items(std::move(items))
    , m_screen({0, 0}, size)
{
    const auto height = [](const SceneItem& item) { return item.frame.height(); };
    m_unit = height(std::ranges::min(m_items, {}, height)) / designHeight;
    m_hero = heroIndex();
}

qsizetype SceneLayout::heroIndex() const
{
    qsizetype best = 0;
    for (qsizetype index = 1; index < m_items.size(); ++index) {
        const double more = areaOf(m_items[index]) - areaOf(m_items[best]);
        const bool winsTie = m_items[index].kind == WidgetKind::clock && m_items[best].kind != WidgetKind::clock;
        if (more > 0 || (more == 0 && winsTie))
            best = index;
    }
    return best;
}

QList<SceneItem> SceneLayout::satellites() const
{
    QList<SceneItem> others = m_items;
    others.removeAt(m_hero);
    return others;
}

QRectF SceneLayout::bounds() const
{
    QRectF bounds;
    for (const SceneItem& item : m_items)
        bounds |= item.frame;
    return bounds;
}

QList<QList<SceneItem>> SceneLayout::rows() const
{
    return bands(Qt::Vertical);
}

QList<QList<SceneItem>> SceneLayout::columns() const
{
    return bands(Qt::Horizontal);
}

/// `direction` is the one in which the bands follow each other. Items share one when each has the other's middle beside
/// it.
QList<QList<SceneItem>> SceneLayout::bands(Qt::Orientation direction) const
{
    const auto middle = [direction](const SceneItem& item) { return spanOf(item.frame, direction).middle(); };
    QList<SceneItem> waiting = m_items;
    std::ranges::stable_sort(waiting, {}, middle);
    QList<QList<SceneItem>> bands;
    for (const SceneItem& item : std::as_const(waiting)) {
        const Span own = spanOf(item.frame, direction);
        const auto fits = [&](const QList<SceneItem>& band) {
            const Span first = spanOf(band.first().frame, direction);
            return first.holds(own.middle()) && own.holds(first.middle());
        };
        const auto band = std::ranges::find_if(bands, fits);
        if (band == bands.end())
            bands.append({item});
        else
            band->append(item);
    }
    for (QList<SceneItem>& band : bands)
        std::ranges::stable_sort(
            band, {}, [&](const SceneItem& item) { return spanOf(item.frame, acrossOf(direction)).from; });
    return bands;
}

QList<SceneGutter> SceneLayout::gutters(Qt::Orientation direction, double widest) const
{
    QList<SceneGutter> gutters;
    for (const SceneItem& before : m_items) {
        for (const SceneItem& after : m_items) {
            const Span between{spanOf(before.frame, direction).to, spanOf(after.frame, direction).from};
            if (between.length() < leastGutter || between.length() > scaled(widest))
                continue;
            const Span one = spanOf(before.frame, acrossOf(direction));
            const Span other = spanOf(after.frame, acrossOf(direction));
            const Span facing = one.shared(other);
            if (facing.length() < std::min(one.length(), other.length()) / 2)
                continue;
            const QRectF area = rectOf(between, facing, direction);
            if (std::ranges::none_of(m_items, [&](const SceneItem& item) { return item.frame.intersects(area); }))
                gutters.append({before, after, area});
        }
    }
    return gutters;
}

QList<SceneItem> SceneLayout::walk() const
{
    QList<SceneItem> way{hero()};
    QList<SceneItem> waiting = satellites();
    while (!waiting.isEmpty()) {
        const QPointF here = way.last().frame.center();
        const auto nearest = std::ranges::min_element(
            waiting, {}, [here](const SceneItem& item) { return distance(item.frame.center(), here); });
        way.append(*nearest);
        waiting.erase(nearest);
    }
    return way;
}

QPolygonF SceneLayout::bow(double flattest) const
{
    constexpr int steps = 96;
    const auto middle = [](const SceneItem& item) { return item.frame.center().x(); };
    const QPointF left = std::ranges::min_element(m_items, {}, middle)->frame.center();
    const QPointF right = (std::ranges::max_element(m_items, {}, [&](const SceneItem& item) {
        return std::pair(middle(item), item.frame.center().y()); // of a column the lowest
    }))->frame.center();
    const QPointF low = left.y() > right.y() ? left : right;
    const QPointF way = (left.y() > right.y() ? right : left) - low;
    const bool isStraight = std::abs(way.y()) < flattest;
    QPolygonF points;
    for (int step = 0; step <= steps; ++step) {
        const double part = static_cast<double>(step) / steps;
        const double angle = std::numbers::pi / 2 * part;
        points.append(
            low + (isStraight ? way * part : QPointF(way.x() * (1 - std::cos(angle)), way.y() * std::sin(angle))));
    }
    if (points.first() != left)
        std::ranges::reverse(points);
    return points;
}

bool SceneLayout::isFree(const QRectF& area) const
{
    return m_screen.contains(area)
        && std::ranges::none_of(m_items, [&](const SceneItem& item) { return item.frame.intersects(area); })
        && std::ranges::none_of(m_reserved, [&](const QRectF& taken) { return taken.intersects(area); });
}

QPainterPath SceneLayout::outside(const QPainterPath& line, double fromItems, double fromEdges) const
{
    const auto grown = [fromItems](
                           const QRectF& area) { return area.adjusted(-fromItems, -fromItems, fromItems, fromItems); };
    QList<QRectF> holes;
    for (const SceneItem& item : m_items)
        holes.append(grown(item.frame));
    for (const QRectF& taken : m_reserved)
        holes.append(grown(taken));
    return cutLine(
        line, m_screen.adjusted(fromEdges, fromEdges, -fromEdges, -fromEdges), holes, 2 * fromItems + leastStretch);
}

QPainterPath SceneLayout::onScreen(const QPainterPath& line, double fromEdges) const
{
    return cutLine(line, m_screen.adjusted(fromEdges, fromEdges, -fromEdges, -fromEdges), {}, leastStretch);
}

QRegion SceneLayout::besideItems(const QRectF& place, double corner) const
{
    QRegion left((place & m_screen).toAlignedRect());
    for (const SceneItem& item : m_items)
        left -= roundedRegion(item.frame.toAlignedRect(), ofFace(item, corner));
    return left;
}

double SceneLayout::ofFace(const SceneItem& item, double points)
{
    return item.frame.height() / designHeight * points;
}

QPointF SceneLayout::edge(const SceneItem& item, Qt::Edge side)
{
    const QRectF& frame = item.frame;
    switch (side) {
    case Qt::TopEdge: return {frame.center().x(), frame.top()};
    case Qt::BottomEdge: return {frame.center().x(), frame.bottom()};
    case Qt::LeftEdge: return {frame.left(), frame.center().y()};
    case Qt::RightEdge: return {frame.right(), frame.center().y()};
    }
    return frame.center();
}

QPointF SceneLayout::edge(const SceneItem& item, QPointF towards)
{
    const QPointF centre = item.frame.center();
    const QPointF way = towards - centre;
    const double across = std::abs(way.x()) * 2 / item.frame.width();
    const double down = std::abs(way.y()) * 2 / item.frame.height();
    const double farther = std::max(across, down);
    return farther > 0 ? centre + way / farther : centre;
}

} // namespace ambrelle
