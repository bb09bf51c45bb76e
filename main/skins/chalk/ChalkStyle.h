// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::chalk {

/// The board and its wooden frame, which never follow the accent.
inline const QColor board(0x26, 0x46, 0x3B);
inline const QColor wood(0x8A, 0x5F, 0x38);

/// The sticks of chalk in the tray. The yellow one is the accent unless the user wants another.
inline const QColor ink(0xF4, 0xF1, 0xE6);
inline const QColor yellow(0xFF, 0xD9, 0x5A);
inline const QColor blue(0x7F, 0xC8, 0xE8);
inline const QColor pink(0xF5, 0xA3, 0xBB);
inline const QColor green(0x9B, 0xE0, 0x7F);

inline const QColor print(0xF6, 0xF2, 0xE6); ///< the border of a photograph
inline const QColor tape(0xF1, 0xE2, 0xB4);

/// Widths of strokes, points.
inline constexpr double fine = 1;
inline constexpr double usual = 1.5;
inline constexpr double bold = 2.4;

inline constexpr double railWidth = 4; ///< of the wood, points

SkinStyle makeStyle(const std::optional<QColor>& accent);
/// A heading, gone over once more with the stick. The typeface has no bold of its own, and one made by the computer is
/// a whole pixel heavier whatever the scale.
TextStyle heading(const SkinStyle& style);

} // namespace ambrelle::chalk
