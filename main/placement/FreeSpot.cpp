// SPDX-License-Identifier: MIT

#include "placement/FreeSpot.h"

#include "placement/GroupFit.h"

#include <QLineF>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr double spotMargin = 20; // kept free along the screen's edges
constexpr double spotStep = 20;
constexpr double gap = 6; // kept free around every widget

bool isFree(const QRectF& frame, const QList<QRectF>& taken, double apart)
{
    const QRectF around = frame.adjusted(-apart, -apart, apart, apart);
    return std::ranges::none_of(taken, [&](const QRectF& other) { return GroupFit::overlap(around, other); });
}

/// The places along one axis where something of that length starts free of what is taken, or at the ends of the room.
QList<double> starts(
    double wished, double length, double first, double last, const QList<std::pair<double, double>>& taken)
{
    QList<double> starts{std::clamp(wished, first, std::max(first, last - length)), first, last - length};
    for (const auto& [begin, end] : taken) {
        for (const double start : {begin - gap - length, end + gap, begin - length, end})
            starts.append(start);
    }
    starts.removeIf([=](double start) { return start < first || start + length > last; });
    return starts;
}

std::optional<QPointF> nearest(
    const QRectF& frame, const QList<QPointF>& spots, const QList<QRectF>& taken, double apart)
{
    std::optional<QPointF> best;
    const auto distance = [&](QPointF spot) { return QLineF(frame.topLeft(), spot).length(); };
    for (const QPointF spot : spots) {
        if ((!best || distance(spot) < distance(*best)) && isFree({spot, frame.size()}, taken, apart))
            best = spot;
    }
    return best;
}

} // namespace

QPointF freeSpot(const QSizeF& size, const QRectF& visibleFrame, const QList<QRectF>& taken)
{
    const QRectF area = visibleFrame.adjusted(spotMargin, spotMargin, -spotMargin, -spotMargin);
    QList<QRectF> obstacles;
    for (const QRectF& frame : taken)
        obstacles.append(frame.adjusted(-gap, -gap, gap, gap));
    const double top = area.y() + area.height();
    for (double y = top - size.height(); y >= area.y(); y -= spotStep) {
        for (double x = area.x() + area.width() - size.width(); x >= area.x(); x -= spotStep) {
            const QRectF candidate(QPointF(x, y), size);
            if (std::ranges::none_of(obstacles, [&](const QRectF& o) { return o.intersects(candidate); }))
                return candidate.topLeft();
        }
    }
    return area.center() - QPointF(size.width() / 2, size.height() / 2);
}

std::optional<QPointF> nearestFreeSpot(const QRectF& frame, const QRectF& area, const QList<QRectF>& taken)
{
    if (isFree(frame, taken, 0))
        return frame.topLeft();
    QList<std::pair<double, double>> across;
    QList<std::pair<double, double>> upwards;
    for (const QRectF& other : taken) {
        across.append({other.left(), other.right()});
        upwards.append({other.top(), other.bottom()});
    }
    QList<QPointF> spots;
    for (const double x : starts(frame.x(), frame.width(), area.left(), area.right(), across)) {
        for (const double y : starts(frame.y(), frame.height(), area.top(), area.bottom(), upwards))
            spots.append({x, y});
    }
    const auto apart = nearest(frame, spots, taken, gap);
    return apart ? apart : nearest(frame, spots, taken, 0);
}

} // namespace ambrelle
