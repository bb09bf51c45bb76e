// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::paper {

inline const QColor sheet(0xFB, 0xF7, 0xEC); ///< the plate

/// Thickness of the rules of a page, points.
namespace Rules {
inline constexpr double heavy = 2;
inline constexpr double light = 0.6;
inline constexpr double hair = 0.4;
} // namespace Rules

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// The smallest texts, ordinals and names of columns: bold, since the roman's hairlines would fill in.
TextStyle note(const SkinStyle& style);
/// What is said about a figure.
TextStyle italic(const SkinStyle& style, double size);
/// A line of the second rank: times, names that lead.
TextStyle bold(const SkinStyle& style, double size);

} // namespace ambrelle::paper
