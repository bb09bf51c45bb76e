// SPDX-License-Identifier: MIT

#include "skins/kyoto/KyotoStyle.h"

namespace ambrelle::kyoto {

using namespace Qt::StringLiterals;

namespace {

const QColor sumiBlack(0x1E, 0x1B, 0x18);
const QColor thinnedBlack(0x5C, 0x55, 0x4B);
const QColor straw(0xD5, 0xCA, 0xB5);
const QColor indigo(0x3A, 0x56, 0x6F);
const QColor moss(0x5F, 0x6D, 0x31);
const QColor matcha(0x4A, 0x6B, 0x3A);

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    const Typeface mincho{.family = u"Sawarabi Mincho"_s, .weight = 400, .capRatio = 0.74};
    Typeface figures = mincho;
    figures.capRatio = 0.76;
    return {
        .title = mincho,
        .body = mincho,
        .number = figures,
        .ink = sumiBlack,
        .soft = thinnedBlack,
        .faint = straw,
        .accent = accent.value_or(vermilion),
        .up = matcha,
        .down = vermilion,
        .inset = 18,
        .titleGap = 8,
        .warn = vermilion,
        .ground = sheetColour,
        .titleSize = 13,
        .rowSize = 13,
        .captionSize = 12,
        .floor = 12,
        .rowPitch = 20,
        .dialCap = 15,
        .manner = StrokeManner::brush,
        .rowGap = 8,
        .accent2 = indigo,
        .accent3 = moss,
        .clockCap = 58,
        .heroCap = 38,
        .temperatureCap = 46,
        .rateCap = 26,
    };
}

Typeface calligraphy()
{
    return {.family = u"AoyagiKouzanFontT"_s, .weight = 400};
}

} // namespace ambrelle::kyoto
