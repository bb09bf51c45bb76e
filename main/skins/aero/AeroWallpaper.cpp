// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"
#include "wallpapers/Ridge.h"

#include <array>
#include <cmath>

namespace ambrelle {

namespace {

/// Sunlight that fades into the sky.
void sun(Painting& painting)
{
    painting.fill(Ink::radial(painting.at(0.78, 0.85), 0.65 * painting.height(),
        {{0, white(0.9)}, {0.05, white(0.62)}, {0.14, white(0.42)}, {0.34, white(0.2)}, {0.62, white(0.07)},
            {1, white(0)}}));
}

/// A band of light across the sky: its upper and its lower edge, each by four heights from left to right.
struct Ribbon {
    std::array<double, 4> upper;
    std::array<double, 4> lower;
};

void ribbons(Painting& painting)
{
    constexpr std::array<Ribbon, 3> all{{
        {{0.34, 0.40, 0.58, 0.95}, {0.33, 0.38, 0.46, 0.78}},
        {{0.32, 0.50, 0.50, 0.72}, {0.31, 0.44, 0.38, 0.56}},
        {{0.36, 0.30, 0.44, 0.66}, {0.35, 0.27, 0.38, 0.62}},
    }};
    const Ink light = Ink::linear(painting.at(0, 0.5), painting.at(1, 0.5),
        {{0, white(0)}, {0.25, white(0.06)}, {0.6, white(0.12)}, {1, white(0.1)}});
    const Ink shine = Ink::linear(painting.at(0, 0.5), painting.at(1, 0.5),
        {{0, white(0)}, {0.45, white(0.16)}, {0.7, white(0.32)}, {1, white(0.1)}});
    for (const auto& [upper, lower] : all) {
        QPainterPath edge(painting.at(-0.02, upper[0]));
        edge.cubicTo(painting.at(0.33, upper[1]), painting.at(0.66, upper[2]), painting.at(1.02, upper[3]));
        QPainterPath band = edge;
        band.lineTo(painting.at(1.02, lower[3]));
        band.cubicTo(painting.at(0.66, lower[2]), painting.at(0.33, lower[1]), painting.at(-0.02, lower[0]));
        painting.fill(band, light);
        painting.stroke(edge, std::max(0.0012 * painting.height(), 1.0), shine);
    }
}

/// A smooth curve through heights that stand side by side (Catmull, Rom: A class of local interpolating splines, 1974).
class Crest {
public:
    Crest(Heights heights, double base, double amplitude)
        : m_heights(std::move(heights))
        , m_base(base)
        , m_amplitude(amplitude)
    {
    }

    /// At `t`, 0 to 1 from left to right.
    double at(double t) const
    {
        const double place = std::clamp(t, 0.0, 1.0) * static_cast<double>(m_heights.size() - 1);
        const auto i = static_cast<std::size_t>(place);
        const std::size_t last = m_heights.size() - 1;
        const double a = m_heights[i > 0 ? i - 1 : 0];
        const double b = m_heights[i];
        const double c = m_heights[std::min(i + 1, last)];
        const double d = m_heights[std::min(i + 2, last)];
        const double f = place - static_cast<double>(i);
        const double height = b + 0.5 * f * (c - a + f * (2 * a - 5 * b + 4 * c - d + f * (3 * (b - c) + d - a)));
        return m_base + m_amplitude * height;
    }

private:
    Heights m_heights;
    double m_base;
    double m_amplitude;
};

/// Grass under the sun: bright along the crest and on slopes that face it, darker further down.
void hill(Painting& painting, SeededRandom& random, double base, const RGBA& grass, const RGBA& edge)
{
    constexpr double amplitude = 0.1;
    constexpr double highest = 1.6; // of the amplitude; what ridges reach at most once they are smooth
    const Crest crest(smoothed(ridge(65, 0.45, random), 6), base, amplitude);
    const QRectF band(0, 0, painting.width(), (base + highest * amplitude) * painting.height());
    const double aspect = painting.width() / painting.height();
    const double pixel = 1 / painting.height();
    painting.raster(band, 1, [=](double x, double y) {
        const double top = crest.at(x / aspect);
        const double depth = top - y;
        const double cover = smoothstep(-pixel, pixel, depth);
        if (cover <= 0)
            return edge.withAlpha(0);
        const double lit = std::clamp(0.5 + 1.4 * (crest.at((x + 0.02) / aspect) - top) / 0.02, 0.0, 1.0);
        const RGBA sunny = grass.mixed(edge, (1 - smoothstep(0, 0.07, depth)) * mix(0.25, 0.8, lit));
        return sunny.scaled(mix(1, 0.72, smoothstep(0, 0.22, depth))).withAlpha(cover);
    });
}

/// A bubble of radius 1 around the origin: how white it is there.
double gleam(double u, double v)
{
    const double squared = u * u + v * v;
    const double distance = std::sqrt(squared);
    const double rim = squared * squared * squared;
    const double highlight = smoothstep(0.34, 0.05, std::hypot(u + 0.36, 1.3 * (v - 0.46)));
    const double reflected = smoothstep(0.13, 0, std::abs(distance - 0.8)) * smoothstep(0.6, 1, 0.6 * u - 0.8 * v);
    return 0.05 + 0.45 * rim + 0.75 * highlight + 0.5 * reflected;
}

void bubble(Painting& painting, QPointF centre, double radius)
{
    const double reach = radius + 1;
    const QRectF square(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach);
    const QPointF c = centre / painting.height();
    const double r = radius / painting.height();
    const double softEdge = 1.5 / radius;
    painting.raster(square, 1, [=](double x, double y) {
        const double u = (x - c.x()) / r;
        const double v = (y - c.y()) / r;
        const double squared = u * u + v * v;
        if (squared >= 1)
            return white(0);
        return white(std::min(gleam(u, v), 0.95) * smoothstep(1, 1 - softEdge, std::sqrt(squared)));
    });
}

void bubbles(Painting& painting, SeededRandom& random)
{
    for (int i = 0; i < 18; ++i) {
        const double x = random.in(0, 1);
        const double y = random.in(0, 1);
        const double radius = random.in(0.008, 0.05) * painting.height();
        const double inset = 1.2 * radius;
        bubble(painting, {mix(inset, painting.width() - inset, x), mix(inset, 0.6 * painting.height(), y)}, radius);
    }
}

} // namespace

void paintAeroWallpaper(Painting& painting, SeededRandom& random)
{
    painting.verticalGradient(hex(0x0E63B8), hex(0x9ADCF5));
    sun(painting);
    ribbons(painting);
    hill(painting, random, 0.18, hex(0x5DBB3A), hex(0x9BE06A));
    hill(painting, random, 0.09, hex(0x3E9C2C), hex(0x8FDB5A));
    bubbles(painting, random);
    painting.grain(0.01, random);
    painting.vignette(0.2);
}

} // namespace ambrelle
