// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"
#include "model/WidgetKind.h"

#include <optional>

namespace ambrelle::cork {

inline const QColor yellowNote(0xFF, 0xE9, 0x7A);
inline const QColor pinkNote(0xFF, 0xC2, 0xCE);
inline const QColor blueNote(0xB5, 0xE1, 0xF7);
inline const QColor greenNote(0xCD, 0xEB, 0xAA);
inline const QColor cardStock(0xFD, 0xFB, 0xF3); ///< index cards, instant photos, torn strips

inline const QColor ruleBlue(0x8F, 0xB8, 0xDC);
inline const QColor marginRed(0xE3, 0x86, 0x80);
inline const QColor graphite(0x5F, 0x58, 0x4E);
inline const QColor undeveloped(0xD9, 0xD4, 0xC6); ///< where an instant photo has no picture

inline constexpr double rulePitch = 18;

/// What hangs on the board.
enum class Paper { note, card, instantPhoto };

Paper paperOf(WidgetKind kind);
QColor colourOf(WidgetKind kind);

SkinStyle makeStyle(const std::optional<QColor>& accent);

} // namespace ambrelle::cork
