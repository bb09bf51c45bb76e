// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

namespace ambrelle {

void paintLumenWallpaper(Painting& painting, SeededRandom& random)
{
    constexpr RGBA sky = hex(0xC9D8FF);
    constexpr RGBA sun = hex(0xFFE3C8);
    painting.verticalGradient(hex(0xF4F7FB), hex(0xE3E9F2));
    painting.glow(painting.at(0.25, 0.85), 0.6 * painting.height(), white(0.9));
    painting.glow(painting.at(0.9, 0.15), 0.5 * painting.height(), sky.withAlpha(0.5));
    painting.glow(painting.at(0.1, 0.1), 0.4 * painting.height(), sun.withAlpha(0.5));
    painting.grain(0.012, random);
    painting.vignette(0.06);
}

} // namespace ambrelle
