// SPDX-License-Identifier: MIT

#pragma once

#include <QMargins>
#include <QRectF>
#include <Qt>

namespace ambrelle {

/// Margins for where one reads from left to right, as the toolkit wants them: its layouts mirror all but these.
inline QMargins inReadingOrder(const QMargins& margins, Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? QMargins(margins.right(), margins.top(), margins.left(), margins.bottom())
                                        : margins;
}

/// A part of `room` where one reads from left to right, as it lies there in that direction.
inline QRectF inReadingOrder(const QRectF& part, const QRectF& room, Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? part.translated(room.left() + room.right() - part.left() - part.right(), 0)
                                        : part;
}

} // namespace ambrelle
