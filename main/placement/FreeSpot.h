// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

#include <optional>

namespace ambrelle {

/// The place of a new widget of `size` on a screen: the first free one from the upper right corner leftwards, then row
/// by row downwards; the middle of the screen when nothing is free. Returns the lower left corner; global points, y up.
QPointF freeSpot(const QSizeF& size, const QRectF& visibleFrame, const QList<QRectF>& taken);

/// The lower left corner of `frame` where it lies over none of the others: its own place, else the nearest in `area`;
/// none when nothing is free.
std::optional<QPointF> nearestFreeSpot(const QRectF& frame, const QRectF& area, const QList<QRectF>& taken);

} // namespace ambrelle
