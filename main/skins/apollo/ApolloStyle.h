// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::apollo {

/// Colours of the console. Digits, dials and luminous drawings follow the accent; metal and paper never do.
inline const QColor metalLight(0x8E, 0x97, 0x8C);
inline const QColor metalDark(0x72, 0x7B, 0x72);
inline const QColor panel(0x23, 0x28, 0x2A); ///< the face inside the metal
inline const QColor well(0x10, 0x14, 0x14); ///< behind digits, inside lamps that are off
inline const QColor cut(0x14, 0x18, 0x16); ///< letters engraved into metal
inline const QColor paper(0xED, 0xE6, 0xCE);
inline const QColor grid(0xC2, 0xCA, 0xB0); ///< printed on chart paper, bars on that of lists
inline const QColor print(0x23, 0x30, 0x2A); ///< ink on paper
inline const QColor printSoft(0x55, 0x5E, 0x52);
inline const QColor redInk(0xB8, 0x2E, 0x22);

inline constexpr double rim = 5; // points
inline constexpr double bandDepth = 24; // of the metal with the title, from the face's upper edge
inline constexpr double faceRadius = 2;

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// A name engraved beside an instrument.
TextStyle label(const SkinStyle& style);
/// What a teletype prints; the first line of a message is bold.
TextStyle typed(const SkinStyle& style, bool bold = false);
/// The small print below it.
TextStyle smallPrint(const SkinStyle& style);

} // namespace ambrelle::apollo
