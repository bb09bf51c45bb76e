// SPDX-License-Identifier: MIT

#include "skins/groove/GrooveStyle.h"

#include "drawing/Colours.h"

namespace ambrelle::groove {

using namespace Qt::StringLiterals;

namespace {

const QColor cream(0xFB, 0xE7, 0xBF);
const QColor caramel(0xE6, 0xBE, 0x88);
const QColor faint(0x6E, 0x3F, 0x20);
const QColor orange(0xF5, 0x8A, 0x33);
const QColor mustard(0xE9, 0xBA, 0x45);
const QColor rust(0xD9, 0x58, 0x3A);
const QColor warn(0xFF, 0x8A, 0x5C);

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = {.family = u"Lobster Two"_s, .weight = 700, .italic = true, .capRatio = 0.74},
        .body = {.family = u"Quicksand"_s, .weight = 700, .capRatio = 0.7},
        .number = {.family = u"Lobster Two"_s, .weight = 700, .capRatio = 0.76, .cell = 0.94},
        .ink = cream,
        .soft = caramel,
        .faint = faint,
        .accent = accent.value_or(orange),
        .up = mustard,
        .down = orange,
        .inset = 18,
        .corner = 28,
        .titleGap = 6,
        .warn = warn,
        .ground = chocolate,
        .titleSize = 17,
        .rowSize = 12,
        .captionSize = 10.5,
        .floor = 10.5,
        .rowPitch = 20,
        .dialCap = 20,
        .rowGap = 4,
        .accent2 = mustard,
        .accent3 = rust,
        .clockCap = 70,
        .heroCap = 40,
        .temperatureCap = 50,
        .rateCap = 18,
    };
}

QList<QColor> stripes(const SkinStyle& style, const QColor& middle)
{
    return {style.accent3, middle, style.accent2};
}

QColor onFill(const QColor& fill)
{
    return contrast(cocoa, fill) >= contrast(cream, fill) ? cocoa : cream;
}

} // namespace ambrelle::groove
