// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainterPath>

namespace ambrelle {

/// The squares of side 1 whose centres lie in `shape`, row by row, as runs one square high.
QList<QRect> coveredRuns(const QPainterPath& shape);
/// The same squares as one outline that stays sharp at every whole scale.
QPainterPath pixelated(const QPainterPath& shape);

/// A colour as it is printed with one ink: a pattern of 4 x 4 squares of `unit` pixels with as many of them black as
/// the colour is dark. A translucent colour leaves the rest of the squares open instead of white.
QImage ditherTile(const QColor& colour, int unit);

/// The picture scaled to `size`, in black and white with a 4 x 4 ordered dither (Bayer 1973). Results are kept.
QImage dithered(const QImage& picture, const QSize& size);
/// The picture scaled down to `size`, each pixel the mean of what it stands for. Results are kept.
QImage reduced(const QImage& picture, const QSize& size);

} // namespace ambrelle
