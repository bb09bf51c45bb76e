// SPDX-License-Identifier: MIT

#include "skins/bauhaus/BauhausStyle.h"

namespace ambrelle::bauhaus {

using namespace Qt::StringLiterals;

namespace {

Typeface spartan(int weight)
{
    return {.family = u"League Spartan"_s, .weight = weight, .capRatio = 0.69, .cell = 0.94};
}

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = spartan(700),
        .body = spartan(500),
        .number = spartan(800),
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(red),
        .up = blue,
        .down = red,
        .inset = 14,
        .corner = 0,
        .titleGap = 8,
        .warn = red,
        .ground = sheet,
        .titleSize = 13,
        .captionSize = 11.5,
        .floor = 11,
        .lineHeight = 1.25,
        .dialCap = 16,
        .rowGap = 4,
        .accent2 = blue,
        .accent3 = yellow,
        .lowercase = true,
        .clockCap = 60,
        .temperatureCap = 50,
        .rateCap = 26,
        .dial = {.width = 14, .roundEnds = false},
    };
}

} // namespace ambrelle::bauhaus
