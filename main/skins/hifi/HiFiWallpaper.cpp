// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"

#include <QPainter>

#include <array>

namespace ambrelle {

namespace {

void walnutGround(Painting& painting, SeededRandom& random)
{
    constexpr RGBA pore = hex(0x3A2212);
    constexpr RGBA wood = hex(0x6A4526);
    const Perlin veins{random.next()};
    painting.raster(painting.all(), 1.5, [=](double x, double y) {
        const double along = 1.2 * x + 0.15 * veins.fbm(3 * x, 3 * y, 2, 2);
        const double grain = smoothstep(0.12, 0.88, veins.fbm(along, 18 * y, 4, 2));
        const double fibres = veins.noise(9 * along, 260 * y);
        return pore.mixed(wood, grain).scaled(1 + 0.07 * fibres).withAlpha(0.8);
    });
}

/// Slotted screws from the bottom to the top of a rail, each turned as far as it went.
void screws(Painting& painting, double middle, double radius)
{
    const double pitch = 0.12 * painting.height();
    const QRectF column(middle - 1.3 * radius, 0, 2.6 * radius, painting.height());
    const auto each = [&](QPointF offset, const Ink& ink, const std::function<void(QPainter&)>& draw) {
        painting.stencil(column, ink, [&](QPainter& painter) {
            for (int i = 0; i < 8; ++i) {
                painter.save();
                painter.translate(QPointF(middle, (i + 0.5) * pitch + 0.02 * painting.height()) + offset);
                painter.rotate(i * 67 % 180);
                draw(painter);
                painter.restore();
            }
        });
    };
    const auto disc = [](double size) {
        return [size](QPainter& painter) { painter.drawEllipse(QPointF(), size, size); };
    };
    const auto slot = [radius](QPainter& painter) {
        painter.drawRect(QRectF(-0.8 * radius, -0.11 * radius, 1.6 * radius, 0.22 * radius));
    };
    const QPointF side(radius, 0);
    const QPointF centre(middle, 0);
    each({0, -0.1 * radius}, hex(0x2A1E10, 0.8), disc(1.12 * radius));
    each({}, Ink::linear(centre - side, centre + side, {{0, hex(0xF6EBC8)}, {1, hex(0x8E7A4B)}}), disc(radius));
    each({0, -0.1 * radius}, white(0.35), slot);
    each({}, hex(0x2A1E10, 0.9), slot);
}

void rail(Painting& painting, double x)
{
    const double middle = x * painting.width();
    const double half = 0.006 * painting.width();
    const QPointF side(half, 0);
    const QPointF centre(middle, 0);
    const QRectF face(middle - half, 0, 2 * half, painting.height());
    const double shadow = 2.2 * half;
    painting.fill(face.adjusted(-shadow, 0, shadow, 0),
        Ink::linear(centre - 3.2 * side, centre + 3.2 * side,
            {{0, black(0)}, {0.3, black(0.4)}, {0.7, black(0.4)}, {1, black(0)}}));
    painting.fill(face,
        Ink::linear(centre - side, centre + side,
            {{0, hex(0x8A7A50)}, {0.1, hex(0xF6EBC8)}, {0.35, hex(0xD6C596)}, {0.55, hex(0xB5A273)},
                {0.9, hex(0x9C895B)}, {1, hex(0x4E4228)}}));
    screws(painting, middle, 0.75 * half);
}

} // namespace

void paintHiFiWallpaper(Painting& painting, SeededRandom& random)
{
    painting.verticalGradient(hex(0x4A2E1A), hex(0x2A180C));
    walnutGround(painting, random);
    rail(painting, 0.03);
    rail(painting, 0.97);
    painting.glow(painting.at(0.5, 0.9), 0.6 * painting.height(), hex(0xFFB060, 0.22));
    painting.grain(0.03, random);
    painting.vignette(0.5);
}

} // namespace ambrelle
