// SPDX-License-Identifier: MIT

#include "skins/apollo/ApolloStyle.h"

namespace ambrelle::apollo {

using namespace Qt::StringLiterals;

namespace {

const Typeface lettering{.family = u"Routed Gothic Wide"_s, .weight = 400, .capRatio = 0.7};

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = lettering.tracked(1.2),
        .body = {.family = u"JetBrains Mono"_s, .weight = 500, .capRatio = 0.73, .tracking = -0.15},
        .number = {.family = u"DSEG7 Classic"_s, .weight = 700, .italic = true, .capRatio = 1},
        .ink = QColor(0xE6, 0xEB, 0xDD),
        .soft = QColor(0xA9, 0xB3, 0xA8),
        .faint = QColor(0x3E, 0x46, 0x44),
        .accent = accent.value_or(QColor(0xA6, 0xF2, 0x6B)),
        .up = QColor(0xA6, 0xF2, 0x6B),
        .down = QColor(0xFF, 0xC8, 0x57),
        .uppercase = true,
        .inset = 14,
        .corner = 4,
        .titleGap = 8,
        .warn = QColor(0xFF, 0x6A, 0x58),
        .ground = panel,
        .titleSize = 11,
        .rowSize = 11,
        .captionSize = 10.5,
        .floor = 10.5,
        .rowPitch = 20,
        .dialCap = 20,
        .unitFace = lettering,
        .rowGap = 8,
        .accent2 = QColor(0xFF, 0xC8, 0x57),
        .accent3 = QColor(0xFF, 0x6A, 0x58),
        .clockCap = 64,
        .heroCap = 36,
        .temperatureCap = 42,
    };
}

TextStyle label(const SkinStyle& style)
{
    return style.header().faced(lettering).sized(style.captionSize).coloured(style.soft);
}

TextStyle typed(const SkinStyle& style, bool bold)
{
    constexpr double size = 12;
    TextStyle text = style.row().sized(size).coloured(print);
    if (bold)
        text.face.weight = 700;
    return text;
}

TextStyle smallPrint(const SkinStyle& style)
{
    return style.caption().coloured(printSoft);
}

} // namespace ambrelle::apollo
