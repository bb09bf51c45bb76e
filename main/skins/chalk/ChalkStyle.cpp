// SPDX-License-Identifier: MIT

#include "skins/chalk/ChalkStyle.h"

#include "drawing/Colours.h"

namespace ambrelle::chalk {

using namespace Qt::StringLiterals;

namespace {

const QColor soft(0xC6, 0xD2, 0xC6);
const QColor faint(0x4C, 0x6A, 0x5D);
const QColor warn(0xFF, 0x9C, 0x8A);

constexpr double palest = 0.05; // where two wipes of the eraser lie over each other

const Typeface hand{.family = u"Chilanka"_s, .weight = 400, .capRatio = 0.66, .cell = 0.92};

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = hand,
        .body = hand,
        .number = {.family = u"CabinSketch"_s, .weight = 700, .capRatio = 0.7, .cell = 0.92},
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(yellow),
        .up = green,
        .down = pink,
        .inset = 16,
        .corner = 6,
        .titleGap = 6,
        .warn = warn,
        .ground = over(faded(Qt::white, palest), board),
        .titleSize = 15.5,
        .rowSize = 13,
        .captionSize = 12,
        .floor = 12,
        .rowPitch = 20,
        .dialCap = 18,
        .manner = StrokeManner::chalk,
        .unitFace = hand,
        .accent2 = blue,
        .accent3 = pink,
        .rateCap = 28,
        .dial = {.width = 10},
    };
}

TextStyle heading(const SkinStyle& style)
{
    constexpr double aside = 0.45;
    const QColor colour = style.accentText();
    return style.header().coloured(colour).shadowed(colour, {aside, 0});
}

} // namespace ambrelle::chalk
