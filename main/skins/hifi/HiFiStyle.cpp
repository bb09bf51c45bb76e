// SPDX-License-Identifier: MIT

#include "skins/hifi/HiFiStyle.h"

#include "drawing/Colours.h"

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;

namespace {

const QColor ink(0xF1, 0xE3, 0xC6);
const QColor soft(0xB8, 0xA5, 0x82);
const QColor faint(0x3D, 0x33, 0x2A);
const QColor amberLamp(0xFF, 0x8A, 0x2A);
const QColor up(0xFF, 0xB4, 0x5E);
const QColor down(0xE9, 0x6A, 0x3A);
const QColor warn(0xFF, 0x6A, 0x45);

constexpr double brightestSheen = 0.1;
constexpr double wirePerCap = 1.6 / 64; // width of a digit's wire in parts of its height
constexpr double leastStroked = 24; // height from which a stroke shows; smaller figures take a stronger face
const Typeface smallFigures{.family = u"Quicksand Medium"_s, .weight = 400, .capRatio = 0.7};

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = {.family = u"Jura"_s, .weight = 700, .capRatio = 0.71, .tracking = 0.7},
        .body = {.family = u"Jura"_s, .weight = 600, .capRatio = 0.71},
        .number = {.family = u"Quicksand Light"_s, .weight = 400, .capRatio = 0.71},
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(amberLamp),
        .up = up,
        .down = down,
        .uppercase = true,
        .inset = 16,
        .corner = 8,
        .titleGap = 8,
        .warn = warn,
        .ground = over(faded(Qt::white, brightestSheen), glass),
        .titleSize = 11,
        .rowSize = 12.5,
        .captionSize = 10.5,
        .floor = 10.5,
        .rowPitch = 20,
    };
}

FigureStyle wire(const SkinStyle& style, double cap)
{
    FigureStyle figure = style.figure(cap).filled(digitLit);
    figure.unitFace = style.body;
    figure.unitColour = style.soft;
    if (cap < leastStroked)
        figure.face = smallFigures;
    else
        figure.outline = cap * wirePerCap;
    return figure;
}

FigureStyle printed(const SkinStyle& style, double cap)
{
    FigureStyle figure = style.figure(cap).filled(print);
    figure.face = smallFigures;
    figure.unitFace = style.body;
    figure.unitColour = print;
    return figure;
}

TextStyle inked(const TextStyle& text)
{
    return text.coloured(print);
}

TextStyle amber(const SkinStyle& style, const TextStyle& text)
{
    return text.coloured(style.accentText());
}

} // namespace ambrelle::hifi
