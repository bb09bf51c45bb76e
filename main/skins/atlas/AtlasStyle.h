// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::atlas {

inline const QColor sheet(0xF8, 0xF4, 0xE6); ///< the plate
inline const QColor meadow(0xC3, 0xD2, 0xA2); ///< tints of heights: the lowest and the middle one
inline const QColor upland(0xE2, 0xC8, 0x8C);
inline const QColor sunshine(0xF0, 0xC4, 0x4C);

inline constexpr double headerLine = 14; ///< height, points
inline constexpr double nameSize = 15; ///< of a place that is a title

/// Widths of the pens that a map is drawn with, points.
namespace Lines {
inline constexpr double neat = 1.4; ///< the border
inline constexpr double sign = 0.9; ///< outlines of signs
inline constexpr double hair = 0.5;
} // namespace Lines

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// What has a name on the map, and waters: spaced blue italics.
TextStyle placeName(const SkinStyle& style, double size);
/// Numbers and letters of a scale.
TextStyle scaleText(const SkinStyle& style);
/// The tint of the summits, of the accent's hue.
QColor summit(const SkinStyle& style);

} // namespace ambrelle::atlas
