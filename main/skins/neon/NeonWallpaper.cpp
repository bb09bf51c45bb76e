// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"
#include "wallpapers/Ridge.h"

#include <QPainter>

namespace ambrelle {

namespace {

constexpr RGBA accent = hex(0xFF4FA8);
constexpr RGBA skyTop = hex(0x0D0524);
constexpr RGBA skyBottom = hex(0x5C0D61);
constexpr double horizon = 0.33;
constexpr double sunHeight = 0.46;

/// Seven slits, thicker and closer towards the horizon; in units of the sun's radius above its centre.
QPainterPath slits(QPointF centre, double radius)
{
    QPainterPath path;
    for (int i = 0; i < 7; ++i) {
        const double middle = centre.y() + (0.24 - 0.135 * i) * radius;
        const double thickness = (0.018 + 0.013 * i) * radius;
        path.addRect(QRectF(centre.x() - 1.1 * radius, middle - thickness / 2, 2.2 * radius, thickness));
    }
    return path;
}

void sun(Painting& painting)
{
    const QPointF centre = painting.at(0.5, sunHeight);
    const double radius = 0.17 * painting.height();
    const auto haze = [](double alpha) { return accent.withAlpha(alpha); };
    painting.fill(Ink::radial(centre, 2.6 * radius,
        {{0, haze(0.45)}, {0.38, haze(0.32)}, {0.55, haze(0.16)}, {0.75, haze(0.05)}, {1, haze(0)}}));
    QPainterPath disc;
    disc.addEllipse(centre, radius, radius);
    const QPointF up(0, radius);
    painting.fill(disc.subtracted(slits(centre, radius)),
        Ink::linear(centre - up, centre + up, {{0, accent}, {0.35, hex(0xFF6E8C)}, {1, hex(0xFFD24A)}}));
}

/// Mountains against the sun, which lines their crests with light.
void mountains(Painting& painting, SeededRandom& random, double base, const RGBA& colour)
{
    constexpr double amplitude = 0.06;
    const Heights heights = ridge(129, 0.55, random);
    fillRidge(painting, heights, base, amplitude, colour);
    const Ink light = Ink::radial(painting.at(0.5, sunHeight), 0.75 * painting.height(),
        {{0, accent.withAlpha(0.75)}, {0.3, accent.withAlpha(0.45)}, {1, accent.withAlpha(0)}});
    const double thickness = std::max(0.0011 * painting.height(), 1.0);
    painting.stroke(ridgeLine(painting, heights, base, amplitude), thickness, light);
}

/// The lines of a floor that runs to the horizon; `thickness` is that of the nearest ones, as a part of the height.
void floorLines(QPainter& painter, const Painting& painting, double thickness)
{
    const double far = horizon * painting.height();
    const double near = thickness * painting.height();
    for (int i = 0; i < 24; ++i) {
        const double x = painting.width() / 2 + (i - 11.5) * 0.2 * painting.height();
        painter.drawPolygon(QPolygonF{{painting.width() / 2, far}, {x - 0.9 * near, 0}, {x + 0.9 * near, 0}});
    }
    for (int i = 0; i < 14; ++i) {
        const double closeness = i / 14.0;
        const double line = std::max(mix(0.3, 1, closeness) * near, 1.0);
        painter.drawRect(QRectF(0, far * (1 - closeness * closeness) - line / 2, painting.width(), line));
    }
}

void gridFloor(Painting& painting)
{
    const QRectF floor(0, 0, painting.width(), horizon * painting.height());
    painting.fill(floor, hex(0x120427));
    const QPointF far = painting.at(0.5, horizon);
    const QPointF near = painting.at(0.5, 0);
    painting.fill(
        floor, Ink::radial(far, 0.5 * painting.height(), {{0, accent.withAlpha(0.22)}, {1, accent.withAlpha(0)}}));
    const auto lines = [&](double alpha, double thickness) {
        painting.stencil(floor,
            Ink::linear(far, near, {{0, accent.withAlpha(alpha)}, {1, accent.withAlpha(0.3 * alpha)}}),
            [&](QPainter& painter) { floorLines(painter, painting, thickness); });
    };
    lines(0.1, 0.011);
    lines(0.55, 0.003);
    const double glow = 0.02 * painting.height();
    painting.fill(QRectF(0, far.y() - glow, painting.width(), glow),
        Ink::linear(far, far - QPointF(0, glow),
            {{0, accent.withAlpha(0.4)}, {0.3, accent.withAlpha(0.12)}, {1, accent.withAlpha(0)}}));
}

} // namespace

void paintNeonWallpaper(Painting& painting, SeededRandom& random)
{
    painting.verticalGradient(skyTop, skyBottom);
    painting.stars(countFor(painting, 9000), 1.0, random);
    sun(painting);
    mountains(painting, random, 0.36, hex(0x1B0838));
    mountains(painting, random, 0.33, hex(0x10041F));
    gridFloor(painting);
    painting.grain(0.02, random);
    painting.vignette(0.45);
}

} // namespace ambrelle
