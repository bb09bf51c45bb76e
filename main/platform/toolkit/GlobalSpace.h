// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRectF>

namespace ambrelle {

/// Turns between the toolkit's coordinates (y down) and global points (y up, origin at the lower left corner of the
/// main screen). Both count in the same unit, so only the direction and the origin differ, and each way is the other's
/// inverse.
struct GlobalSpace {
    QPointF origin; ///< that corner, in the toolkit's coordinates

    QPointF turned(const QPointF& point) const { return {point.x() - origin.x(), origin.y() - point.y()}; }
    QPointF turnedBack(const QPointF& point) const { return {point.x() + origin.x(), origin.y() - point.y()}; }
    QRectF turned(const QRectF& rect) const { return {turned(rect.bottomLeft()), rect.size()}; }
    QRectF turnedBack(const QRectF& rect) const { return {turnedBack(rect.bottomLeft()), rect.size()}; }
};

} // namespace ambrelle
