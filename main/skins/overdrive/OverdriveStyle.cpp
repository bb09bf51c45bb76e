// SPDX-License-Identifier: MIT

#include "skins/overdrive/OverdriveStyle.h"

namespace ambrelle::overdrive {

using namespace Qt::StringLiterals;

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    const Typeface condensed{.family = u"Bebas Neue"_s, .weight = 700, .capRatio = 0.7};
    return {
        .title = condensed.tracked(0.8),
        .body = {.family = u"JetBrains Mono"_s, .weight = 500, .capRatio = 0.73, .tracking = -0.15},
        .number = condensed,
        .ink = QColor(0xF7, 0xF3, 0xD0),
        .soft = QColor(0xB3, 0xAE, 0x8C),
        .faint = QColor(0x38, 0x36, 0x2B),
        .accent = accent.value_or(QColor(0xFC, 0xEE, 0x0A)),
        .up = cyan,
        .down = red,
        .uppercase = true,
        .inset = 14,
        .corner = 0,
        .titleGap = 6,
        .warn = red,
        .ground = plateColour,
        .titleSize = 15,
        .rowSize = 12,
        .captionSize = 10.5,
        .floor = 10.5,
        .dialCap = 26,
        .accent2 = cyan,
        .accent3 = red,
        .clockCap = 70,
        .heroCap = 42,
        .temperatureCap = 50,
        .rateCap = 28,
        .dial = {.width = 10, .start = -135, .sweep = 270, .count = 24, .gap = 3},
    };
}

TextStyle readOut(const SkinStyle& style, double size, const QColor& colour)
{
    return style.header().faced(style.number).sized(size).coloured(colour);
}

} // namespace ambrelle::overdrive
