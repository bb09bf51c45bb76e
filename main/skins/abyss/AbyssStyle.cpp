// SPDX-License-Identifier: MIT

#include "skins/abyss/AbyssStyle.h"

namespace ambrelle::abyss {

using namespace Qt::StringLiterals;

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    const Typeface engraved{.family = u"Old Standard TT"_s, .weight = 700, .capRatio = 0.72};
    Typeface numerals = engraved;
    numerals.capRatio = 0.75;
    return {
        .title = engraved.tracked(0.9),
        .body = {.family = u"Routed Gothic"_s, .capRatio = 0.7},
        .number = numerals,
        .ink = QColor(0xF0, 0xE2, 0xBF),
        .soft = QColor(0xB3, 0xBF, 0xA6),
        .faint = QColor(0x23, 0x46, 0x52),
        .accent = accent.value_or(QColor(0xE0, 0xAE, 0x57)),
        .up = phosphor,
        .down = QColor(0xE8, 0x89, 0x5C),
        .uppercase = true,
        .inset = 18,
        .corner = 16,
        .titleGap = 6,
        .warn = QColor(0xFF, 0x7A, 0x55),
        .ground = deep,
        .titleSize = 11.5,
        .rowSize = 12.5,
        .captionSize = 11,
        .floor = 11,
        .rowPitch = 20,
        .dialCap = 16,
        .rowGap = 4.5,
        .accent2 = phosphor,
        .accent3 = QColor(0xE8, 0x89, 0x5C),
        .clockCap = 46,
        .heroCap = 38,
        .temperatureCap = 36,
        .rateCap = 20,
    };
}

} // namespace ambrelle::abyss
