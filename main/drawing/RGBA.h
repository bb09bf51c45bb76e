// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include <algorithm>
#include <cstdint>

namespace ambrelle {

/// a + (b - a) * t.
constexpr double mix(double a, double b, double t)
{
    return a + (b - a) * t;
}

/// The clamped Hermite step: 0 up to `e0`, 1 from `e1` on.
constexpr double smoothstep(double e0, double e1, double x)
{
    const double t = std::clamp((x - e0) / (e1 - e0), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// A colour of four components, 0 to 1 each, the colour not multiplied by the opacity.
struct RGBA {
    double r = 0;
    double g = 0;
    double b = 0;
    double a = 1;

    /// The way to `other` at `t`, 0 to 1, component by component.
    constexpr RGBA mixed(const RGBA& other, double t) const
    {
        return {mix(r, other.r, t), mix(g, other.g, t), mix(b, other.b, t), mix(a, other.a, t)};
    }
    /// Lighter or darker; the opacity stays.
    constexpr RGBA scaled(double factor) const { return {r * factor, g * factor, b * factor, a}; }
    constexpr RGBA withAlpha(double alpha) const { return {r, g, b, alpha}; }

    bool operator==(const RGBA&) const = default;
};

/// A colour from components of 0 to 1.
constexpr RGBA rgb(double r, double g, double b, double a = 1)
{
    return {r, g, b, a};
}

/// A colour as it is written in style sheets: hex(0xFFD24A).
constexpr RGBA hex(std::uint32_t rrggbb, double a = 1)
{
    const auto component = [rrggbb](int shift) { return static_cast<double>(rrggbb >> shift & 0xFFU) / 255; };
    return {component(16), component(8), component(0), a};
}

constexpr RGBA white(double a = 1)
{
    return {1, 1, 1, a};
}

constexpr RGBA black(double a = 1)
{
    return {0, 0, 0, a};
}

inline RGBA rgba(const QColor& colour)
{
    return {colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF()};
}

} // namespace ambrelle
