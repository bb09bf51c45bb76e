// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

#include <QImage>

namespace ambrelle {

/// How a skin shows photos and covers: as they are, or made over in its own manner. What was made over once is kept,
/// for each picture and size, so that a face may ask for it whenever it is drawn.
class PictureTreatment {
public:
    PictureTreatment() = default; ///< as they are

    static PictureTreatment grey();
    /// Grey, but from one colour to another.
    static PictureTreatment duotone(const QColor& dark, const QColor& light);
    /// Printed: dots of ink on paper, the larger the darker, `pitch` points apart along lines at `degrees`.
    static PictureTreatment halftone(const QColor& ink, const QColor& paper, double pitch = 3, double degrees = 45);
    /// Square pixels with hard edges, `count` of them along the longer side.
    static PictureTreatment pixels(int count);
    /// Blurred beyond recognition: a few colours that flow into one another, `count` of them along the longer side.
    static PictureTreatment blurred(int count);

    /// The middle of the picture in just so many pixels, `scale` of them a point.
    QImage applied(const QImage& picture, const QSize& size, double scale = 1) const;

private:
    enum class Kind { none, grey, duotone, halftone, pixels, blurred };

    QString key() const;
    QImage made(const QImage& picture, const QSize& size, double scale) const;

    Kind m_kind = Kind::none;
    QColor m_dark = Qt::black;
    QColor m_light = Qt::white;
    double m_pitch = 3; // points
    double m_degrees = 45;
    int m_count = 32;
};

/// The picture, treated, so that it covers the shape's bounds, cut to the shape: `roundedPath`, `archPath`,
/// `cutCornerPath`, a circle. Nothing for a picture without pixels.
void drawPicture(Canvas& canvas, const QPainterPath& shape, const QImage& picture,
    const PictureTreatment& treatment = {}, double opacity = 1);

} // namespace ambrelle
