// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Finish.h"

#include <QPainter>
#include <QPainterPath>

#include <functional>

namespace ambrelle {

/// The grid that shapes and pixel type are laid on, in device pixels: font units where the scale is a whole number,
/// else single pixels.
int pixelGrid(double scale);

/// Lays shapes down in whole device pixels. Lengths are points; curves are drawn in squares of one font unit, the whole
/// number of device pixels nearest to a point, so that a picture at twice the scale has the same steps.
class PixelPaint {
public:
    PixelPaint(QPainter& painter, Finish finish);

    void fill(const QRectF& box, const QBrush& brush);
    void fill(const QPainterPath& path, const QBrush& brush);
    void stroke(const QPainterPath& path, const QPen& pen);
    /// A line along the inside of the box's edge.
    void frame(const QRectF& box, const QBrush& brush, double thickness);
    /// The part `source` of a picture over the box.
    void picture(const QRectF& box, const QImage& image, const QRectF& source);

private:
    QRect pixels(const QRectF& box) const;
    QPen penInUnits(const QPen& pen) const;
    QBrush printed(const QBrush& brush, int unit) const;
    void inUnits(const QRectF& bounds, const std::function<void(QPainter&)>& draw);
    template <typename Draw> void inPixels(Draw draw);

    QPainter& m_painter;
    Finish m_finish;
    double m_scale; ///< device pixels of a point
    int m_unit; ///< device pixels of a font unit
    int m_grid; ///< device pixels
    QPoint m_origin; ///< device pixel of the face's corner: dithers start there
};

} // namespace ambrelle
