// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"
#include "skins/WoodenFrame.h"

#include <QPainter>

#include <array>
#include <numbers>

namespace ambrelle {

namespace {

void tone(Painting& painting, const Perlin& field)
{
    painting.raster(painting.all(), 2.0,
        [field](double x, double y) { return hex(0xA87843).mixed(hex(0xC99A63), field.fbm(3 * x, 3 * y, 5, 2)); });
}

/// The pressed granules, dark and light ones of several sizes with soft edges.
void granules(Painting& painting, const Perlin& field)
{
    static constexpr RGBA dark = hex(0x7A5128);
    static constexpr RGBA light = hex(0xDDB683);
    painting.raster(painting.all(), 1.0, [field](double x, double y) {
        const double value = field.fbm(40 * x, 40 * y, 3, 2.7, 0.95);
        if (value < 0.5)
            return dark.withAlpha(0.5 * smoothstep(0.47, 0.06, value));
        return light.withAlpha(0.5 * smoothstep(0.53, 0.92, value));
    });
}

/// Where pins were: a dark hole in a pale, raised ring.
void pinHoles(Painting& painting, SeededRandom& random)
{
    struct Hole {
        QPointF centre;
        double radius;
    };
    std::array<Hole, 9> holes;
    for (Hole& hole : holes) {
        const double x = random.in(0.04, 0.96);
        const double y = random.in(0.06, 0.94);
        hole = {painting.at(x, y), random.in(0.0014, 0.0024) * painting.height()};
    }
    const auto discs = [&](double size, const QPointF& shift) {
        return [&holes, size, shift](QPainter& painter) {
            for (const Hole& hole : holes)
                painter.drawEllipse(hole.centre + shift * hole.radius, size * hole.radius, size * hole.radius);
        };
    };
    painting.stencil(painting.all(), hex(0xE6C595, 0.55), discs(2, {0.15, -0.25}));
    painting.stencil(painting.all(), hex(0x3A2410, 0.85), discs(1, {0, 0}));
}

/// Bits of bark.
void flecks(Painting& painting, SeededRandom& random)
{
    const double length = 0.004 * painting.height();
    painting.stencil(painting.all(), hex(0x5A3A1C, 0.7), [&](QPainter& painter) {
        for (int fleck = 0; fleck < 60; ++fleck) {
            const double x = random.in(0, painting.width());
            const double y = random.in(0, painting.height());
            const double angle = random.in(0, std::numbers::pi);
            painter.save();
            painter.translate(x, y);
            painter.rotate(angle * 180 / std::numbers::pi);
            painter.drawEllipse(QPointF(), length / 2, length / 5);
            painter.restore();
        }
    });
}

} // namespace

void paintCorkWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(hex(0xB98A55));
    const Perlin wide{random.next()};
    tone(painting, wide);
    const Perlin fine{random.next()};
    granules(painting, fine);
    pinHoles(painting, random);
    flecks(painting, random);
    paintWoodenFrame(painting, 0.02 * painting.height(), hex(0x6B4524), wide);
    painting.grain(0.03, random);
    painting.vignette(0.3);
}

} // namespace ambrelle
