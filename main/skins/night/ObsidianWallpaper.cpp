// SPDX-License-Identifier: MIT

#include "skins/night/NightWallpaper.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

namespace {

/// Two reflections of an iridescent light in black glass.
void reflections(Painting& painting)
{
    constexpr RGBA accent = hex(0x9CB2FF);
    constexpr RGBA accent2 = hex(0xE9A0FF);
    constexpr RGBA accent3 = hex(0x7DF2E4);
    const GradientStops iridescence{{0, accent3.withAlpha(0)}, {0.08, accent3.withAlpha(0.08)},
        {0.4, accent.withAlpha(0.1)}, {0.7, accent2.withAlpha(0.08)}, {1, accent2.withAlpha(0)}};
    for (const double shift : {0.0, 0.4}) {
        const QPointF middle = painting.at(0.58, 0.5) + QPointF(shift * painting.height(), 0);
        painting.fill(nightBand(middle, 38, 0.25 * painting.height(), iridescence));
    }
}

} // namespace

void paintObsidianWallpaper(Painting& painting, SeededRandom&)
{
    paintNight(painting,
        {.top = hex(0x0B0C12),
            .bottom = hex(0x050507),
            .ornament = reflections,
            .lights = {{{0.2, 0.9}, 0.6, white(0.06)}},
            .vignette = 0.5});
}

} // namespace ambrelle
