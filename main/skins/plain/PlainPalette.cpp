// SPDX-License-Identifier: MIT

#include "skins/plain/PlainPalette.h"

#include <algorithm>
#include <array>

namespace ambrelle {

namespace {

constexpr std::array palettes{
    PlainPalette{.skin = Skin::apollo,
        .title = {.family = "Routed Gothic Wide", .weight = 400, .capRatio = 0.7},
        .body = {.family = "JetBrains Mono", .weight = 400, .capRatio = 0.73},
        .number = {.family = "DSEG7 Classic", .weight = 700, .italic = true, .capRatio = 1},
        .plate = 0x23282A,
        .ink = 0xE6EBDD,
        .soft = 0xA9B3A8,
        .faint = 0x3E4644,
        .accent = 0xA6F26B,
        .accent2 = 0xFFC857,
        .accent3 = 0xFF6A58,
        .up = 0xA6F26B,
        .down = 0xFFC857,
        .warn = 0xFF6A58,
        .uppercase = true,
        .measures = {.corner = 4, .inset = 14, .titleGap = 8, .titleSize = 11.5, .floor = 10.5}},
};

} // namespace

const PlainPalette& plainPalette(Skin skin)
{
    const auto* const row = std::ranges::find(palettes, skin, &PlainPalette::skin);
    if (row == palettes.end())
        qFatal("The skin %s has no palette.", rawValue(skin).data());
    return *row;
}

} // namespace ambrelle
