// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::bauhaus {

inline const QColor sheet(0xF3, 0xE9, 0xD2);
inline const QColor ink(0x14, 0x14, 0x14);
inline const QColor soft(0x54, 0x4E, 0x3C);
inline const QColor faint(0xD8, 0xCB, 0xAA);
inline const QColor red(0xC8, 0x22, 0x1A); ///< the accent, unless the user chose another
inline const QColor blue(0x1F, 0x4E, 0x9C);
inline const QColor yellow(0xF2, 0xB6, 0x1B);

inline constexpr double bar = 8; ///< width of the bar at the left edge
inline constexpr double beam = 4; ///< thickness of bars whose length is a value
inline constexpr double line = 2; ///< of base lines and outlines
inline constexpr double keySize = 13; ///< of the player's outer keys
inline constexpr double clearance = 8; ///< between text and shapes
inline constexpr double cornerSmall = 22; ///< radius of the quarter circle
inline constexpr double cornerMedium = 46;

SkinStyle makeStyle(const std::optional<QColor>& accent);

} // namespace ambrelle::bauhaus
