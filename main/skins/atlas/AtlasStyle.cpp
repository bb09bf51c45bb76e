// SPDX-License-Identifier: MIT

#include "skins/atlas/AtlasStyle.h"

#include "drawing/Colours.h"

namespace ambrelle::atlas {

using namespace Qt::StringLiterals;

namespace {

const QColor printInk(0x2A, 0x2A, 0x22);
const QColor soft(0x5C, 0x58, 0x46);
const QColor faint(0xCD, 0xBF, 0x9C);
const QColor rust(0xB0, 0x46, 0x1A);
const QColor waterBlue(0x2A, 0x6C, 0x9B);
const QColor woodGreen(0x47, 0x7A, 0x3F);
const QColor rising(0x2E, 0x76, 0x48);
const QColor danger(0xA8, 0x2E, 0x18);

constexpr double letterSpace = 0.9; // of labels and of names
constexpr double digitCell = 0.96; // of the widest digit

Typeface cantarell(int weight, double tracking = 0)
{
    return {.family = u"Cantarell"_s, .weight = weight, .capRatio = 0.71, .cell = digitCell, .tracking = tracking};
}

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = cantarell(700, letterSpace),
        .body = cantarell(400),
        .number = cantarell(400),
        .ink = printInk,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(rust),
        .up = rising,
        .down = waterBlue,
        .uppercase = true,
        .inset = 14,
        .corner = 2,
        .titleGap = 8,
        .warn = danger,
        .ground = sheet,
        .titleSize = 11.5,
        .floor = 10.5,
        .dialCap = 19,
        .accent2 = waterBlue,
        .accent3 = woodGreen,
        .clockCap = 70,
        .rateCap = 22,
    };
}

TextStyle placeName(const SkinStyle& style, double size)
{
    const Typeface italic{.family = u"Old Standard TT"_s, .italic = true, .capRatio = 0.72, .tracking = letterSpace};
    return style.row().faced(italic).sized(size).coloured(style.accent2);
}

TextStyle scaleText(const SkinStyle& style)
{
    constexpr double least = 9;
    return style.caption().sized(least).asAxis();
}

QColor summit(const SkinStyle& style)
{
    return blended(sheet, style.accent, 0.68);
}

} // namespace ambrelle::atlas
