// SPDX-License-Identifier: MIT

#include "skins/night/NightLook.h"

#include "drawing/Colours.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

NightLook obsidianLook()
{
    constexpr double leastAlpha = 0.94; // keeps the ink's contrast over pure white, as in prism
    const auto bebas = [](int weight) {
        return Typeface{.family = u"Bebas Neue"_s, .weight = weight, .capRatio = 0.71, .cell = 1.06};
    };
    return {
        .skin = Skin::obsidian,
        .ink = QColor(0xF5, 0xF6, 0xFA),
        .soft = QColor(0xA3, 0xA9, 0xB9),
        .faint = QColor(0x28, 0x2C, 0x38),
        .accent = QColor(0x9C, 0xB2, 0xFF),
        .accent2 = QColor(0xE9, 0xA0, 0xFF),
        .accent3 = QColor(0x7D, 0xF2, 0xE4),
        .corner = 20,
        .inset = 18,
        .number = bebas(300),
        .label = {.family = u"Jura"_s, .weight = 600, .capRatio = 0.7},
        .body = {.family = u"Inter"_s, .weight = 400, .capRatio = 0.73},
        .tracking = 0.6,
        .plate = faded(QColor(0x08, 0x09, 0x0C), leastAlpha),
        .track = QColor(0x3A, 0x40, 0x50),
        .up = QColor(0x7D, 0xF2, 0xE4),
        .down = QColor(0xE9, 0xA0, 0xFF),
        .warn = QColor(0xFF, 0x8C, 0x8C),
        .smallNumber = bebas(400), // in lines as thick as those of the large ones
        .unitFace = Typeface{.family = u"Inter Display"_s, .weight = 300, .capRatio = 0.74},
        .lines = {.graph = 1,
            .bead = 2,
            .tipped = true,
            .level = 1,
            .levelTrack = 0.8,
            .ring = 1.6,
            .ringTrack = 0.8,
            .parts = 2},
        .rowSize = 12,
        .rowGap = 5.5,
        .titleGap = 8,
        .clockCap = 74,
        .heroCap = 42,
        .temperatureCap = 56,
        .dialCap = 24,
    };
}

NightLook midnightLook()
{
    const Typeface display{.family = u"Inter Display"_s, .weight = 600, .capRatio = 0.74};
    return {
        .skin = Skin::midnight,
        .ink = QColor(0xEE, 0xF3, 0xFF),
        .soft = QColor(0x9F, 0xB0, 0xDC),
        .faint = QColor(0x22, 0x30, 0x5F),
        .accent = QColor(0x5B, 0x97, 0xFF),
        .accent2 = QColor(0x22, 0xD3, 0xEE),
        .accent3 = QColor(0xAC, 0x7C, 0xFF),
        .corner = 16,
        .inset = 16,
        .number = display,
        .label = {.family = u"Inter"_s, .weight = 600, .capRatio = 0.73},
        .body = {.family = u"Inter"_s, .weight = 500, .capRatio = 0.73},
        .plate = QColor(0x0E, 0x18, 0x38),
        .track = QColor(0x22, 0x30, 0x5F),
        .up = QColor(0x22, 0xD3, 0xEE),
        .down = QColor(0xAC, 0x7C, 0xFF),
        .warn = QColor(0xFF, 0x7A, 0x90),
        .smallNumber = display,
        .lines = {.graph = 2, .wash = 0.45, .glow = 0.10, .bead = 3, .ring = 10, .ringTrack = 10},
    };
}

