// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

class QPainter;

namespace ambrelle {

/// The soft shadow below a picture with round corners, made once for pictures of one size. `area` begins on a whole
/// pixel of the painter's device.
void drawCardShadow(QPainter& painter, const QRectF& area, double corner, double pixelRatio);

} // namespace ambrelle
