// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

namespace ambrelle {

void paintSlateWallpaper(Painting& painting, SeededRandom& random)
{
    constexpr RGBA accent = hex(0x7E9AFF);
    constexpr RGBA accent2 = hex(0x4FD8B4);
    painting.verticalGradient(hex(0x1B1E26), hex(0x101217));
    painting.glow(painting.at(0.2, 0.8), 0.6 * painting.height(), accent.withAlpha(0.16));
    painting.glow(painting.at(0.85, 0.2), 0.5 * painting.height(), accent2.withAlpha(0.1));
    painting.grain(0.02, random);
    painting.vignette(0.35);
}

} // namespace ambrelle
