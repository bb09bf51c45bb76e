// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::cockpit {

/// Colours of the panel. Needles, pointers and tapes follow the accent; metal, lamps and bands never do.
inline const QColor bezelLight(0x3A, 0x41, 0x48);
inline const QColor bezelDark(0x26, 0x2B, 0x30);
inline const QColor panel(0x14, 0x18, 0x1C); ///< the face inside the bezel
inline const QColor well(0x0A, 0x0D, 0x10); ///< inside windows, lamps and screens
inline const QColor rim(0x4B, 0x55, 0x5E); ///< edges of what is let into the panel, brackets
inline const QColor green(0x5B, 0xE3, 0x8A); ///< in its range, ready, radar
inline const QColor amber(0xFF, 0xC2, 0x4A); ///< attention
inline const QColor blue(0x5C, 0xC8, 0xFF); ///< told rather than measured
inline const QColor red(0xFF, 0x5A, 0x4A); ///< beyond a limit
inline const QColor unlit(0x8A, 0x95, 0x9E); ///< letters of lamps that are off
inline const QColor engraving(255, 255, 255, 30); ///< highlight below engraved letters

inline constexpr double bezelWidth = 8; // points
inline constexpr double faceRadius = 6;

SkinStyle makeStyle(const std::optional<QColor>& accent);

} // namespace ambrelle::cockpit
