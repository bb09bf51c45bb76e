// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"

#include <array>
#include <cmath>

namespace ambrelle {

namespace {

struct Crater {
    double x;
    double y;
    double across; ///< radii per unit of the height, from side to side
    double along; ///< the same towards the horizon, where craters are seen flat
};
using Craters = std::array<Crater, 90>;

constexpr double horizon = 0.44;

/// A lit ball of seas under clouds. Everything in units of the height.
void planet(Painting& painting, SeededRandom& random)
{
    constexpr RGBA sea = hex(0x2E62B0);
    constexpr RGBA cloud = hex(0xE8EEF2);
    constexpr RGBA night = hex(0x05070C);
    const QPointF centre = painting.at(0.055, 0.86);
    const double radius = 0.075 * painting.height();
    painting.glow(centre, 1.5 * radius, rgb(0.4, 0.65, 1.0, 0.25));

    const Perlin lands{random.next()};
    const Perlin clouds{random.next()};
    const double reach = 1.1 * radius;
    const QRectF square(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach);
    const QPointF c = centre / painting.height();
    const double r = radius / painting.height();
    const double softEdge = 1.5 / radius;
    painting.raster(square, 1.2, [=](double x, double y) {
        const double u = (x - c.x()) / r;
        const double v = (y - c.y()) / r;
        const double distance = std::sqrt(u * u + v * v);
        if (distance >= 1)
            return night.withAlpha(0);
        const double w = std::sqrt(1 - distance * distance); // towards the eye
        const double light = smoothstep(-0.1, 0.9, 0.62 * u + 0.42 * v + 0.66 * w);
        const double land = smoothstep(0.52, 0.6, lands.fbm(3 * u + 7, 3 * v + 7, 5, 2));
        const double cover = smoothstep(0.45, 0.75, clouds.fbm(2.4 * u + 3, 5 * v, 5, 2));
        const RGBA ground = sea.mixed(hex(0x5C7A4E), 0.55 * land).mixed(cloud, cover);
        const RGBA lit = night.mixed(ground, light).mixed(hex(0x7FB2FF), 0.35 * smoothstep(0.75, 1, distance) * light);
        return lit.withAlpha(smoothstep(1, 1 - softEdge, distance));
    });
}

Craters scatterCraters(const Painting& painting, SeededRandom& random)
{
    Craters craters;
    for (Crater& crater : craters) {
        crater.x = random.in(0, painting.width() / painting.height());
        crater.y = random.in(0, 0.4);
        const double size = std::pow(random.in(0, 1), 2.2) * 0.07 + 0.006;
        crater.across = 1 / size;
        crater.along = 1 / (size * mix(0.62, 0.2, crater.y / 0.4));
    }
    return craters;
}

/// How much the craters brighten the ground (rims towards the light) or darken it (floors and the rims' shadows).
double relief(const Craters& craters, double x, double y)
{
    constexpr double reach = 1.5; // radii
    double sum = 0;
    for (const Crater& crater : craters) {
        const double v = (y - crater.y) * crater.along;
        const double u = (x - crater.x) * crater.across;
        const double squared = u * u + v * v;
        if (squared >= reach * reach)
            continue;
        const double distance = std::sqrt(squared);
        const double rim = smoothstep(0.7, 0.98, distance) * smoothstep(1.45, 1.02, distance);
        const double bowl = smoothstep(1, 0.55, distance);
        const double slope = (v * 0.5 - u * 0.8) / (distance + 0.05);
        sum += rim * (0.22 - 0.3 * slope) + bowl * (0.26 * slope - 0.16);
    }
    return sum;
}

void ground(Painting& painting, SeededRandom& random, const Craters& craters)
{
    constexpr RGBA lit = hex(0x6E6C68);
    constexpr RGBA shadow = hex(0x17171A);
    const Perlin dust{random.next()};
    const QRectF band(0, 0, painting.width(), horizon * painting.height());
    painting.raster(band, 2.0, [=](double x, double y) {
        const double edge = y < horizon - 0.04 ? horizon : horizon - 0.03 + 0.02 * dust.fbm(3 * x, 0.5, 3, 2);
        const double depth = y / horizon;
        const double rough = dust.fbm(5 * x, 5 * y / mix(0.9, 0.25, depth), 5, 2) - 0.5;
        const double light = 0.34 + 0.3 * rough + relief(craters, x, y) - 0.12 * depth;
        return shadow.mixed(lit, std::clamp(light, 0.0, 1.0)).withAlpha(smoothstep(edge, edge - 0.004, y));
    });
}

} // namespace

void paintApolloWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(rgb(0.005, 0.005, 0.012));
    painting.stars(countFor(painting, 7000), 1.0, random);
    planet(painting, random);
    const Craters craters = scatterCraters(painting, random);
    ground(painting, random, craters);
    painting.grain(0.025, random);
    painting.vignette(0.5);
}

} // namespace ambrelle
