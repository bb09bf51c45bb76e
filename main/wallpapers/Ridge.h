// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SeededRandom.h"
#include "wallpapers/Painting.h"

namespace ambrelle {

/// Heights of a mountain range from left to right, about -1 to 1.
using Heights = std::vector<double>;

/// Midpoint displacement (Fournier, Fussell, Carpenter: Computer rendering of stochastic models, 1982). `points` is a
/// power of two plus one, at least 2; `roughness` is how much of the displacement is left with each halving.
Heights ridge(int points, double roughness, SeededRandom& random);
/// Each height averaged with those up to `radius` places away; fewer at the ends.
Heights smoothed(const Heights& heights, int radius);

/// The land below a range: `base` and `amplitude` are parts of the picture's height.
QPainterPath ridgePath(const Painting& painting, const Heights& heights, double base, double amplitude);
/// The crest alone, open.
QPainterPath ridgeLine(const Painting& painting, const Heights& heights, double base, double amplitude);
void fillRidge(Painting& painting, const Heights& heights, double base, double amplitude, const Ink& ink);

} // namespace ambrelle
