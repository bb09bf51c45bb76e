// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/Ridge.h"

#include <cmath>

namespace ambrelle {

namespace {

constexpr RGBA accent = hex(0x7FE9D0);
constexpr RGBA accent2 = hex(0xB49BFF);
constexpr RGBA snow = hex(0xDDF3FA);

constexpr double shore = 0.08;
constexpr double base = 0.16;
constexpr double amplitude = 0.12;

/// What makes the aurora; the same fields shape the land below it.
struct Fields {
    Perlin folds;
    Perlin rays;
};

/// One curtain of light: its lower hem is sharper than the rays that rise from it. In units of the height.
void aurora(Painting& painting, const Fields& fields)
{
    const QRectF sky(0, shore * painting.height(), painting.width(), (1 - shore) * painting.height());
    painting.raster(sky, 3.0, [fields](double x, double y) {
        const double brightest = 0.62 + 0.12 * (fields.folds.fbm(1.3 * x, 0.5, 3, 2) - 0.5) * 2;
        const double above = y - brightest;
        const double reach = above / (above < 0 ? 0.1 : 0.2);
        const double ray = smoothstep(0.2, 0.8, fields.rays.fbm(7 * x, 1.2 * y, 3, 2));
        const double brightness = std::exp(-reach * reach) * (0.55 + 0.45 * ray);
        return accent.mixed(accent2, smoothstep(0.55, 0.9, y)).withAlpha(0.6 * brightness);
    });
}

/// The range stretched to rise from a third below its base to two thirds above, whatever was drawn: it neither sinks
/// behind the shore nor lies flat.
Heights raised(const Heights& heights)
{
    const auto [lowest, highest] = std::ranges::minmax(heights);
    const double span = std::max(highest - lowest, 0.01);
    Heights result;
    result.reserve(heights.size());
    for (const double height : heights)
        result.push_back((height - lowest) / span - 1.0 / 3);
    return result;
}

/// The height between two points of a range; `along` is 0 to 1.
double heightAt(const Heights& heights, double along)
{
    const double place = std::clamp(along, 0.0, 1.0) * static_cast<double>(heights.size() - 1);
    const std::size_t left = std::min(static_cast<std::size_t>(place), heights.size() - 2);
    return mix(heights[left], heights[left + 1], place - static_cast<double>(left));
}

/// Snow in the gullies below the crest.
void snowfields(Painting& painting, const Heights& heights, const Fields& fields)
{
    const double top = base + amplitude * *std::ranges::max_element(heights);
    const QRectF slopes(0, shore * painting.height(), painting.width(), (top - shore) * painting.height());
    const double aspect = painting.width() / painting.height();
    painting.raster(slopes, 2.0, [=, slope = smoothed(heights, 2)](double x, double y) {
        const double below = base + amplitude * heightAt(heights, x / aspect) - y;
        if (below < 0)
            return snow.withAlpha(0);
        const double lit = heightAt(slope, x / aspect + 0.01) - heightAt(slope, x / aspect - 0.01);
        const double gullies = fields.folds.ridged(11 * x + 6 * below, 14 * y, 4);
        const double cover = smoothstep(0.3, 0.75, gullies) * std::exp(-below / 0.03);
        return snow.mixed(accent, 0.35).withAlpha(cover * std::clamp(0.22 + 1.2 * lit, 0.08, 0.4));
    });
}

void mountains(Painting& painting, SeededRandom& random, const Fields& fields)
{
    constexpr RGBA rock = hex(0x0C2230);
    const Heights heights = raised(ridge(129, 0.5, random));
    fillRidge(painting, heights, base, amplitude, rock);
    snowfields(painting, heights, fields);
    painting.stroke(
        ridgeLine(painting, heights, base, amplitude), std::max(painting.height() / 900, 1.0), snow.withAlpha(0.3));
}

/// A frozen bay with a shimmer of the aurora and drifts of snow that draw together towards the shore.
void ice(Painting& painting, const Fields& fields)
{
    const double edge = std::max(std::round(shore * painting.height()), 1.0);
    const QRectF bay(0, 0, painting.width(), edge);
    painting.fill(bay, Ink::linear({0, edge}, {0, 0}, {{0, hex(0x17394A)}, {1, hex(0x0A1E2A)}}));
    const double middle = painting.width() / painting.height() / 2;
    painting.raster(bay, 2.0, [=](double x, double y) {
        const double near = 1 - y / shore;
        const double distance = 1 / (near + 0.15);
        const double drift = fields.folds.fbm((x - middle) * 1.7 * distance + 9, 2.1 * distance, 2, 2);
        const double shimmer = fields.rays.fbm(7 * x, 0.6 + 0.3 * near, 3, 2) * (1 - near) * (1 - near);
        const double cover = smoothstep(0.5, 0.62, drift) * smoothstep(0.1, 0.4, near);
        return accent.mixed(snow, near).withAlpha(0.07 * cover + 0.3 * shimmer);
    });
}

} // namespace

void paintPolarWallpaper(Painting& painting, SeededRandom& random)
{
    painting.verticalGradient(hex(0x06121F), hex(0x0F3342));
    painting.stars(countFor(painting, 9000), 1.0, random);
    const Perlin folds{random.next()};
    const Perlin rays{random.next()};
    const Fields fields{folds, rays};
    aurora(painting, fields);
    mountains(painting, random, fields);
    ice(painting, fields);
    painting.grain(0.02, random);
    painting.vignette(0.4);
}

} // namespace ambrelle
