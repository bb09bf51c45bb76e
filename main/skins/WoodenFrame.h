// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Perlin.h"
#include "wallpapers/Painting.h"

namespace ambrelle {

/// A wooden frame round the whole picture, mitred and lit from above, and the shadow that it casts inwards. `width` is
/// in pixels; `grain` gives the figure of the wood.
void paintWoodenFrame(Painting& painting, double width, const RGBA& wood, const Perlin& grain);

} // namespace ambrelle
