// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Colours.h"
#include "drawing/SkinStyle.h"

#include <QBrush>

namespace ambrelle::aero {

/// Shadows, edges of glass, and what is written on gel.
inline const QColor deep(0x03, 0x20, 0x3A);
/// What glass mirrors.
inline const QColor sky(0xC4, 0xEA, 0xFF);
/// The charge of a battery that is nearly empty.
inline const QColor coral(0xFF, 0x6A, 0x5A);
inline const QColor drop = faded(deep, 0.45); ///< under letters and figures

inline constexpr double glossShare = 0.42; ///< of a plate's height, down to which the sky is mirrored in it

inline constexpr double headerHeight = 0.12; ///< of the middle of a plate's first line, in parts of the plate's
inline constexpr double barHeight = 12; ///< of a bar of gel

SkinStyle makeStyle();

/// The glass of a plate from its upper edge (0) to its lower one (1), and the sky in its upper part.
QGradientStops plateStops();
QGradientStops glossStops();
/// The glass with the sky in it over white, the lightest that letters at that height (0 to 1) may stand on.
QColor glassAt(double height);

} // namespace ambrelle::aero
