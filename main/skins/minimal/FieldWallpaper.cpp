// SPDX-License-Identifier: MIT

#include "skins/minimal/FieldPicture.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

void paintFieldWallpaper(Painting& painting, SeededRandom& random)
{
    constexpr RGBA ink = hex(0x1A1A18);
    constexpr RGBA accent = hex(0xC8420A);
    paintFieldPicture(painting, {hex(0xD9D6CB), ink.withAlpha(0.16), ink.withAlpha(0.25), accent});
    painting.grain(0.015, random);
}

} // namespace ambrelle
