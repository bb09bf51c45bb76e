// SPDX-License-Identifier: MIT

#include "skins/classic/ClassicStyle.h"

namespace ambrelle::classic {

using namespace Qt::StringLiterals;

namespace {

Typeface face(int weight)
{
    return {.family = u"DotGothic16"_s, .weight = weight, .capRatio = 13.0 / 16, .cell = 1, .pixel = true};
}

} // namespace

SkinStyle style()
{
    return {.title = face(700),
        .body = face(400),
        .number = face(700),
        .ink = ink,
        .soft = ink,
        .faint = half,
        .accent = ink,
        .up = ink,
        .down = ink,
        .inset = 10,
        .corner = 0,
        .titleGap = 6,
        .warn = ink,
        .ground = paper,
        .titleSize = textSize,
        .rowSize = textSize,
        .captionSize = textSize,
        .floor = textSize,
        .rowPitch = 20,
        .lineHeight = line / textSize,
        .dialCap = 26,
        .finish = Finish::oneBit};
}

} // namespace ambrelle::classic
