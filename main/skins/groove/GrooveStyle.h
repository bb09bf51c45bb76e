// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::groove {

inline const QColor chocolate(0x4A, 0x25, 0x11); ///< the plate
inline const QColor recess(0x5E, 0x33, 0x1A); ///< the plate's edge, and what is not reached of a track
inline const QColor cocoa(0x3A, 0x1D, 0x0C); ///< letters on bright fills

inline constexpr double stripe = 6; ///< width of the stripes
inline constexpr double fillet = 1; ///< between the stripes of a graph
inline constexpr double groovePitch = 9; ///< of concentric stripes

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// The three stripes, from the upper or outer one on; `middle` stands in for the accent.
QList<QColor> stripes(const SkinStyle& style, const QColor& middle);
/// Letters and signs on that fill.
QColor onFill(const QColor& fill);

} // namespace ambrelle::groove
