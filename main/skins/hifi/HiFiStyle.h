// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"

#include <optional>

namespace ambrelle::hifi {

/// Colours of the cabinet. Lamps, tubes and needles follow the accent; wood, brass and printed paper never do.
inline const QColor glass(0x17, 0x13, 0x0F);
inline const QColor walnutLight(0x6B, 0x4A, 0x2C);
inline const QColor walnutDark(0x3B, 0x25, 0x13);
inline const QColor champagne(0xCD, 0xBB, 0x8C);
inline const QColor pale(0xE9, 0xD9, 0xA8); ///< engraved titles, level bars, pointers of dials
inline const QColor pointerRed(0xD9, 0x44, 0x2B); ///< pointers of scales, the red zone of meters
inline const QColor paper(0xF0, 0xDF, 0xAE); ///< meter faces and labels
inline const QColor paperShade(0xDB, 0xC4, 0x86); ///< their lower edge
inline const QColor print(0x2A, 0x1E, 0x10); ///< ink on paper
inline const QColor tubeDark(0x0B, 0x07, 0x05); ///< inside tubes and windows
inline const QColor digitLit(0xFF, 0xD9, 0xA8);
inline const QColor engraving(255, 255, 255, 38); ///< highlight below engraved letters

SkinStyle makeStyle(const std::optional<QColor>& accent);

/// A glowing figure's digits: the light typeface, stroked so that it reads as bent wire.
FigureStyle wire(const SkinStyle& style, double cap);
/// A figure printed on paper.
FigureStyle printed(const SkinStyle& style, double cap);
/// Text printed on paper.
TextStyle inked(const TextStyle& text);
/// A reading beside an engraved name, in the colour of lamps.
TextStyle amber(const SkinStyle& style, const TextStyle& text);

} // namespace ambrelle::hifi
