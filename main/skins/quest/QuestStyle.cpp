// SPDX-License-Identifier: MIT

#include "skins/quest/QuestStyle.h"

#include "drawing/Colours.h"

#include <cmath>

namespace ambrelle::quest {

using namespace Qt::StringLiterals;

namespace {

constexpr double capRatio = 13.0 / 16;

/// Bold is struck twice; `cell` is the width of a digit's cell in parts of the widest digit.
Typeface pixelFace(int weight, double cell = 1)
{
    return {.family = u"DotGothic16"_s, .weight = weight, .capRatio = capRatio, .cell = cell, .pixel = true};
}

} // namespace

QColor lighter(const QColor& colour)
{
    return blended(colour, snow, 0.45);
}

QColor darker(const QColor& colour)
{
    return blended(colour, night, 0.4);
}

Box whole(const Box& box)
{
    const double left = std::round(box.left());
    const double top = std::round(box.top());
    return {left, top, std::round(box.right()) - left, std::round(box.bottom()) - top};
}

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    constexpr double upperEnd = 0.18; // part of the plate above which no text stands
    return {.title = pixelFace(400),
        .body = pixelFace(400),
        .number = pixelFace(700, 1.12),
        .ink = snow,
        .soft = mist,
        .faint = lost,
        .accent = accent.value_or(sunlight),
        .up = leaf,
        .down = blood,
        .uppercase = true,
        .inset = 16,
        .corner = 8,
        .titleGap = 8,
        .warn = blood,
        .ground = blended(plateTop, plateBottom, upperEnd),
        .titleSize = textSize,
        .rowSize = textSize,
        .captionSize = textSize,
        .floor = textSize,
        .rowPitch = 20,
        .lineHeight = line / textSize,
        .dialCap = 32 * capRatio,
        .finish = Finish::crisp,
        .rowGap = 6,
        .smallNumber = pixelFace(400),
        .accent2 = blood,
        .accent3 = leaf,
        .clockCap = 80 * capRatio,
        .heroCap = 48 * capRatio,
        .temperatureCap = 64 * capRatio,
        .rateCap = 32 * capRatio};
}

} // namespace ambrelle::quest
