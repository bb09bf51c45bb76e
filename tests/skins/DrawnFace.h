// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceView.h"
#include "support/FaceStates.h"

#include <QPainter>
#include <QRegion>

namespace ambrelle {

/// A face as it is printed on black, with what it told of itself.
struct DrawnFace {
    QImage image;
    QList<Canvas::MovingArea> moving{};
    CanvasRecord record{};

    QRegion movingRegion() const
    {
        QRegion region;
        for (const Canvas::MovingArea& part : moving)
            region += part.area.toAlignedRect();
        return region;
    }
};

inline DrawnFace drawnFace(const FaceView& face, const Reading& reading, double time = 0)
{
    DrawnFace drawn{QImage(face.size().toSize(), QImage::Format_RGB32)};
    drawn.image.fill(Qt::black);
    QPainter painter(&drawn.image);
    drawn.moving = face.draw(painter, reading, {.time = time, .record = &drawn.record}).moving;
    return drawn;
}

inline DrawnFace drawnFace(const FaceView& face, FaceState state = FaceState::sample, double time = 0)
{
    return drawnFace(face, stateReading(face.face().kind, state, QLocale::c()), time);
}

} // namespace ambrelle
