// SPDX-License-Identifier: MIT

#include "skins/night/NightWallpaper.h"
#include "skins/WallpaperRecipes.h"

#include <array>

namespace ambrelle {

namespace {

constexpr double radius = 0.45;

constexpr NightLight light(double x, double y, const RGBA& colour)
{
    return {{x, y}, radius, colour};
}

constexpr std::array lights{light(0.25, 0.28, hex(0xFF4468, 0.22)), light(0.5, 0.18, hex(0x9BEA1B, 0.16)),
    light(0.76, 0.3, hex(0x22DDEB, 0.2))};

/// Around each lamp a ring, closed so far, of its own colour; dim where it begins at the top.
void ring(Painting& painting, const NightLight& lamp, double closed)
{
    const QPointF centre = painting.at(lamp.at.x(), lamp.at.y());
    const double size = std::min(painting.height(), painting.width() / 1.6);
    const QPointF reach(0.125 * size, 0.125 * size);
    const double thickness = 0.032 * size;
    const auto shade = [&](double part) { return lamp.colour.withAlpha(part * lamp.colour.a); };

    const QRectF square(centre - reach, centre + reach);
    QPainterPath track;
    track.addEllipse(square);
    painting.stroke(track, thickness, shade(0.22));

    QPainterPath arc; // its angles run clockwise where y points up
    arc.arcMoveTo(square, -90);
    arc.arcTo(square, -90, 360 * closed);
    painting.stroke(
        arc, thickness, Ink::linear(square.topRight(), square.topLeft(), {{0, shade(0.1)}, {1, shade(0.7)}}));
}

void rings(Painting& painting)
{
    ring(painting, lights[0], 0.86);
    ring(painting, lights[1], 0.72);
    ring(painting, lights[2], 0.79);
}

} // namespace

void paintPulseWallpaper(Painting& painting, SeededRandom&)
{
    paintNight(painting,
        {.top = hex(0x0A0A0E),
            .bottom = hex(0x050507),
            .ornament = rings,
            .lights = {lights.begin(), lights.end()},
            .vignette = 0.45});
}

} // namespace ambrelle
