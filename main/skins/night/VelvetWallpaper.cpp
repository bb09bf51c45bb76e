// SPDX-License-Identifier: MIT

#include "skins/night/NightWallpaper.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

namespace {

/// A curtain hangs in soft folds, each with a shadow and a ridge where the pile catches the light.
void folds(Painting& painting)
{
    constexpr RGBA pile = hex(0xF0A0CC);
    for (const double x : {0.28, 0.5, 0.72}) {
        painting.fill(nightBand(painting.at(x, 0.5), 6, 0.22 * painting.width(),
            {{0, black(0)}, {0.3, black(0.2)}, {0.52, pile.withAlpha(0.07)}, {1, pile.withAlpha(0)}}));
    }
}

} // namespace

void paintVelvetWallpaper(Painting& painting, SeededRandom&)
{
    constexpr RGBA accent = hex(0xE9C38C);
    paintNight(painting,
        {.top = hex(0x2B1026),
            .bottom = hex(0x12060F),
            .ornament = folds,
            .lights = {{{0.5, 0.98}, 0.7, accent.withAlpha(0.28)}, {{0.1, 0.2}, 0.5, hex(0x8E3A6A, 0.25)}},
            .vignette = 0.5});
}

} // namespace ambrelle
