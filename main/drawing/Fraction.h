// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cmath>

namespace ambrelle {

/// The fraction within 0 and 1; 0 for what is no number.
inline double bounded(double fraction)
{
    return std::isnan(fraction) ? 0 : std::clamp(fraction, 0.0, 1.0);
}

/// How many of `count` blocks, ticks or lamps a fraction lights.
inline int litOf(double fraction, int count)
{
    return static_cast<int>(std::lround(bounded(fraction) * count));
}

} // namespace ambrelle
