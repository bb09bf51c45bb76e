// SPDX-License-Identifier: MIT

#include "skins/grove/GroveStyle.h"

namespace ambrelle::grove {

using namespace Qt::StringLiterals;

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    const Typeface didot{.family = u"GFS Didot"_s, .weight = 400, .capRatio = 0.7};
    Typeface italic = didot;
    italic.italic = true;
    Typeface figures = didot;
    figures.capRatio = 0.72;
    return {
        .title = italic,
        .body = didot,
        .number = figures,
        .ink = QColor(0xF3, 0xEC, 0xD8),
        .soft = QColor(0xBF, 0xC8, 0xA8),
        .faint = QColor(0x35, 0x59, 0x3F),
        .accent = accent.value_or(QColor(0xD9, 0xB4, 0x5B)),
        .up = QColor(0xA8, 0xCF, 0x8A),
        .down = QColor(0xE6, 0xA0, 0x7A),
        .inset = 16,
        .corner = 18,
        .titleGap = 7,
        .warn = QColor(0xF0, 0x90, 0x6A),
        .ground = cloth,
        .titleSize = 15,
        .rowSize = 13,
        .captionSize = 12,
        .floor = 11,
        .rowPitch = 20,
        .dialCap = 20,
        .rowGap = 8,
        .accent2 = leafGreen,
        .accent3 = QColor(0xC9, 0x8F, 0x6B),
        .clockCap = 66,
        .temperatureCap = 48,
        .rateCap = 22,
    };
}

} // namespace ambrelle::grove
