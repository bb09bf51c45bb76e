// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

class QPainter;

namespace ambrelle {

/// The soft shadow below a picture with round corners; made once for each pixel ratio, of nine pieces that fit pictures
/// of every size. Nothing is drawn below the picture itself. `area` lies on whole pixels of the painter's device.
void drawCardShadow(QPainter& painter, const QRectF& area, double corner, double pixelRatio);

} // namespace ambrelle
