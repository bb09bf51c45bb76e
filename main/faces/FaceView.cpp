// SPDX-License-Identifier: MIT

#include "faces/FaceView.h"

namespace ambrelle {

FaceView::FaceView(std::shared_ptr<const FaceRenderer> renderer, const FaceContext& face, QString layerKey)
    : m_renderer(std::move(renderer))
    , m_face(face)
    , m_layerKey(std::move(layerKey))
{
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
    return {canvas.hits(), canvas.movingAreas()};
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
    if (!result.moving.isEmpty())
        drawMoving(painter, reading, setup);
    return result;
}

} // namespace ambrelle
