// SPDX-License-Identifier: MIT

#include "skins/classic/ClassicSkin.h"

#include "foundation/Wording.h"
#include "skins/classic/ClassicPieces.h"
#include "skins/classic/ClassicStyle.h"

namespace ambrelle {

using namespace classic;

ClassicSkin::ClassicSkin()
    : FaceRenderer(classic::style(), DialFlavor::segments)
{
}

Box ClassicSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    window(canvas, face.bounds);

    Box content = face.bounds.inset(style().inset, 0);
    content.cutBottom(style().inset);
    return content;
}

void ClassicSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    content.cutTop(titleBar + style().titleGap);
    const bool tooWide = face.kind == WidgetKind::downloads && title == headerTitle(style(), face.kind);
    windowTitle(canvas, face.bounds, tooWide ? Wording::tr("Downloaded") : title);
}

Box ClassicSkin::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    framed(canvas, face);
    Box inside = face.bounds.inset(1);
    inside.cutTop(titleBar);
    return inside;
}

void ClassicSkin::warning(Canvas& canvas, const Box& box) const
{
    canvas.fill(box, ink);
    canvas.setGround(ink);
}

Box ClassicSkin::progressDial(Canvas& canvas, const Box& box, double fraction) const
{
    return wedges(canvas, box, fraction);
}

void ClassicSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor&) const
{
    progress(canvas, box.centred(box.width(), std::max(6.0, box.height())), fraction);
}

} // namespace ambrelle
