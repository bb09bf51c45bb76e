// SPDX-License-Identifier: MIT

#include "placement/FreeSpot.h"

#include <algorithm>

namespace ambrelle {

namespace {

constexpr double spotMargin = 20; // kept free along the screen's edges
constexpr double spotStep = 20;
constexpr double gap = 6; // kept free around every widget

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

} // namespace ambrelle
