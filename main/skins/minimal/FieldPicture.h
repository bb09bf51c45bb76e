// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Painting.h"

namespace ambrelle {

/// What the casing of the field skins is coloured with.
struct FieldColours {
    RGBA ground;
    RGBA dots;
    RGBA lines;
    RGBA disc;
};

/// The drawing that the field skins share: a dot grid and on it a ring with cross hairs and a disc in its middle. No
/// draws.
void paintFieldPicture(Painting& painting, const FieldColours& colours);

} // namespace ambrelle
