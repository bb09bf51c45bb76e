// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>

namespace ambrelle {

/// Where a text of `size` in `room` is covered least by `widgets`: of equally good places the one nearest to the
/// middle. It is centred where the room is too small. Global points.
QRectF instructionPlace(const QSizeF& size, const QRectF& room, const QList<QRectF>& widgets);

} // namespace ambrelle
