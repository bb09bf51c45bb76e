// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

class QPainter;
class QPen;

namespace ambrelle {

/// The soft shadow below a picture with round corners, made once for pictures of one size. `area` begins on a whole
/// pixel of the painter's device.
void drawCardShadow(QPainter& painter, const QRectF& area, double corner, double pixelRatio);

/// The line within the edge of such a picture, on the same terms. It is made once, too: a translucent line as long as
/// that takes the toolkit twenty times as long as a copy of it.
void drawCardLine(QPainter& painter, const QRectF& area, double corner, const QPen& pen, double pixelRatio);

} // namespace ambrelle
