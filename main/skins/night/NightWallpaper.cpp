// SPDX-License-Identifier: MIT

#include "skins/night/NightWallpaper.h"

#include <cmath>
#include <numbers>

namespace ambrelle {

void paintNight(Painting& painting, const NightSky& sky)
{
    painting.verticalGradient(sky.top, sky.bottom);
    if (sky.ornament)
        sky.ornament(painting);
    for (const NightLight& light : sky.lights)
        painting.softGlow(painting.at(light.at.x(), light.at.y()), light.radius * painting.height(), light.colour);
    painting.vignette(sky.vignette);
}

Ink nightBand(QPointF middle, double lean, double width, const GradientStops& across)
{
    const double angle = lean * std::numbers::pi / 180;
    const QPointF half = QPointF(std::cos(angle), -std::sin(angle)) * width / 2;
    return Ink::linear(middle - half, middle + half, eased(across), Ink::Ends::open);
}

} // namespace ambrelle
