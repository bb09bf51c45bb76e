// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// What pages have in common, points.
namespace measures {
constexpr int wideWindow = 900; ///< in a narrower one margins are less, and words make way for symbols
constexpr int foldedWindow = 760; ///< in a narrower one things take turns that stand side by side otherwise
constexpr int wideMargin = 24; ///< left and right of a page
constexpr int narrowMargin = 20;
constexpr int scopeHeight = 54; ///< of the row that chooses what a page shows

/// Left and right of a page as wide as the window.
constexpr int margin(int width)
{
    return width < wideWindow ? narrowMargin : wideMargin;
}
} // namespace measures

/// The width of lines between things, points: one device pixel on screens up to a ratio of 1.75, else one point.
constexpr double hairline(double pixelRatio)
{
    return pixelRatio <= 1.75 ? 1 / pixelRatio : 1;
}

} // namespace ambrelle