NightLook pulseLook()
{
    const Typeface rounded{.family = u"Quicksand"_s, .weight = 700, .capRatio = 0.7, .cell = 0.88};
    return {
        .skin = Skin::pulse,
        .ink = Qt::white,
        .soft = QColor(0xAB, 0xAD, 0xB9),
        .faint = QColor(0x2C, 0x2C, 0x36),
        .accent = QColor(0xFF, 0x44, 0x68),
        .accent2 = QColor(0x9B, 0xEA, 0x1B),
        .accent3 = QColor(0x22, 0xDD, 0xEB),
        .corner = 24,
        .inset = 16,
        .number = rounded,
        .label = {.family = u"Quicksand"_s, .weight = 700, .capRatio = 0.7},
        .body = {.family = u"Quicksand Medium"_s, .weight = 400, .capRatio = 0.7},
        .plate = QColor(0x10, 0x10, 0x14),
        .track = QColor(0x2C, 0x2C, 0x36),
        .up = QColor(0x9B, 0xEA, 0x1B),
        .down = QColor(0x22, 0xDD, 0xEB),
        .warn = QColor(0xFF, 0x5A, 0x5A),
        .smallNumber = rounded,
        .shadow = 0,
        .lines = {.graph = 2.2, .glow = 0.10, .level = 6, .levelTrack = 6, .ring = 13, .ringTrack = 13, .parts = 12},
        .rowSize = 13,
        .floor = 10.5,
        .trackSize = 15,
        .clockCap = 54,
        .dialCap = 18,
        .coverCorner = 18,
        .keys = 38,
    };
}

NightLook prismLook()
{
    constexpr double leastAlpha = 0.82;
    return {
        .skin = Skin::prism,
        .ink = QColor(0xFA, 0xFA, 0xFF),
        .soft = QColor(0xBE, 0xBF, 0xCE),
        .faint = QColor(0x3A, 0x3B, 0x48),
        .accent = QColor(0xFF, 0xD1, 0x66),
        .accent2 = QColor(0xFF, 0x77, 0xA0),
        .accent3 = QColor(0x5F, 0xD0, 0xF5),
        .corner = 20,
        .inset = 18,
        .number = {.family = u"Quicksand Light"_s, .weight = 400, .capRatio = 0.71, .cell = 0.93},
        .label = {.family = u"Quicksand Medium"_s, .weight = 400, .capRatio = 0.7},
        .body = {.family = u"Inter"_s, .weight = 400, .capRatio = 0.73},
        .tracking = 0.3,
        .plate = faded(QColor(0x15, 0x15, 0x1C), leastAlpha),
        .track = faded(Qt::white, 0.10),
        .up = QColor(0x5F, 0xD0, 0xF5),
        .down = QColor(0xFF, 0x77, 0xA0),
        .warn = QColor(0xFF, 0x7A, 0x7A),
        .smallNumber = {.family = u"Quicksand"_s, .weight = 400, .capRatio = 0.7, .cell = 0.93},
        .lines = {.wash = 0.34, .bead = 2.5, .level = 3, .levelTrack = 3, .ring = 7, .ringTrack = 7, .parts = 6},
        .rowSize = 12,
        .rowGap = 5.5,
        .clockCap = 72,
        .rateCap = 22,
        .coverCorner = 14,
    };
}

NightLook carbonLook()
{
    const Typeface slanted{.family = u"Play"_s, .weight = 700, .italic = true, .capRatio = 0.67};
    return {
        .skin = Skin::carbon,
        .ink = QColor(0xF7, 0xF7, 0xF7),
        .soft = QColor(0xAB, 0xAB, 0xB0),
        .faint = QColor(0x36, 0x36, 0x3B),
        .accent = QColor(0xFF, 0x4A, 0x2E),
        .accent2 = QColor(0xFF, 0xC4, 0x00),
        .accent3 = QColor(0x28, 0xD1, 0x7C),
        .corner = 8,
        .inset = 14,
        .number = slanted,
        .label = slanted,
        .body = {.family = u"Play"_s, .weight = 400, .capRatio = 0.67},
        .uppercaseLabels = true,
        .tracking = 0.8,
        .plate = QColor(0x14, 0x14, 0x16),
        .track = QColor(0x36, 0x36, 0x3B),
        .up = QColor(0x28, 0xD1, 0x7C),
        .down = QColor(0xFF, 0xC4, 0x00),
        .warn = QColor(0xFF, 0x5A, 0x40),
        .smallNumber = slanted,
        .unitFace =
            Typeface{.family = u"Play"_s, .weight = 700, .capRatio = 0.67}, // a slanted degree sign leans far out
        .lines = {.graph = 2, .level = 6, .levelTrack = 6, .ring = 9, .ringTrack = 9, .parts = 10},
        .titleSize = 11.5,
        .rowSize = 12,
        .trackSize = 16,
        .clockCap = 64,
        .temperatureCap = 48,
        .rateCap = 22,
        .coverCorner = 3,
    };
}

