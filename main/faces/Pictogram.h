// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/Readings.h"

namespace ambrelle {

/// One of the ten weather pictures, all from one hand, in a box of 48 units, y down. Closed shapes may be filled or
/// outlined as a skin likes; lines are always stroked. No shape runs under another.
struct Pictogram {
    QPainterPath disc; ///< sun or moon
    QPainterPath rays; ///< lines
    QPainterPath cloud;
    QPainterPath bolt;
    QPainterPath water; ///< lines: drops, flakes
    QPainterPath mist; ///< lines: fog, or the dash of an unknown sky
    bool night = false;

    static const Pictogram& of(Sky sky);
    /// The same picture made of straight pieces only.
    static const Pictogram& straightOf(Sky sky);
};

/// How a skin draws its pictograms. Without an outline the shapes are filled.
struct PictogramPaint {
    QBrush sun;
    QBrush moon;
    QBrush cloud;
    QBrush water;
    QBrush bolt;
    double line = 2.6; ///< width of the lines in units of the 48-unit box
    double outline = 0; ///< width of outlines in points; 0: filled
    bool straight = false; ///< every curve as two straight pieces, with square ends
};

/// Draws the picture into the largest square of `box`.
void drawPictogram(Canvas& canvas, const Box& box, Sky sky, const PictogramPaint& paint);

} // namespace ambrelle
