// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

namespace ambrelle {

/// The place of a new widget of `size` on a screen: the first free one from the upper right corner leftwards, then row
/// by row downwards; the middle of the screen when nothing is free. Returns the lower left corner; global points, y up.
QPointF freeSpot(const QSizeF& size, const QRectF& visibleFrame, const QList<QRectF>& taken);

} // namespace ambrelle
