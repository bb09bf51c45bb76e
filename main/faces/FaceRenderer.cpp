// SPDX-License-Identifier: MIT

#include "faces/FaceRenderer.h"

#include "faces/NoticeFace.h"
#include "faces/SharedFaces.h"
#include "faces/TiltedFace.h"
#include "foundation/Wording.h"

namespace ambrelle {

namespace {

template <typename R>
concept DrawnBySkin = requires(const FaceRenderer& skin, Canvas& canvas, const R& reading, const FaceContext& face)
{
    skin.draw(canvas, reading, face);
};

} // namespace

QString headerTitle(const SkinStyle& style, WidgetKind kind)
{
    return style.caps(title(kind));
}

void FaceRenderer::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    canvas.text(content.cutTop(14), title, m_style.header());
    content.cutTop(m_style.titleGap);
}

Box FaceRenderer::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    plate(canvas, face);
    return face.bounds.inset(photoMat());
}

Box FaceRenderer::framed(Canvas& canvas, const FaceContext& face, const QString& title) const
{
    Box content = plate(canvas, face);
    header(canvas, content, face, title);
    return content;
}

Box FaceRenderer::framed(Canvas& canvas, const FaceContext& face) const
{
    const double room = face.bounds.width() - 2 * m_style.inset;
    const QString title = headerTitle(m_style, face.kind);
    const bool tooLong = face.kind == WidgetKind::downloads && elided(title, m_style.header(), room) != title;
    return framed(canvas, face, tooLong ? m_style.caps(Wording::tr("Downloaded")) : title);
}

void FaceRenderer::drawUpright(Canvas& canvas, const Reading& reading, const FaceContext& face) const
{
    if (const Notice& notice = noticeOf(reading)) {
        drawNotice(canvas, *this, notice, face);
        return;
    }
    const auto drawFace = [&](const auto& value) {
        if constexpr (DrawnBySkin<std::decay_t<decltype(value)>>)
            draw(canvas, value, face);
        else
            drawShared(canvas, *this, value, face);
    };
    std::visit(drawFace, reading);
}

void FaceRenderer::drawAny(Canvas& canvas, const Reading& reading, const FaceContext& face) const
{
    if (tilt(face) == 0)
        drawUpright(canvas, reading, face);
    else
        canvas.mapped(turn(face), [&] { drawUpright(canvas, reading, face); });
}

QTransform FaceRenderer::turn(const FaceContext& face) const
{
    const double degrees = tilt(face);
    if (degrees == 0)
        return {};
    const QPointF middle = face.bounds.center();
    QTransform turned = QTransform::fromTranslate(middle.x(), middle.y());
    turned.rotate(degrees);
    turned.scale(tiltedSize, tiltedSize);
    turned.translate(-middle.x(), -middle.y());
    return turned;
}

} // namespace ambrelle
