#include "skins/night/NightWallpaper.h"

#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

/// The same colours at the same places, but between them the way starts and ends slowly: no crease shows where one
/// slope meets the next.
GradientStops eased(const GradientStops& stops)
{
    constexpr int steps = 12;
    GradientStops result{stops.front()};
    for (std::size_t i = 1; i < stops.size(); ++i) {
        for (int step = 1; step <= steps; ++step) {
            const double t = static_cast<double>(step) / steps;
            result.push_back({mix(stops[i - 1].location, stops[i].location, t),
                stops[i - 1].colour.mixed(stops[i].colour, smoothstep(0, 1, t))});
        }
    }
    return result;
}

void shine(Painting& painting, const NightLight& light)
{
    const GradientStops stops{{0, light.colour}, {1, light.colour.withAlpha(0)}};
    painting.fill(Ink::radial(painting.at(light.at.x(), light.at.y()), light.radius * painting.height(), eased(stops)));
}

} // namespace

void paintNight(Painting& painting, const NightLook& look)
{
    painting.verticalGradient(look.top, look.bottom);
    if (look.ornament)
        look.ornament(painting);
    for (const NightLight& light : look.lights)
        shine(painting, light);
    painting.vignette(look.vignette);
}

Ink nightBand(QPointF middle, double lean, double width, const GradientStops& across)
{
    const double angle = lean * std::numbers::pi / 180;
    const QPointF half = QPointF(std::cos(angle), -std::sin(angle)) * width / 2;
    return Ink::linear(middle - half, middle + half, eased(across), Ink::Ends::open);
}

} // namespace ambrelle
