// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QRectF>
#include <QSize>

namespace ambrelle {

/// Where points and device pixels meet. Under a fractional pixel ratio only every second, fourth or tenth point lies on
/// an edge between pixels; whatever is cleared and painted anew must end there, or its border pixels blend twice.
class PixelGrid {
public:
    explicit PixelGrid(double pixelRatio);

    int step() const { return m_step; } ///< points from one shared edge to the next
    QRect covering(const QRectF& points) const; ///< the smallest rectangle of whole steps
    QSize covering(const QSizeF& points) const;
    QRect pixels(const QRectF& points) const; ///< the device pixels touched, relative to the same origin
    QRectF points(const QRect& pixels) const; ///< the other way

private:
    double m_ratio;
    int m_step;
};

} // namespace ambrelle
