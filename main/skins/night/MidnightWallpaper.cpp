// SPDX-License-Identifier: MIT

#include "skins/night/NightWallpaper.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

namespace {

void lightBand(Painting& painting)
{
    constexpr RGBA accent = hex(0x5B97FF);
    painting.fill(nightBand(painting.at(0.5, 0.22), 90, 0.18 * painting.height(),
        {{0, accent.withAlpha(0)}, {0.5, accent.withAlpha(0.06)}, {1, accent.withAlpha(0)}}));
}

} // namespace

void paintMidnightWallpaper(Painting& painting, SeededRandom&)
{
    paintNight(painting,
        {.top = hex(0x0A1333),
            .bottom = hex(0x04081A),
            .ornament = lightBand,
            .lights = {{{0.5, 1.0}, 0.8, hex(0x2A4FC0, 0.35)}, {{0.92, 0.12}, 0.6, hex(0x7A4FE0, 0.22)},
                {{0.05, 0.2}, 0.5, hex(0x12B5C9, 0.12)}},
            .vignette = 0.4});
}

} // namespace ambrelle
