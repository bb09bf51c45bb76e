// SPDX-License-Identifier: MIT

#include "skins/plain/PlainPalette.h"

#include <algorithm>
#include <array>

namespace ambrelle {

namespace {

constexpr std::array palettes{
    PlainPalette{.skin = Skin::aero,
        .title = {.family = "Cantarell", .weight = 700, .capRatio = 0.71},
        .body = {.family = "Cantarell", .weight = 400, .capRatio = 0.71},
        .number = {.family = "Cantarell", .weight = 300, .capRatio = 0.71},
        .cell = 0.95,
        .plate = 0x063358,
        .plateAlpha = 0.74,
        .ink = 0xFFFFFF,
        .soft = 0xDDF1FF,
        .faint = 0x5E93BE,
        .accent = 0x5CC8FF,
        .accent2 = 0x8BE04A,
        .accent3 = 0xFFC93A,
        .up = 0xA4EC66,
        .down = 0x7FD4FF,
        .warn = 0xFFB54A,
        .measures = {.corner = 12, .inset = 14, .titleGap = 6, .titleSize = 12, .floor = 10}},
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
