// SPDX-License-Identifier: MIT

#include "drawing/Perlin.h"

#include "drawing/RGBA.h"
#include "drawing/SeededRandom.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ambrelle {

namespace {

double fade(double t)
{
    return t * t * t * (t * (6 * t - 15) + 10);
}

[[noreturn]] void refuse(double value)
{
    qFatal("Perlin: %g is no coordinate", value);
}

/// Rounds down; faster than the library, which knows numbers beyond the 64-bit integers too.
std::int64_t floorOf(double value)
{
    if (!(std::abs(value) < 0x1p63)) [[unlikely]]
        refuse(value);
    const auto whole = static_cast<std::int64_t>(value);
    return whole - (value < static_cast<double>(whole) ? 1 : 0);
}

void requireOctaves(int octaves)
{
    if (octaves < 0)
        qFatal("Perlin: there are no %d octaves", octaves);
}

} // namespace

Perlin::Perlin(std::uint64_t seed)
{
    constexpr std::size_t period = 256;
    SeededRandom random{seed};
    std::iota(m_p.begin(), m_p.begin() + period, 0);
    for (std::size_t i = 0; i + 1 < period; ++i)
        std::swap(m_p[i], m_p[i + random.next(period - i)]);
    std::copy_n(m_p.begin(), period, m_p.begin() + period);

    // The negative zero makes a product that changes no sum, not even the sign of one that is zero.
    constexpr std::array<Gradient, 8> directions{
        {{1, 1}, {-1, 1}, {1, -1}, {-1, -1}, {1, -0.0}, {-1, -0.0}, {-0.0, 1}, {-0.0, -1}}};
    for (std::size_t i = 0; i < m_p.size(); ++i)
        m_gradients[i] = directions[static_cast<std::size_t>(m_p[i]) % directions.size()];
}

double Perlin::noise(double x, double y) const
{
    const std::int64_t column = floorOf(x);
    const std::int64_t row = floorOf(y);
    const double xf = x - static_cast<double>(column);
    const double yf = y - static_cast<double>(row);
    const double u = fade(xf);
    const double v = fade(yf);
    const auto corner = [this](std::int64_t place, double dx, double dy) {
        const Gradient& gradient = m_gradients[static_cast<std::size_t>(place)];
        return gradient.x * dx + gradient.y * dy;
    };
    const std::size_t cell = static_cast<std::size_t>(column & 255);
    const std::int64_t left = m_p[cell] + (row & 255);
    const std::int64_t right = m_p[cell + 1] + (row & 255);
    const double low = mix(corner(left, xf, yf), corner(right, xf - 1, yf), u);
    const double high = mix(corner(left + 1, xf, yf - 1), corner(right + 1, xf - 1, yf - 1), u);
    return mix(low, high, v);
}

double Perlin::fbm(double x, double y, int octaves, double lacunarity, double gain) const
{
    requireOctaves(octaves);
    double sum = 0;
    double amplitude = 0.5;
    double frequency = 1;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += amplitude * noise(frequency * x, frequency * y);
        frequency *= lacunarity;
        amplitude *= gain;
    }
    return std::clamp(sum * 0.9 + 0.5, 0.0, 1.0);
}

double Perlin::ridged(double x, double y, int octaves) const
{
    requireOctaves(octaves);
    double sum = 0;
    double amplitude = 0.5;
    double frequency = 1;
    double weight = 1;
    for (int octave = 0; octave < octaves; ++octave) {
        double crest = 1 - std::abs(noise(frequency * x, frequency * y));
        crest = crest * crest * weight;
        weight = std::clamp(2 * crest, 0.0, 1.0);
        sum += amplitude * crest;
        frequency *= 2;
        amplitude *= 0.5;
    }
    return std::min(sum, 1.0);
}

} // namespace ambrelle
