// SPDX-License-Identifier: MIT

#include "skins/plain/PlainSkin.h"

#include "drawing/Colours.h"
#include "drawing/Plates.h"
#include "skins/plain/PlainPalette.h"

#include <cstring>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

Typeface typeface(const PlainFace& face, double tracking = 0)
{
    return {.family = QString::fromLatin1(face.family),
        .weight = face.weight,
        .italic = face.italic,
        .capRatio = face.capRatio,
        .tracking = tracking,
        .pixel = std::strcmp(face.family, "DotGothic16") == 0};
}

SkinStyle makeStyle(const PlainPalette& palette, const std::optional<QColor>& accent)
{
    QColor plate(palette.plate);
    plate.setAlphaF(static_cast<float>(palette.plateAlpha));
    SkinStyle style{
        .title = typeface(palette.title, palette.uppercase ? 0.9 : 0),
        .body = typeface(palette.body),
        .number = typeface(palette.number),
        .ink = palette.ink,
        .soft = palette.soft,
        .faint = palette.faint,
        .accent = accent.value_or(QColor(palette.accent)),
        .up = palette.up,
        .down = palette.down,
        .uppercase = palette.uppercase,
        .inset = palette.measures.inset,
        .corner = palette.measures.corner,
        .titleGap = palette.measures.titleGap,
        .warn = palette.warn,
        .ground = over(plate, Qt::white),
        .titleSize = palette.measures.titleSize,
        .rowSize = std::max(12.5, palette.measures.floor),
        .captionSize = std::max(10.5, palette.measures.floor),
        .floor = palette.measures.floor,
        .accent2 = palette.accent2,
        .accent3 = palette.accent3,
    };
    style.number.cell = palette.cell;
    style.rowPitch = style.rowSize + 6.5;
    style.rowGap = palette.measures.rowGap;
    if (style.body.pixel)
        style.lineHeight = 1.125;
    if (style.number.family.startsWith(u"DSEG7"_s)) // has no signs
        style.unitFace = style.title;
    return style;
}

} // namespace

PlainSkin::PlainSkin(const PlainPalette& palette, std::optional<QColor> accent)
    : FaceRenderer(makeStyle(palette, accent), ambrelle::dial(palette.skin))
    , m_plate(palette.plate)
{
    m_plate.setAlphaF(static_cast<float>(palette.plateAlpha));
}

Box PlainSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, style().corner, Qt::black, 0.03, 6, 2);
        layer.fill(face.bounds, m_plate, style().corner);
        layer.frame(face.bounds, QPen(faded(style().ink, 0.14), 1), style().corner);
    });
    return face.bounds.inset(style().inset);
}

} // namespace ambrelle
