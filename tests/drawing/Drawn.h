// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

namespace ambrelle {

/// What a canvas of that size in points shows after `draw`.
inline QImage drawnWith(const std::function<void(Canvas&)>& draw, const Canvas::Setup& setup = {}, double scale = 1,
    const QSizeF& size = {120, 120})
{
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    Canvas canvas(painter, setup);
    draw(canvas);
    return image;
}

/// Only what moves, at `time`.
inline QImage movedTo(double time, const std::function<void(Canvas&)>& draw)
{
    return drawnWith(draw, {.pass = Canvas::Pass::moving, .time = time});
}

inline QList<Canvas::MovingArea> movingAreasOf(const std::function<void(Canvas&)>& draw)
{
    QList<Canvas::MovingArea> areas;
    drawnWith([&](Canvas& canvas) {
        draw(canvas);
        areas = canvas.movingAreas();
    });
    return areas;
}

/// The pixels that are not clear.
inline QRect inkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace ambrelle
