// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// The width of lines between things, points: one device pixel on screens up to a ratio of 1.75, else one point.
constexpr double hairline(double pixelRatio)
{
    return pixelRatio <= 1.75 ? 1 / pixelRatio : 1;
}

} // namespace ambrelle
