// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/kyoto/Bamboo.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/Ridge.h"

#include <array>
#include <cmath>

namespace ambrelle {

namespace {

constexpr RGBA accent = hex(0xB3261E);
constexpr RGBA paper = hex(0xEFE7D6);
constexpr RGBA sumi = hex(0x1E1B18);

void fibres(Painting& painting, const Perlin& washi)
{
    painting.raster(painting.all(), 3.0, [washi](double x, double y) {
        const double tint = washi.fbm(3 * x, 9 * y, 3, 2) - 0.5;
        return hex(tint < 0 ? 0xFFFFFF : 0x8A7448, 0.18 * std::abs(tint));
    });
}

/// Three ranges of thin ink, the nearest darkest: each a little stronger along its crest, and each standing in mist.
void mountains(Painting& painting, SeededRandom& random)
{
    struct Range {
        double base;
        double amplitude;
        double ink;
    };
    constexpr std::array<Range, 3> ranges{{{0.27, 0.10, 0.10}, {0.18, 0.13, 0.16}, {0.09, 0.16, 0.26}}};
    const double h = painting.height();
    for (const Range& range : ranges) {
        const Heights heights = smoothed(ridge(257, 0.52, random), 9);
        const double crest = range.base + 0.7 * range.amplitude;
        const double foot = range.base - 0.8 * range.amplitude;
        fillRidge(painting, heights, range.base, range.amplitude,
            Ink::linear({0, crest * h}, {0, foot * h},
                {{0, sumi.withAlpha(1.25 * range.ink)}, {0.4, sumi.withAlpha(range.ink)},
                    {1, sumi.withAlpha(0.6 * range.ink)}}));
        fillRidge(painting, heights, range.base, range.amplitude,
            Ink::linear({0, range.base * h}, {0, foot * h},
                {{0, paper.withAlpha(0)}, {0.6, paper.withAlpha(0.45)}, {1, paper.withAlpha(0.8)}}));
    }
}

/// The sun, stamped in red; the washi takes the colour unevenly, most at the rim.
void disc(Painting& painting, const Perlin& washi)
{
    const double x = std::min(0.78 * painting.width(), painting.width() - 0.18 * painting.height());
    const QPointF centre(x, 0.74 * painting.height());
    constexpr double part = 0.11; // of the height
    const double radius = part * painting.height();
    const QRectF square(centre.x() - 1.02 * radius, centre.y() - 1.02 * radius, 2.04 * radius, 2.04 * radius);
    const QPointF c = centre / painting.height();
    const double soft = 1.5 / radius;
    painting.raster(square, 1.0, [=](double right, double up) {
        const double u = (right - c.x()) / part;
        const double v = (up - c.y()) / part;
        const double distance = std::sqrt(u * u + v * v);
        if (distance >= 1)
            return accent.withAlpha(0);
        const double dry = washi.fbm(7 * right, 30 * up, 3, 2);
        const double ink = 0.85 - 0.22 * smoothstep(0.5, 0.8, dry) + 0.06 * smoothstep(0.9, 1, distance);
        return accent.withAlpha(ink * smoothstep(1, 1 - soft, distance));
    });
}

} // namespace

void paintKyotoWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(paper);
    const Perlin washi{random.next()};
    fibres(painting, washi);
    mountains(painting, random);
    disc(painting, washi);
    paintBamboo(painting, sumi, random);
    painting.grain(0.02, random);
    painting.vignette(0.12);
}

} // namespace ambrelle
