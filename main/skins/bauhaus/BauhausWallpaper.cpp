// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

#include <QPainter>

#include <cmath>

namespace ambrelle {

namespace {

constexpr RGBA red = hex(0xC8221A);
constexpr RGBA blue = hex(0x1F4E9C);
constexpr RGBA yellow = hex(0xF2B61B);
constexpr RGBA ink = hex(0x141414);

/// What shapes are measured by: the height, and on upright screens less, so that they leave the middle free.
double unitOf(const Painting& painting)
{
    return std::min(painting.height(), 0.7 * painting.width());
}

void quarterDisc(Painting& painting)
{
    const double radius = 0.62 * unitOf(painting);
    QPainterPath disc;
    disc.addEllipse(QPointF(0, 0), radius, radius);
    painting.fill(disc, red);
}

/// The half below a diagonal.
void halfDisc(Painting& painting)
{
    const double radius = 0.26 * unitOf(painting);
    const QPointF reach(radius, radius);
    const QRectF square(painting.at(0.86, 0.62) - reach, painting.at(0.86, 0.62) + reach);
    painting.stencil(square, blue, [&](QPainter& painter) { painter.drawPie(square, 45 * 16, 180 * 16); });
}

void diamond(Painting& painting)
{
    const QPointF centre = painting.at(0.72, 0.16);
    const double reach = 0.09 * std::sqrt(2) * unitOf(painting);
    QPainterPath square;
    square.addPolygon({{centre - QPointF(reach, 0), centre + QPointF(0, reach), centre + QPointF(reach, 0),
        centre - QPointF(0, reach)}});
    painting.fill(square, yellow);
}

void bars(Painting& painting)
{
    const double unit = unitOf(painting);
    const QPointF middle = painting.at(0.6, 0.9);
    QPainterPath path;
    for (int i = -2; i <= 2; ++i)
        path.addRect(QRectF(middle.x(), middle.y() + (0.03 * i - 0.006) * unit, 0.4 * painting.width(), 0.012 * unit));
    painting.fill(path, ink);
}

void rings(Painting& painting)
{
    const QPointF centre = painting.at(0.28, 0.74);
    const double unit = unitOf(painting);
    QPainterPath path;
    for (const double radius : {0.06, 0.1, 0.14})
        path.addEllipse(centre, radius * unit, radius * unit);
    painting.stroke(path, std::max(0.003 * unit, 1.0), black(0.5));
}

} // namespace

void paintBauhausWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(hex(0xEADBB8));
    quarterDisc(painting);
    halfDisc(painting);
    diamond(painting);
    bars(painting);
    rings(painting);
    painting.grain(0.02, random);
}

} // namespace ambrelle
