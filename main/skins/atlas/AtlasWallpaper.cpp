// SPDX-License-Identifier: MIT

#include "skins/atlas/ElevationMap.h"
#include "skins/atlas/MapFurniture.h"
#include "skins/WallpaperRecipes.h"

#include <array>
#include <cmath>
#include <memory>

namespace ambrelle {

namespace {

constexpr double shore = 0.36;

struct Tint {
    double from; ///< the height at which it begins
    RGBA colour;
};
constexpr std::array<Tint, 4> landTints{{
    {shore, hex(0xDCE3BE)},
    {11.0 / 24, hex(0xE6DFB8)},
    {14.0 / 24, hex(0xE3D2A2)},
    {16.0 / 24, hex(0xD9BE8C)},
}};

/// How much of a line of `width` pixels covers a pixel whose centre is `distance` pixels from the line's middle.
double coverage(double distance, double width)
{
    return std::clamp(width / 2 + 0.5 - distance, 0.0, 1.0) * std::min(1.0, width);
}

/// Colours by height, with an edge of about a pixel; `pixel` is how much the height changes within one.
RGBA layerTint(double height, double pixel)
{
    constexpr RGBA water = hex(0xA9CBDD);
    constexpr RGBA deepWater = hex(0x97BDD3);
    RGBA colour = deepWater.mixed(water, smoothstep(0.24, shore, height));
    for (const Tint& tint : landTints)
        colour = colour.mixed(tint.colour, std::clamp((height - tint.from) / pixel + 0.5, 0.0, 1.0));
    return colour;
}

/// A contour for each 24th of the height, each fifth of them stronger; under water they are depths, in blue.
RGBA contour(double height, double pixel, double unit)
{
    constexpr double perHeight = 24;
    const double level = std::round(height * perHeight);
    const double distance = std::abs(height * perHeight - level) / (perHeight * pixel);
    const bool strong = static_cast<int>(level) % 5 == 0;
    const double line = coverage(distance, unit * (strong ? 1.5 : 0.9));
    if (level / perHeight < shore)
        return hex(0x2A6C9B, 0.22 * line);
    return hex(0x8A5A2B, (strong ? 0.6 : 0.36) * line);
}

RGBA laidOver(const RGBA& below, const RGBA& above)
{
    return below.mixed(above.withAlpha(1), above.a);
}

/// The relief: slopes that face the light from the upper left are brighter.
RGBA shaded(const RGBA& colour, const ElevationMap::Land& land)
{
    if (land.height < shore)
        return colour;
    const double facing = std::clamp(0.035 * (land.right - land.up), -1.0, 1.0);
    return facing < 0 ? colour.mixed(hex(0x6B5A3C), -facing) : colour.mixed(white(), facing);
}

void landscape(Painting& painting, SeededRandom& random)
{
    const Perlin field{random.next()};
    const double h = painting.height();
    const double unit = std::max(1.0, h / 1400); // the pixels of a fine line
    const auto map = std::make_shared<const ElevationMap>(field, painting.width() / h, 1, 2 / h);
    painting.raster(painting.all(), 1.0, [=](double x, double y) {
        const ElevationMap::Land land = map->at(x, y);
        const double pixel = std::max(land.steepness(), 0.12) / h;
        const RGBA ground = shaded(layerTint(land.height, pixel), land);
        const double beach = coverage(std::abs(land.height - shore) / pixel, 1.4 * unit);
        return laidOver(laidOver(ground, contour(land.height, pixel, unit)), hex(0x2A6C9B, 0.6 * beach));
    });
}

} // namespace

void paintAtlasWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(hex(0xE9E1C6));
    landscape(painting, random);
    paintMapFurniture(painting);
    painting.grain(0.02, random);
    painting.vignette(0.15);
}

} // namespace ambrelle
