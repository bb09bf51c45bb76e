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

} // namespace ambrelle
