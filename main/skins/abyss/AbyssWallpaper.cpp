// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/Ridge.h"

#include <QPainter>

#include <array>
#include <vector>

namespace ambrelle {

namespace {

struct Shaft {
    double head; ///< the middle at the surface, in pixels
    double foot; ///< and in the depth
    double width; ///< against that of the others
};

constexpr double deepest = 0.16;

/// Soft edges by sheets within sheets, each narrower.
void drawShaft(QPainter& painter, const Shaft& shaft, double h)
{
    constexpr int sheets = 8;
    for (int sheet = 0; sheet < sheets; ++sheet) {
        const double narrow = shaft.width * (1 - static_cast<double>(sheet) / sheets);
        const double top = 0.022 * h * narrow;
        const double bottom = 0.1 * h * narrow;
        painter.drawPolygon(QPolygonF{{shaft.head - top, h}, {shaft.head + top, h}, {shaft.foot + bottom, deepest * h},
            {shaft.foot - bottom, deepest * h}});
    }
}

/// Light from the surface, fanned out from a sun high above the middle and lost in the depth.
void shafts(Painting& painting, SeededRandom& random)
{
    constexpr RGBA light = hex(0xC4FFEA);
    constexpr std::array<double, 7> widths{1, 0.45, 1.5, 0.7, 1.9, 0.55, 1.2};
    const double h = painting.height();
    std::vector<Shaft> all;
    for (const double width : widths) {
        const double x = random.in(0.06, 0.94);
        const double slant = random.in(-0.1, 0.06) + 0.7 * (x - 0.5);
        all.push_back({x * painting.width(), x * painting.width() + slant * h, width});
    }
    const Ink ink = Ink::linear({0, h}, {0, deepest * h},
        {{0, light.withAlpha(0.19)}, {0.35, light.withAlpha(0.1)}, {0.7, light.withAlpha(0.03)},
            {1, light.withAlpha(0)}});
    const QRectF area(QPointF(0, deepest * h), QPointF(painting.width(), h));
    painting.stencil(area, ink, [&](QPainter& painter) {
        painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.1F));
        for (const Shaft& shaft : all)
            drawShaft(painter, shaft, h);
    });
}

void murk(Painting& painting, SeededRandom& random)
{
    const Perlin field{random.next()};
    painting.raster(painting.all(), 2.5,
        [field](double x, double y) { return hex(0x0B2F38, 0.5 * field.fbm(1.5 * x, 1.5 * y, 4, 2)); });
}

/// Two banks of rock, the lamp on the crest of the farther one.
void seabed(Painting& painting, SeededRandom& random)
{
    constexpr RGBA rock = hex(0x03121A);
    const double h = painting.height();
    const Heights banks = smoothed(ridge(129, 0.5, random), 3);
    fillRidge(painting, banks, 0.10, 0.06,
        Ink::linear({0, 0.15 * h}, {0, 0.05 * h}, {{0, rock.mixed(hex(0x1C5560), 0.5)}, {1, rock}}));
    const Heights floor = smoothed(ridge(129, 0.5, random), 3);
    fillRidge(painting, floor, 0.05, 0.06, hex(0x01090E));
}

struct Bubble {
    QPointF centre;
    double radius;
};

std::vector<Bubble> scatterBubbles(const Painting& painting, SeededRandom& random)
{
    std::vector<Bubble> bubbles(60);
    for (Bubble& bubble : bubbles) {
        const double x = random.in(0, 1);
        const double y = random.in(0.06, 1);
        bubble.centre = painting.at(x, y);
        bubble.radius = random.in(0.001, 0.006) * painting.height();
    }
    return bubbles;
}

/// Thin skins of air, a little fuller inside, with the light of the surface on them.
void bubbles(Painting& painting, SeededRandom& random)
{
    const std::vector<Bubble> all = scatterBubbles(painting, random);
    const double line = std::max(1.0, 0.0007 * painting.height());
    painting.stencil(painting.all(), hex(0x9FE8DC, 0.4), [&](QPainter& painter) {
        for (const Bubble& bubble : all) {
            painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.14F));
            painter.setPen(QPen(QColor::fromRgbF(0, 0, 0, 0.55F), line));
            painter.drawEllipse(bubble.centre, bubble.radius, bubble.radius);
            const double gleam = 0.26 * bubble.radius;
            painter.setPen(Qt::NoPen);
            painter.setBrush(Qt::black);
            painter.drawEllipse(bubble.centre + QPointF(-0.34, 0.36) * bubble.radius, gleam, gleam);
        }
    });
}

} // namespace

void paintAbyssWallpaper(Painting& painting, SeededRandom& random)
{
    painting.verticalGradient(hex(0x0E4A57), hex(0x020A10));
    shafts(painting, random);
    murk(painting, random);
    seabed(painting, random);
    painting.glow(painting.at(0.5, 0.3), 0.5 * painting.height(), hex(0x2FA7A0, 0.18));
    bubbles(painting, random);
    painting.grain(0.03, random);
    painting.vignette(0.6);
}

} // namespace ambrelle
