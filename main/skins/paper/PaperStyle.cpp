// SPDX-License-Identifier: MIT

#include "skins/paper/PaperStyle.h"

namespace ambrelle::paper {

using namespace Qt::StringLiterals;

namespace {

const QColor ink(0x1B, 0x19, 0x16);
const QColor soft(0x5A, 0x53, 0x47);
const QColor faint(0xCF, 0xC6, 0xB4);
const QColor pressRed(0xA3, 0x21, 0x1B);
const QColor blueBlack(0x2B, 0x4A, 0x6F);
const QColor ochre(0x8A, 0x6D, 0x2F);
const QColor green(0x2E, 0x6B, 0x3E);

constexpr double noteSize = 10.5;

Typeface oldStandard(int weight, bool slanted = false)
{
    return {.family = u"Old Standard TT"_s, .weight = weight, .italic = slanted, .capRatio = 0.72};
}

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = oldStandard(700),
        .body = oldStandard(400),
        .number = oldStandard(400),
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(pressRed),
        .up = green,
        .down = pressRed,
        .inset = 14,
        .corner = 2,
        .titleGap = 8,
        .warn = pressRed,
        .ground = sheet,
        .titleSize = 13.5,
        .rowSize = 13,
        .captionSize = 12,
        .floor = noteSize, // of notes only; nothing roman is below the size of captions
        .rowPitch = 20,
        .lineHeight = 1.2,
        .dialCap = 20,
        .rowGap = 11,
        .accent2 = blueBlack,
        .accent3 = ochre,
        .clockCap = 64,
        .heroCap = 38,
        .rateCap = 28,
    };
}

TextStyle note(const SkinStyle& style)
{
    return bold(style, noteSize).coloured(style.soft);
}

TextStyle italic(const SkinStyle& style, double size)
{
    return style.row().faced(oldStandard(400, true)).sized(size);
}

TextStyle bold(const SkinStyle& style, double size)
{
    return style.row().faced(style.title).sized(size);
}

} // namespace ambrelle::paper