NightLook velvetLook()
{
    const Typeface slender{.family = u"Old Standard TT"_s, .weight = 400, .italic = true, .capRatio = 0.72};
    return {
        .skin = Skin::velvet,
        .ink = QColor(0xF8, 0xEB, 0xD9),
        .soft = QColor(0xD2, 0xB7, 0xBF),
        .faint = QColor(0x52, 0x29, 0x4A),
        .accent = QColor(0xE9, 0xC3, 0x8C),
        .accent2 = QColor(0xD8, 0x93, 0xB6),
        .accent3 = QColor(0xA6, 0x7B, 0xC0),
        .corner = 26,
        .inset = 18,
        .number = slender,
        .label = {.family = u"GFS Didot"_s, .weight = 400, .italic = true, .capRatio = 0.7},
        .body = {.family = u"GFS Didot"_s, .weight = 400, .capRatio = 0.7},
        .tracking = 0.2,
        .plate = QColor(0x2B, 0x10, 0x26),
        .track = QColor(0x6A, 0x3A, 0x5F),
        .up = QColor(0xE9, 0xC3, 0x8C),
        .down = QColor(0xD8, 0x93, 0xB6),
        .warn = QColor(0xFF, 0x9A, 0x8A),
        .smallNumber = slender,
        .shadow = 0,
        .lines = {.graph = 1.4,
            .wash = 0.22,
            .bead = 4,
            .tipped = true,
            .level = 1,
            .levelTrack = 0.8,
            .ring = 3,
            .ringTrack = 0.8,
            .parts = 6},
        .titleSize = 14,
        .rowSize = 13,
        .captionSize = 11.5,
        .floor = 11.5,
        .trackSize = 17,
        .rowGap = 4,
        .clockCap = 72,
        .rateCap = 22,
        .dialCap = 24,
        .coverCorner = 0, // under the arch
        .photoMat = 8,
    };
}

NightLook designed(Skin skin)
{
    switch (skin) {
    case Skin::midnight: return midnightLook();
    case Skin::pulse: return pulseLook();
    case Skin::prism: return prismLook();
    case Skin::carbon: return carbonLook();
    case Skin::velvet: return velvetLook();
    default: return obsidianLook();
    }
}

} // namespace

NightLook NightLook::of(Skin skin, const std::optional<QColor>& accent)
{
    NightLook look = designed(skin);
    look.accent = accent.value_or(look.accent);
    return look;
}

TextStyle NightLook::caption() const
{
    return style().caption();
}

SkinStyle NightLook::style() const
{
    return {
        .title = label.tracked(tracking),
        .body = body,
        .number = number,
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent,
        .up = up,
        .down = down,
        .uppercase = uppercaseLabels,
        .inset = inset,
        .corner = corner,
        .titleGap = titleGap,
        .warn = warn,
        .ground = over(plate, Qt::white),
        .titleSize = titleSize,
        .rowSize = rowSize,
        .captionSize = captionSize,
        .floor = floor,
        .dialCap = dialCap,
        .unitFace = unitFace,
        .rowGap = rowGap,
        .smallNumber = smallNumber,
        .accent2 = accent2,
        .accent3 = accent3,
        .clockCap = clockCap,
        .heroCap = heroCap,
        .temperatureCap = temperatureCap,
        .rateCap = rateCap,
    };
}

} // namespace ambrelle
