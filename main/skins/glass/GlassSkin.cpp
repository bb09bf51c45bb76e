// SPDX-License-Identifier: MIT

#include "skins/glass/GlassSkin.h"

#include "drawing/Plates.h"
#include "skins/glass/GlassStyle.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace glass;

GlassSkin::GlassSkin(std::optional<QColor> accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

Box GlassSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    const double corner = style().corner;
    canvas.still(u"plate"_s, face.bounds.inset(-10), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, corner, Qt::black, 0.03, 8, 2);
        layer.fill(face.bounds, faded(plateColour, plateAlpha), corner);
        sheen(layer, face.bounds, corner, Qt::white, 0.16, 0.02, 0.4);
        litEdge(layer, face.bounds, corner, 1.2, 0.6, 0.12, 0.3);
    });
    return face.bounds.inset(style().inset);
}

PictogramPaint GlassSkin::pictograms() const
{
    return {.sun = accent3, .moon = ink, .cloud = ink, .water = accentBlue, .bolt = accent3};
}

std::shared_ptr<const FaceRenderer> glassSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<GlassSkin>(accent);
}

} // namespace ambrelle
