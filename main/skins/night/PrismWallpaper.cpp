// SPDX-License-Identifier: MIT

#include "skins/night/NightWallpaper.h"
#include "skins/WallpaperRecipes.h"

#include <QPolygonF>

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr QPointF split(0.46, 0.52); // in parts of the width and the height
constexpr double thickness = 0.02; // of the beam, in parts of the height

constexpr std::array spectrum{hex(0xFFD166), hex(0xFFA36A), hex(0xFF77A0), hex(0xB58CFF), hex(0x5FD0F5), hex(0x7BE3A1)};

void beam(Painting& painting)
{
    const QPointF from = painting.at(0, 0.36);
    const QPointF to = painting.at(split.x(), split.y());
    const QPointF way = to - from;
    const double lean = std::atan2(way.x(), way.y()) * 180 / std::numbers::pi;
    const QRectF left(0, 0, to.x(), painting.height());
    painting.fill(
        left, nightBand(to, lean, thickness * painting.height(), {{0, white(0)}, {0.5, white(0.1)}, {1, white(0)}}));
}

/// The colour of the fan from its upper (0) to its lower side (1): in the middle of each wedge its own.
RGBA spectrumAt(double down)
{
    const double place = std::clamp(down * spectrum.size() - 0.5, 0.0, spectrum.size() - 1.0);
    const std::size_t upper = std::min(static_cast<std::size_t>(place), spectrum.size() - 2);
    return spectrum[upper].mixed(spectrum[upper + 1], place - static_cast<double>(upper));
}

/// The wedges, each cut into slices so that its colour passes into the next one's. They begin as the beam ends: white,
/// brightest in the middle.
void fan(Painting& painting)
{
    constexpr int slices = 6 * spectrum.size();
    const QPointF apex = painting.at(split.x(), split.y());
    const auto near = [&](double down) { return apex + QPointF(0, (0.5 - down) * thickness * painting.height()); };
    const auto far = [&](double down) { return painting.at(1, mix(0.85, 0.25, down)); };
    for (int i = 0; i < slices; ++i) {
        const double upper = static_cast<double>(i) / slices;
        const double lower = static_cast<double>(i + 1) / slices;
        const double middle = (upper + lower) / 2;
        const RGBA colour = spectrumAt(middle);
        const double whole = 1 - std::abs(2 * middle - 1);
        QPainterPath slice;
        slice.addPolygon(QPolygonF{near(upper), far(upper), far(lower), near(lower)});
        painting.fill(slice,
            Ink::linear(near(middle), far(middle),
                {{0, white(0.1 * smoothstep(0, 1, whole))}, {0.12, colour.withAlpha(0.14)},
                    {0.45, colour.withAlpha(0.11)}, {1, colour.withAlpha(0)}}));
    }
}

void refraction(Painting& painting)
{
    beam(painting);
    fan(painting);
}

} // namespace

void paintPrismWallpaper(Painting& painting, SeededRandom&)
{
    paintNight(painting,
        {.top = hex(0x101018),
            .bottom = hex(0x0A0A10),
            .ornament = refraction,
            .lights = {{split, 0.12, white(0.1)}},
            .vignette = 0.4});
}

} // namespace ambrelle
