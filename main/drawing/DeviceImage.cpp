// SPDX-License-Identifier: MIT

#include "drawing/DeviceImage.h"

#include <QPaintDevice>

namespace ambrelle {

QRect devicePixels(const QPainter& target, const QRectF& area)
{
    return target.deviceTransform().mapRect(area).toAlignedRect();
}

QImage deviceImage(const QPainter& target, const QRect& pixels, const std::function<void(QPainter&)>& draw)
{
    QImage image(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(target.renderHints());
    painter.setTransform(target.deviceTransform() * QTransform::fromTranslate(-pixels.x(), -pixels.y()));
    draw(painter);
    return image;
}

void paintDeviceImage(QPainter& target, QPoint at, const QImage& image, double opacity)
{
    const double ratio = target.device()->devicePixelRatio();
    target.save();
    target.resetTransform();
    target.scale(1 / ratio, 1 / ratio);
    // With this hint even an image that is not scaled takes the way of those that are.
    target.setRenderHint(QPainter::SmoothPixmapTransform, false);
    target.setOpacity(opacity);
    target.drawImage(at, image);
    target.restore();
}

} // namespace ambrelle
