// SPDX-License-Identifier: MIT

#include "skins/aero/AeroStyle.h"

namespace ambrelle::aero {

using namespace Qt::StringLiterals;

namespace {

// Where words stand the glass is thicker than at the edges of the gloss, so that ink and soft keep their contrast over
// pure white.
const QColor upperGlass(0x00, 0x44, 0x86, 228);
const QColor middleGlass(0x02, 0x30, 0x5C, 208);
const QColor lowerGlass(0x08, 0x56, 0x90, 208);
constexpr double firstRow = 0.24; // of the height, where the content begins

QColor colourAt(const QGradientStops& stops, double place)
{
    for (qsizetype index = 1; index < stops.size(); ++index) {
        const auto& [start, before] = stops[index - 1];
        const auto& [end, colour] = stops[index];
        if (place <= end)
            return blended(before, colour, (place - start) / (end - start));
    }
    return stops.last().second;
}

} // namespace

QGradientStops plateStops()
{
    return {{0, upperGlass}, {0.46, middleGlass}, {0.6, middleGlass}, {1, lowerGlass}};
}

QGradientStops glossStops()
{
    return {{0, faded(sky, 0.5)}, {0.12, faded(sky, 0.26)}, {0.4, faded(sky, 0.18)}, {1, faded(sky, 0.13)}};
}

QColor glassAt(double height)
{
    const QColor glass = over(colourAt(plateStops(), height), Qt::white);
    return height < glossShare ? over(colourAt(glossStops(), height / glossShare), glass) : glass;
}

SkinStyle makeStyle()
{
    const auto cantarell = [](int weight) {
        return Typeface{.family = u"Cantarell"_s, .weight = weight, .capRatio = 0.71};
    };
    Typeface number = cantarell(300);
    number.cell = 0.95;
    return {
        .title = cantarell(700),
        .body = cantarell(400),
        .number = number,
        .ink = Qt::white,
        .soft = QColor(0xDD, 0xF1, 0xFF),
        .faint = QColor(0x5E, 0x93, 0xBE),
        .accent = QColor(0x5C, 0xC8, 0xFF),
        .up = QColor(0xA4, 0xEC, 0x66),
        .down = QColor(0x7F, 0xD4, 0xFF),
        .inset = 14,
        .corner = 12,
        .titleGap = 6,
        .warn = QColor(0xFF, 0xB5, 0x4A),
        .ground = glassAt(firstRow),
        .titleSize = 12.5,
        .rowSize = 12.5,
        .captionSize = 10.5,
        .floor = 10,
        .rowPitch = 20,
        .dialCap = 19,
        .rowGap = 3.5,
        .smallNumber = cantarell(400),
        .accent2 = QColor(0x8B, 0xE0, 0x4A),
        .accent3 = QColor(0xFF, 0xC9, 0x3A),
        .clockCap = 70,
        .heroCap = 40,
        .temperatureCap = 50,
        .rateCap = 26,
        .dial = {.width = 12},
    };
}

} // namespace ambrelle::aero
