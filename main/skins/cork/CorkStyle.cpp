// SPDX-License-Identifier: MIT

#include "skins/cork/CorkStyle.h"

#include "drawing/Colours.h"

namespace ambrelle::cork {

using namespace Qt::StringLiterals;

namespace {

const QColor ink(0x2B, 0x26, 0x20);
const QColor soft(0x57, 0x4E, 0x40);
const QColor redInk(0xBF, 0x2A, 0x22);
const QColor blueInk(0x2B, 0x5F, 0x9E);
const QColor greenInk(0x3B, 0x7A, 0x35);
const QColor up(0x2F, 0x6B, 0x33);
const QColor down(0xB3, 0x30, 0x2A);
const QColor warn(0xA8, 0x23, 0x1C);

constexpr double faintness = 0.18; // of ink, on whatever paper

Typeface hand(int weight)
{
    return {.family = u"Chilanka"_s, .weight = weight, .capRatio = 0.66, .cell = 0.82};
}

} // namespace

Paper paperOf(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::memory:
    case WidgetKind::processes:
    case WidgetKind::quote: return Paper::card;
    case WidgetKind::photo: return Paper::instantPhoto;
    default: return Paper::note;
    }
}

QColor colourOf(WidgetKind kind)
{
    if (paperOf(kind) != Paper::note)
        return cardStock;
    switch (kind) {
    case WidgetKind::calendar:
    case WidgetKind::focus:
    case WidgetKind::countdown:
    case WidgetKind::nowPlaying: return pinkNote;
    case WidgetKind::network:
    case WidgetKind::downloads:
    case WidgetKind::weather:
    case WidgetKind::sky: return blueNote;
    case WidgetKind::battery:
    case WidgetKind::disk:
    case WidgetKind::activity:
    case WidgetKind::devices: return greenNote;
    default: return yellowNote;
    }
}

SkinStyle makeStyle(const std::optional<QColor>& accent)
{
    return {
        .title = hand(700),
        .body = hand(400),
        .number = hand(700),
        .ink = ink,
        .soft = soft,
        .faint = faded(ink, faintness),
        .accent = accent.value_or(redInk),
        .up = up,
        .down = down,
        .inset = 16,
        .corner = 2,
        .titleGap = 6,
        .warn = warn,
        .ground = yellowNote,
        .titleSize = 16,
        .rowSize = 14,
        .captionSize = 12.5,
        .floor = 12,
        .rowPitch = 20,
        .lineHeight = 1.2,
        .dialCap = 24,
        .manner = StrokeManner::marker,
        .rowGap = 6,
        .accent2 = blueInk,
        .accent3 = greenInk,
        .clockCap = 66,
        .heroCap = 40,
        .temperatureCap = 46,
        .rateCap = 26,
        .ruling = rulePitch,
    };
}

} // namespace ambrelle::cork
