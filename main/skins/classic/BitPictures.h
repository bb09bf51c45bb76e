// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/Readings.h"

namespace ambrelle::classic {

inline constexpr int pictureSide = 16; ///< pixels of a weather picture

/// The black pixels of a weather picture, as squares of side 1.
const QPainterPath& bitPicture(Sky sky);
/// The picture in the middle of the box, `pixel` points a pixel.
void drawBitPicture(Canvas& canvas, const Box& box, Sky sky, double pixel);

} // namespace ambrelle::classic
