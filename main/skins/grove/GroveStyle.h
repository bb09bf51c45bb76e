// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::grove {

inline const QColor cloth(0x17, 0x3A, 0x2B); ///< of the cover
inline const QColor leafGreen(0x8D, 0xB3, 0x6B);
inline const QColor trackGreen(0x46, 0x6A, 0x45); ///< rules, and tracks as thin as they

inline constexpr double headerLine = 15; ///< height
inline constexpr double stemWidth = 1.4; ///< of lines that leaves grow on
inline constexpr double lineWidth = 1.1; ///< of the lines of pictures
inline constexpr double hairline = 0.8;

SkinStyle makeStyle(const std::optional<QColor>& accent);

} // namespace ambrelle::grove
