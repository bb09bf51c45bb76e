// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "model/Skin.h"

namespace ambrelle {

/// The progress dial that shared faces draw, in one of three flavours. All start at twelve o'clock and run clockwise.
struct StyledDial {
    DialFlavor flavor = DialFlavor::ring;
    QColor value;
    QColor track;
    double width = 9; ///< of the ring, points

    /// Draws `fraction` (0 to 1) into the largest circle of `box` and returns the box inside the ring.
    Box draw(Canvas& canvas, const Box& box, double fraction) const;
};

} // namespace ambrelle
