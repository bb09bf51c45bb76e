// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"

#include <array>

namespace ambrelle {

namespace {

constexpr RGBA accent = hex(0x6DB5FF);

void lights(Painting& painting)
{
    struct Light {
        double x;
        double y;
        double radius;
        RGBA colour;
    };
    constexpr std::array<Light, 5> all{{
        {0.15, 0.85, 0.7, accent.withAlpha(0.55)},
        {0.85, 0.8, 0.6, hex(0xFFC1A6, 0.72)},
        {0.7, 0.2, 0.7, hex(0x9B8CFF, 0.5)},
        {0.2, 0.15, 0.55, hex(0x4FDCC9, 0.45)},
        {0.5, 0.5, 0.4, white(0.18)},
    }};
    for (const Light& light : all)
        painting.softGlow(painting.at(light.x, light.y), light.radius * painting.height(), light.colour);
}

} // namespace

void paintGlassWallpaper(Painting& painting, SeededRandom& random)
{
    painting.verticalGradient(hex(0x5B78B8), hex(0xC8A7C9));
    lights(painting);
    const Perlin haze{random.next()};
    painting.raster(
        painting.all(), 4.0, [haze](double x, double y) { return white(0.08 * haze.fbm(1.2 * x, 1.2 * y, 3, 2)); });
    painting.grain(0.015, random);
    painting.vignette(0.25);
}

} // namespace ambrelle
