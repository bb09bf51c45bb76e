// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Colours.h"
#include "drawing/SkinStyle.h"
#include "model/WidgetKind.h"

#include <optional>

namespace ambrelle::neon {

inline const QColor plateColour(0x15, 0x0A, 0x2A);
inline constexpr double plateAlpha = 0.94; // a sun behind it leaves no more than a hint
/// Unlit tubes and rules: the faint colour on a dark plate, and lighter than the plate whatever shines through it.
inline const QColor trackColour = faded(QColor(0x77, 0x4B, 0xC5), 0.4);
inline const QColor socket(0x2B, 0x21, 0x40); ///< end caps of tubes, unlit cells

inline constexpr double headerHeight = 14;
inline constexpr double headerRise = 2; ///< of the lettering, whose tails are long

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// The gas in a tube of that colour, where it burns brightest.
QColor pale(const QColor& colour);
/// The light around what burns in that colour.
InkGlow shine(const QColor& colour);
/// The colour of the tube around the plate of that kind, and of the lettering on it.
QColor signColour(const SkinStyle& style, WidgetKind kind);

/// A figure of polished metal that mirrors an evening sky, the horizon halfway up. For large figures only.
FigureStyle chrome(const SkinStyle& style, double cap);
/// Text in the skin's script, or in its body face where the script lacks a letter.
TextStyle script(const SkinStyle& style, const QString& text, double size);
/// The same bent from a tube that burns in `colour`.
TextStyle lettering(const SkinStyle& style, const QString& text, double size, const QColor& colour);

} // namespace ambrelle::neon
