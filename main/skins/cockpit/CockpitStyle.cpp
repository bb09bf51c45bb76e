// SPDX-License-Identifier: MIT

#include "skins/cockpit/CockpitStyle.h"

namespace ambrelle::cockpit {

using namespace Qt::StringLiterals;

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    const Typeface flightDeck{.family = u"B612"_s, .weight = 700, .capRatio = 0.77};
    return {
        .title = flightDeck.tracked(0.8),
        .body = flightDeck,
        .number = flightDeck,
        .ink = QColor(0xF2, 0xF4, 0xF5),
        .soft = QColor(0xA9, 0xB4, 0xBD),
        .faint = QColor(0x39, 0x42, 0x4A),
        .accent = accent.value_or(QColor(0xFF, 0x7A, 0x3D)),
        .up = green,
        .down = blue,
        .uppercase = true,
        .inset = 14,
        .corner = 10,
        .titleGap = 6,
        .warn = red,
        .ground = panel,
        .titleSize = 10.5,
        .rowSize = 12,
        .captionSize = 10.5,
        .floor = 10,
        .rowPitch = 20,
        .dialCap = 16,
        .rowGap = 8,
        .accent2 = green,
        .accent3 = blue,
        .clockCap = 44,
        .temperatureCap = 42,
    };
}

} // namespace ambrelle::cockpit
