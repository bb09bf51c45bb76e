// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/RGBA.h"

namespace ambrelle {

/// Red, green, blue and opacity, 0 to 1, the colours multiplied by the opacity; the four are computed at once.
using Pixel = float __attribute__((vector_size(16)));

inline Pixel pixel(const RGBA& colour)
{
    const auto part = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
    const float opacity = part(colour.a);
    return Pixel{part(colour.r), part(colour.g), part(colour.b), 1} * opacity;
}

/// Lays `source` over `target`.
inline void lay(Pixel& target, const Pixel& source)
{
    target += source - target * source[3];
}

} // namespace ambrelle
