// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

namespace ambrelle {

/// The beam of a radar or sonar, which turns clockwise about the middle of a disc and draws a fading trail behind it.
/// What it sweeps over (the disc, rings, echoes) is drawn before, as what stands still.
struct RadarSweep {
    QColor colour;
    double period = 6; ///< seconds per turn
    double trail = 60; ///< degrees
    double opacity = 0.5; ///< of the trail where it is densest
    double fps = 20;

    /// In the largest circle of the box. At time 0 the trail begins at twelve o'clock.
    void draw(Canvas& canvas, const Box& box) const;
};

} // namespace ambrelle
