// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "model/Skin.h"

namespace ambrelle {

/// A progress dial in one of three flavours, in a skin's measures. Skins whose dial is an instrument of its own build
/// it from a `Gauge`.
struct StyledDial {
    DialFlavor flavor = DialFlavor::ring;
    QBrush value;
    QBrush track; ///< what is not reached; none: nothing
    DialMeasures measures{};
    QGradientStops along{}; ///< of a ring: colours from its start to the value, instead of `value`

    /// Draws `fraction` (0 to 1) into the largest circle of `box` and returns the box inside.
    Box draw(Canvas& canvas, const Box& box, double fraction) const;

private:
    void drawRing(Canvas& canvas, const Box& square, double fraction) const;
    void drawSegments(Canvas& canvas, const Box& square, double fraction) const;
    void drawTicks(Canvas& canvas, const Box& square, double fraction) const;
};

} // namespace ambrelle
