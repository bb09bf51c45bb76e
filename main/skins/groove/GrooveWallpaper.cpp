// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

namespace {

constexpr RGBA ground = hex(0x7A3B14);

/// Five stripes around a centre, from the outside in, and the ground again within; `unit` is what radii are parts of.
void stripes(Painting& painting, QPointF centre, double unit)
{
    double radius = 1.05;
    for (const RGBA& colour : {hex(0xC94F2B), hex(0xF58A33), hex(0xE9BA45), hex(0xFBE7BF), hex(0x4A2511), ground}) {
        QPainterPath disc;
        disc.addEllipse(centre, radius * unit, radius * unit);
        painting.fill(disc, colour);
        radius -= 0.09;
    }
}

void wear(Painting& painting, SeededRandom& random)
{
    const Perlin cloth{random.next()};
    painting.raster(
        painting.all(), 3.0, [=](double x, double y) { return black(0.06 * cloth.fbm(4 * x, 4 * y, 3, 2)); });
}

} // namespace

void paintGrooveWallpaper(Painting& painting, SeededRandom& random)
{
    const double unit = std::min(painting.height(), 0.75 * painting.width()); // keeps the two apart on upright screens
    painting.fill(ground);
    stripes(painting, {0, -0.1 * unit}, unit);
    stripes(painting, {painting.width(), painting.height() + 0.1 * unit}, 0.55 * unit);
    wear(painting, random);
    painting.grain(0.03, random);
    painting.vignette(0.35);
}

} // namespace ambrelle
