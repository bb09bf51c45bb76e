// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::abyss {

/// Colours of the boat. Needles, pointers and levels follow the accent; brass, enamel, lamps and sonar never do.
inline const QColor brassDark(0x8A, 0x65, 0x30);
inline const QColor brassLight(0xE3, 0xBD, 0x72);
inline const QColor rivetBrass(0xF0, 0xD0, 0x8C);
inline const QColor strip(0xB9, 0x8B, 0x44); ///< engraved plates of lists
inline const QColor stamped(0x1A, 0x12, 0x06); ///< letters struck into brass
inline const QColor deep(0x0B, 0x25, 0x30); ///< the face inside its rim
inline const QColor well(0x05, 0x16, 0x1E); ///< inside windows, tubes and dials
inline const QColor enamel(0xF6, 0xEF, 0xDC); ///< the dial of the chronometer
inline const QColor enamelInk(0x1C, 0x1A, 0x1C);
inline const QColor blued(0x27, 0x4B, 0xA6); ///< its hands of tempered steel
inline const QColor phosphor(0x49, 0xE0, 0xC2); ///< sonar, lamps, water
inline const QColor danger(0xD8, 0x4B, 0x36); ///< the last part of a scale

inline constexpr double rimWidth = 6; // points
inline constexpr double faceRadius = 11;

SkinStyle makeStyle(const std::optional<QColor>& accent);

} // namespace ambrelle::abyss
