// SPDX-License-Identifier: MIT

#include "skins/classic/ClassicSkin.h"

#include "faces/FaceKit.h"

#include "foundation/Wording.h"
#include "skins/classic/ClassicPieces.h"
#include "skins/classic/ClassicStyle.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

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
    const Box mark = box.centred(14, 14);
    canvas.fill(mark, ink);
    canvas.symbol(mark, u"exclamationmark.triangle.fill"_s, 12, paper);
}

Box ClassicSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor&) const
{
    return wedges(canvas, box, fraction);
}

void ClassicSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor&) const
{
    progress(canvas, box.centred(box.width(), std::max(6.0, box.height())), fraction);
}

TextStyle ClassicSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    return filledDay(canvas, cell, day, ink, 0);
}

void ClassicSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool) const
{
    canvas.symbol(box, symbol, 24, ink);
}

std::shared_ptr<const FaceRenderer> classicSkin(const std::optional<QColor>&)
{
    return std::make_shared<ClassicSkin>();
}

} // namespace ambrelle
