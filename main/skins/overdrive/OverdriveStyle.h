// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"
#include "model/WidgetKind.h"

#include <optional>

namespace ambrelle::overdrive {

inline const QColor plateColour(0x0D, 0x0D, 0x10);
inline const QColor cyan(0x18, 0xE0, 0xF0); ///< read-outs: what is told besides a face's chief value
inline const QColor red(0xFF, 0x3B, 0x61); ///< beyond a limit; the last blocks of a dial

inline constexpr double headerHeight = 14;
inline constexpr double older = 0.55; ///< opacity of all bars but the newest

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// Every kind's figure tears at a moment of its own, none of them at time 0.
inline int glitchSeed(WidgetKind kind)
{
    return static_cast<int>(kind) + 1;
}

/// A value of the large typeface in a line of text.
TextStyle readOut(const SkinStyle& style, double size, const QColor& colour);

} // namespace ambrelle::overdrive
