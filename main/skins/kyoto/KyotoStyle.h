// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::kyoto {

inline const QColor sheetColour(0xF6, 0xF1, 0xE4);
inline const QColor mountColour(0xFC, 0xF9, 0xF1); ///< the whiter sheet that pictures are pasted on
inline const QColor silkColour(0xC9, 0xB7, 0x8F);
inline const QColor rodColour(0x3A, 0x2C, 0x22);
inline const QColor vermilion(0xB3, 0x26, 0x1E); ///< the accent, and the sun whatever the accent

inline constexpr double rodWidth = 5;
inline constexpr double silkWidth = 3;
inline constexpr double sealSide = 18;
inline constexpr double sealCorner = 2;
inline constexpr double headerLine = 14; ///< height
inline constexpr double shade = 0.1; ///< opacity of ink thinned until it is but a shade
inline constexpr double thinInk = 0.45; ///< of ink for what is less than the rest

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// The hand that writes kanji. It has no other letters worth setting.
Typeface calligraphy();

} // namespace ambrelle::kyoto
