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

/// Lays shapes down in whole device pixels, nothing smoothed. Lengths are points; curves are drawn in squares of one
/// font unit, the whole number of device pixels nearest to a point, so that a picture at twice the scale has the same
/// steps. Gradients and textures are in points like the shapes; what is turned loses its alignment, but not its steps.
class PixelPaint {
public:
    PixelPaint(QPainter& painter, Finish finish);

    void fill(const QRectF& box, const QBrush& brush);
    void fill(const QPainterPath& path, const QBrush& brush);
    void stroke(const QPainterPath& path, const QPen& pen);
    /// A line along the inside of the box's edge.
    void frame(const QRectF& box, const QBrush& brush, double thickness);
    /// What is made of squares already, each `side` points wide and at its place: letters of a pixel face. Where a
    /// square is smaller than a pixel it is smoothed, or strokes would be lost.
    void squares(const QPainterPath& path, const QBrush& brush, double side);
    /// Fills rectangles that lie on whole device pixels, for a tenth of what filling a path costs; no: they do not, or
    /// the colour is translucent, and nothing is painted.
    static bool blocks(QPainter& painter, const QPainterPath& rectangles, const QColor& colour);
    /// Until the painter is restored, nothing outside the shape is painted.
    void clip(const QPainterPath& shape);
    /// The part `source` of a picture over the box: larger pictures are reduced to the steps that there is room for,
    /// smaller ones keep hard edges.
    void picture(const QRectF& box, const QImage& image, const QRectF& source);

private:
    QRect pixels(const QRectF& box) const;
    QPen penInUnits(const QPen& pen) const;
    /// From points to steps of so many device pixels.
    QTransform inSteps(int pixels) const;
    /// A brush for a painter in these steps; patterns of black and white take `unit` of them for a dot.
    QBrush printed(const QBrush& brush, const QTransform& steps, int unit) const;
    void inUnits(const QRectF& bounds, const std::function<void(QPainter&)>& draw);
    template <typename Draw> void inPixels(Draw draw);

    QPainter& m_painter;
    Finish m_finish;
    QTransform m_linear; ///< from points to device pixels, without the corner's place
    bool m_upright; ///< neither turned nor mirrored
    double m_scale; ///< device pixels of a point
    int m_unit; ///< device pixels of a font unit
    int m_grid; ///< device pixels
    QPoint m_origin; ///< device pixel of the face's corner: dithers start there
};

} // namespace ambrelle
