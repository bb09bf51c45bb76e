// SPDX-License-Identifier: MIT

#include "skins/glass/GlassStyle.h"

namespace ambrelle::glass {

using namespace Qt::StringLiterals;

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = {.family = u"Inter"_s, .weight = 600, .capRatio = 0.73},
        .body = {.family = u"Inter"_s, .weight = 500, .capRatio = 0.73},
        .number = {.family = u"Inter Display"_s, .weight = 300, .capRatio = 0.74},
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(accentBlue),
        .up = up,
        .down = down,
        .inset = 16,
        .corner = 24,
        .titleGap = 6,
        .warn = warn,
        .ground = over(faded(plateColour, plateAlpha), Qt::white),
        .accent2 = accent2,
        .accent3 = accent3,
        .clockCap = 72,
        .temperatureCap = 50,
        .rateCap = 26,
    };
}

} // namespace ambrelle::glass
