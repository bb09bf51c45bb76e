// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Gauge.h"
#include "skins/hifi/HiFiStyle.h"

namespace ambrelle::hifi {

/// A needle over a printed scale from -20 to +3, with the red zone from 85 percent on. The needle's pivot lies below
/// the window that it shows in.
struct VuMeter {
    const SkinStyle& style;
    Box window; ///< what shows of the scale
    double depth = 14; ///< of the pivot below the window, points
    double sweep = 50; ///< degrees to either side

    /// The printed scale, part of a still layer.
    void scale(Canvas& canvas) const;
    /// The needle at `fraction` (0 to 1), which trembles as long as there is anything to measure.
    void needle(Canvas& canvas, double fraction, int seed) const;

    /// The arc of the scale about the pivot.
    Gauge gauge() const;
    Needle pin() const;
};

} // namespace ambrelle::hifi
