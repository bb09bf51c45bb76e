// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Colours.h"
#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::glass {

inline const QColor plateColour(0x1E, 0x22, 0x30);
inline const QColor ink(Qt::white);
inline const QColor soft(0xDF, 0xE4, 0xEE);
inline const QColor faint(0x6E, 0x76, 0x88);
inline const QColor accentBlue(0x6D, 0xB5, 0xFF);
inline const QColor accent2(0x4F, 0xDC, 0xC9); // battery, second memory part
inline const QColor accent3(0xFF, 0xC4, 0x6B); // sun, low battery, third memory part
inline const QColor up(0x6F, 0xE8, 0x9A);
inline const QColor down(0x6D, 0xB5, 0xFF);
inline const QColor warn(0xFF, 0x9A, 0x8C);

inline constexpr double plateAlpha = 0.72; // the least at which ink keeps its contrast over pure white
inline const QColor trackColour = faded(Qt::white, 0.16);
inline const QColor chipColour = faded(Qt::white, 0.14);

SkinStyle makeStyle(const std::optional<QColor>& accent);

} // namespace ambrelle::glass
