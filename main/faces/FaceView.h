// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <memory>

namespace ambrelle {

/// The face of one kind in one skin: the one way in which a face is drawn on the desktop, in previews and in tests.
/// The painter is in face points, y down, whatever its scale.
class FaceView {
public:
    struct Setup {
        double time = 0; ///< of moving parts; 0 is the printed frame
        LayerCache* layers = nullptr;
        CanvasRecord* record = nullptr;
    };

    /// What a drawn face answers to.
    struct Result {
        QList<Canvas::HitArea> hits;
        QList<Canvas::MovingArea> moving;
        QList<QRectF> ticking; ///< what changes with the second of the reading

        bool isStill() const { return moving.isEmpty() && ticking.isEmpty(); }
    };

    FaceView(std::shared_ptr<const FaceRenderer> renderer, const FaceContext& face, QString layerKey);

    const FaceContext& face() const { return m_face; }
    const SkinStyle& style() const { return m_renderer->style(); }
    bool showsSeconds() const { return m_renderer->showsSeconds(); }
    QSizeF size() const { return m_face.bounds.size(); }
    /// What the face covers, shadows apart; empty: a rectangle with the style's corners.
    QPolygonF silhouette() const;

    /// The whole face.
    Result draw(QPainter& painter, const Reading& reading, const Setup& setup) const;
    /// Only what stands still; the result tells whether anything moves or ticks.
    Result drawStill(QPainter& painter, const Reading& reading, const Setup& setup) const;
    /// Only what moves or ticks, over a picture of what stands still.
    void drawMoving(QPainter& painter, const Reading& reading, const Setup& setup) const;

private:
    Result drawPass(Canvas::Pass pass, QPainter& painter, const Reading& reading, const Setup& setup) const;

    std::shared_ptr<const FaceRenderer> m_renderer;
    FaceContext m_face;
    QString m_layerKey;
};

} // namespace ambrelle
