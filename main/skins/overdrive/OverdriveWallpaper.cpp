// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace ambrelle {

namespace {

constexpr RGBA accent = hex(0xFCEE0A);
constexpr RGBA cyan = hex(0x18E0F0);
constexpr RGBA ground = hex(0x0B0B0C);
constexpr double hazardHeight = 0.045;

void smog(Painting& painting, SeededRandom& random)
{
    const Perlin glare{random.next()};
    painting.raster(painting.all(), 2.0, [=](double x, double y) {
        return ground.mixed(hex(0x3A3406), smoothstep(0.36, 0.8, glare.fbm(1.6 * x, 1.6 * y, 5, 2)));
    });
    const Perlin interference{random.next()};
    painting.raster(painting.all(), 2.0,
        [=](double x, double y) { return cyan.withAlpha(0.06 * interference.ridged(6 * x, 6 * y, 3)); });
}

/// Two columns of windows, some of them lit; which ones depends on the tower alone.
void windows(Painting& painting, const QRectF& tower, std::uint64_t number)
{
    const double pitch = 0.011 * painting.height();
    const double side = 0.2 * tower.width();
    SeededRandom tenants{number};
    const RGBA light = number % 4 == 0 ? cyan.withAlpha(0.32) : accent.withAlpha(0.3);
    painting.stencil(tower, light, [&](QPainter& painter) {
        for (double y = tower.bottom() - 1.8 * pitch; y > hazardHeight * painting.height(); y -= pitch) {
            for (const double column : {0.22, 0.58}) {
                if (tenants.in(0, 1) < 0.24)
                    painter.drawRect(QRectF(tower.left() + column * tower.width(), y, side, 0.36 * pitch));
            }
        }
    });
}

/// The glow of the streets, which the towers stand out from.
void streetLight(Painting& painting)
{
    painting.fill(QRectF(0, 0, painting.width(), 0.42 * painting.height()),
        Ink::linear(painting.at(0, 0), painting.at(0, 0.42),
            {{0, accent.withAlpha(0.2)}, {0.4, accent.withAlpha(0.07)}, {1, accent.withAlpha(0)}}));
}

std::vector<QRectF> scatterTowers(const Painting& painting, SeededRandom& random)
{
    constexpr int count = 46;
    std::vector<QRectF> towers;
    towers.reserve(count);
    for (int i = 0; i < count; ++i) {
        const double x = (i + random.in(-0.6, 1.6)) / count * painting.width();
        const double width = random.in(0.022, 0.055) * painting.height();
        const double height = random.in(0.05, 0.32) * painting.height();
        towers.emplace_back(x - width / 2, 0, width, height);
    }
    return towers;
}

/// The low ones in front.
void skyline(Painting& painting, SeededRandom& random)
{
    std::vector<QRectF> towers = scatterTowers(painting, random);
    std::ranges::stable_sort(towers, std::ranges::greater(), &QRectF::height);
    const double edge = std::max(0.001 * painting.height(), 1.0);
    std::uint64_t number = 0;
    for (const QRectF& tower : towers) {
        painting.fill(tower, hex(0x121214));
        QPainterPath outline;
        outline.addRect(tower);
        outline.addRect(tower.adjusted(edge, 0, -edge, -edge));
        painting.fill(outline, hex(0x33321F));
        windows(painting, tower, number++);
    }
}

/// A strip that leans by 45 degrees and hangs from the upper edge, its foot cut level. Measures in parts of the height,
/// less on upright screens: the distance of its upper right corner from the right edge, how wide it is, and how far
/// down it reaches.
struct Slab {
    double fromRight;
    double width;
    double length;
};

void slabs(Painting& painting)
{
    constexpr std::array<Slab, 3> all{{{-0.04, 0.075, 0.26}, {0.08, 0.05, 0.17}, {0.165, 0.022, 0.22}}};
    const double unit = std::min(painting.height(), 0.9 * painting.width());
    QPainterPath path;
    for (const Slab& slab : all) {
        const double right = painting.width() - slab.fromRight * unit;
        const QPointF foot = QPointF(-slab.length, -slab.length) * unit;
        const QPointF corner(right, painting.height());
        const QPointF side(-slab.width * unit, 0);
        path.addPolygon({{corner, corner + side, corner + side + foot, corner + foot, corner}});
    }
    painting.fill(path, accent);
}

void hazardBand(Painting& painting)
{
    const double height = hazardHeight * painting.height();
    const QRectF band(0, 0, painting.width(), height);
    painting.fill(band, ground);
    painting.stencil(band, accent, [&](QPainter& painter) {
        for (double x = -height; x < painting.width(); x += 2 * height)
            painter.drawPolygon(QPolygonF{{x, 0}, {x + height, 0}, {x + 2 * height, height}, {x + height, height}});
    });
}

void scanLines(Painting& painting)
{
    painting.stencil(painting.all(), black(0.12), [&](QPainter& painter) {
        for (int y = 0; y < painting.height(); y += 4)
            painter.drawRect(QRectF(0, y, painting.width(), 1));
    });
}

} // namespace

void paintOverdriveWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(ground);
    smog(painting, random);
    streetLight(painting);
    skyline(painting, random);
    slabs(painting);
    hazardBand(painting);
    scanLines(painting);
    painting.grain(0.04, random);
    painting.vignette(0.55);
}

} // namespace ambrelle
