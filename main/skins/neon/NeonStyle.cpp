// SPDX-License-Identifier: MIT

#include "skins/neon/NeonStyle.h"

#include "drawing/Colours.h"

#include <QRawFont>

#include <algorithm>

namespace ambrelle::neon {

using namespace Qt::StringLiterals;

namespace {

const QColor ink(0xF6, 0xEC, 0xFF);
const QColor soft(0xBD, 0xA8, 0xE6);
const QColor faint(0x3C, 0x24, 0x68);
const QColor pink(0xFF, 0x4F, 0xA8);
const QColor cyan(0x19, 0xE3, 0xFF);
const QColor amber(0xFF, 0xB0, 0x3A);
const QColor warn(0xFF, 0x7A, 0x5C);

// The sky that chrome mirrors, downwards; below the horizon comes the accent.
const QColor mirroredZenith(0xBF, 0xE9, 0xFF);
const QColor mirroredHaze(Qt::white);
const QColor mirroredHorizon(0x5A, 0x2A, 0x8A);
const QColor mirroredGround(0xFF, 0xD9, 0xA0);

constexpr double paleness = 0.77; // of a tube's core
constexpr double plainSize = 0.82; // of the body face beside the script's size

bool hasLetters(const Typeface& face, const QString& text)
{
    thread_local const QRawFont font = QRawFont::fromFont(fontOf(face, 16));
    const QList<uint> letters = text.toUcs4();
    return std::ranges::all_of(
        letters, [&](uint letter) { return !QChar::isLetterOrNumber(letter) || font.supportsCharacter(letter); });
}

} // namespace

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = {.family = u"Kaushan Script"_s, .weight = 400, .capRatio = 0.71},
        .body = {.family = u"Inter"_s, .weight = 500, .capRatio = 0.73},
        .number = {.family = u"Inter Display"_s, .weight = 900, .italic = true, .capRatio = 0.74, .cell = 0.9},
        .ink = ink,
        .soft = soft,
        .faint = faint,
        .accent = accent.value_or(pink),
        .up = cyan,
        .down = pink,
        .inset = 16,
        .corner = 14,
        .titleGap = 6,
        .warn = warn,
        .ground = over(faded(plateColour, plateAlpha), Qt::white),
        .titleSize = 16,
        .rowSize = 13,
        .captionSize = 11,
        .floor = 10,
        .dialCap = 20,
        .accent2 = cyan,
        .accent3 = amber,
        .clockCap = 72,
        .rateCap = 28,
    };
}

QColor pale(const QColor& colour)
{
    return blended(colour, Qt::white, paleness);
}

InkGlow shine(const QColor& colour)
{
    return {.colour = colour, .strokes = 5, .alpha = 0.07, .spread = 2};
}

QColor signColour(const SkinStyle& style, WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::network:
    case WidgetKind::weather: return style.accent2;
    case WidgetKind::battery: return style.accent3;
    default: return style.accent;
    }
}

FigureStyle chrome(const SkinStyle& style, double cap)
{
    QLinearGradient mirrored(0, 0, 0, 1);
    mirrored.setStops(
        {{0, mirroredZenith}, {0.46, mirroredHaze}, {0.5, mirroredHorizon}, {0.56, style.accent}, {1, mirroredGround}});
    FigureStyle figure =
        style.figure(cap).filled(mirrored).outlined(faded(style.accent, 0.8), 1).glowing(shine(style.accent));
    figure.unitColour = style.ink;
    return figure;
}

TextStyle script(const SkinStyle& style, const QString& text, double size)
{
    if (hasLetters(style.title, text))
        return style.header().sized(size);
    return style.row().sized(std::round(size * plainSize));
}

TextStyle lettering(const SkinStyle& style, const QString& text, double size, const QColor& colour)
{
    return script(style, text, size).coloured(pale(colour)).glowing(shine(colour));
}

} // namespace ambrelle::neon
