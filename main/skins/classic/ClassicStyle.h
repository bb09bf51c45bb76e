// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"

namespace ambrelle::classic {

inline const QColor ink(Qt::black);
inline const QColor paper(Qt::white);
inline const QColor half(0x80, 0x80, 0x80); ///< printed as a checkerboard
inline const QColor quarter(0xC0, 0xC0, 0xC0); ///< printed as one dot in four

inline constexpr double textSize = 16;
inline constexpr double line = 18; ///< pitch of lines of text
inline constexpr double titleBar = 18; ///< with its base line
inline constexpr double progressHeight = 12; ///< height of progress bars

SkinStyle style();

} // namespace ambrelle::classic
