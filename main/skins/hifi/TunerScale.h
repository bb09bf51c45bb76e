// SPDX-License-Identifier: MIT

#pragma once

#include "skins/hifi/HiFiStyle.h"

namespace ambrelle::hifi {

/// A dial line of a radio, horizontal: ticks that stand on a line along the lower edge of the box.
struct TunerScale {
    int steps = 20;
    int every = 5; ///< longer ticks
    QColor colour = champagne;

    void draw(Canvas& canvas, const Box& box) const;
};

/// The red pointer of a horizontal scale at `fraction` (0 to 1) of the box, as tall as the box.
void pointer(Canvas& canvas, const Box& box, double fraction);

/// The day as an upright dial: hours from the bottom to the top and the pointer at `fraction` of them.
void dayDial(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction);

/// Forty-one ticks over three quarters of a turn, lit up to `fraction`, and a pale pointer; returns the box inside.
Box tickDial(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction, const QColor& lit);

} // namespace ambrelle::hifi
