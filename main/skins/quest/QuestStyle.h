// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Box.h"
#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::quest {

inline const QColor night(0x0A, 0x0B, 0x2E); ///< outlines, shadows, what is lost
inline const QColor hollow(0x1B, 0x1E, 0x62); ///< what is out, and the inside of slots
inline const QColor lost(0x3F, 0x45, 0xAE); ///< faint marks, edges of what is still to be earned
inline const QColor plateTop(0x2A, 0x30, 0x9C);
inline const QColor plateBottom(0x14, 0x17, 0x4F);
inline const QColor bevel(0x8C, 0x94, 0xE8); ///< innermost line of the frame
inline const QColor snow(0xFF, 0xFF, 0xFF);
inline const QColor mist(0xC9, 0xD1, 0xFF);
inline const QColor sunlight(0xFF, 0xD2, 0x3F);
inline const QColor ember(0xF0, 0x8C, 0x2E); ///< shaded side of the sun and of coins
inline const QColor blood(0xFF, 0x6B, 0x66);
inline const QColor wine(0xB5, 0x35, 0x4C); ///< shaded side of a heart
inline const QColor leaf(0x4F, 0xD3, 0x6B);
inline const QColor rain(0x62, 0xB8, 0xFF);

inline constexpr double textSize = 16;
inline constexpr double line = 18; ///< pitch of lines of text
inline constexpr double barHeight = 12;

inline constexpr double cornerStep = 2; ///< of stepped corners and of light on an edge

/// A colour where light falls on it, and where none does.
QColor lighter(const QColor& colour);
QColor darker(const QColor& colour);
/// An upright box with whole edges.
Box whole(const Box& box);

SkinStyle makeStyle(const std::optional<QColor>& accent);

} // namespace ambrelle::quest
