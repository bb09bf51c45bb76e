// SPDX-License-Identifier: MIT

#include "faces/FaceView.h"

namespace ambrelle {

FaceView::FaceView(std::shared_ptr<const FaceRenderer> renderer, const FaceContext& face, QString layerKey)
    : m_renderer(std::move(renderer))
    , m_face(face)
    , m_layerKey(std::move(layerKey))
{
}

QPolygonF FaceView::silhouette() const
{
    constexpr double fine = 8; // parts of a point that curves are told in
    const QTransform larger = QTransform::fromScale(fine, fine);
    QPainterPath path = m_renderer->silhouette(m_face);
    if (path.isEmpty() && m_renderer->tilt(m_face) == 0)
        return {};
    if (path.isEmpty())
        path = roundedPath(m_face.bounds, style().corner);
    // Without the outermost part of what is seen, where a turned edge covers pixels in part.
    constexpr double edge = 0.6;
    const Box& face = m_face.bounds;
    const QPointF middle = face.center();
    QTransform smaller = QTransform::fromTranslate(middle.x(), middle.y());
    smaller.scale(1 - 2 * edge / face.width(), 1 - 2 * edge / face.height());
    smaller.translate(-middle.x(), -middle.y());
    return larger.inverted().map(path.toFillPolygon(m_renderer->turn(m_face) * smaller * larger));
}

FaceView::Result FaceView::drawPass(
    Canvas::Pass pass, QPainter& painter, const Reading& reading, const Setup& setup) const
{
    Canvas canvas(painter,
        {.pass = pass,
            .time = setup.time,
            .layers = setup.layers,
            .layerKey = m_layerKey,
            .record = setup.record,
            .ground = m_renderer->style().ground,
            .finish = m_renderer->style().finish,
            .manner = m_renderer->style().manner});
    m_renderer->drawAny(canvas, reading, m_face);
    return {canvas.hits(), canvas.movingAreas(), canvas.tickingAreas()};
}

FaceView::Result FaceView::drawStill(QPainter& painter, const Reading& reading, const Setup& setup) const
{
    return drawPass(Canvas::Pass::still, painter, reading, setup);
}

void FaceView::drawMoving(QPainter& painter, const Reading& reading, const Setup& setup) const
{
    drawPass(Canvas::Pass::moving, painter, reading, setup);
}

FaceView::Result FaceView::draw(QPainter& painter, const Reading& reading, const Setup& setup) const
{
    Result result = drawStill(painter, reading, setup);
    if (!result.isStill())
        drawMoving(painter, reading, setup);
    return result;
}

} // namespace ambrelle
