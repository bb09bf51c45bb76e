// SPDX-License-Identifier: MIT

#include "skins/minimal/FieldPicture.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

void paintFieldDarkWallpaper(Painting& painting, SeededRandom& random)
{
    constexpr RGBA accent = hex(0xFF7A2E);
    paintFieldPicture(painting, {hex(0x0D0D0C), white(0.1), white(0.1), accent});
    painting.grain(0.02, random);
    painting.vignette(0.25);
}

} // namespace ambrelle
