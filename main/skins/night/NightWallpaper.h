// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Painting.h"

namespace ambrelle {

/// A lamp of a night wallpaper.
struct NightLight {
    QPointF at; ///< in parts of the width and the height
    double radius; ///< in parts of the height
    RGBA colour; ///< at the centre
};

/// What tells one night wallpaper from the others.
struct NightSky {
    RGBA top;
    RGBA bottom;
    void (*ornament)(Painting& painting) = nullptr; ///< what the lights shine on
    std::vector<NightLight> lights;
    double vignette;
};

/// The frame that the night wallpapers share. Made of linear and radial gradients only; no draws.
void paintNight(Painting& painting, const NightSky& sky);

/// An endless stripe with the colours of the gradient across it, soft from each to the next. `lean` is in degrees, from
/// upright to the right; `width` in pixels.
Ink nightBand(QPointF middle, double lean, double width, const GradientStops& across);

} // namespace ambrelle
