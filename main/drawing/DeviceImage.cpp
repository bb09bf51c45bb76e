// SPDX-License-Identifier: MIT

#include "drawing/DeviceImage.h"

#include <QPaintDevice>

namespace ambrelle {

QRect devicePixels(const QPainter& target, const QRectF& area)
{
    return target.deviceTransform().mapRect(area).toAlignedRect();
}

QRect paintedPixels(const QPainter& target)
{
    const QRect device(0, 0, target.device()->width(), target.device()->height());
    return target.hasClipping() ? device & devicePixels(target, target.clipBoundingRect()) : device;
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

namespace {

/// Paints in the pixels of the device. Nothing is smoothed: with that hint even an image that is not scaled takes the
/// way of those that are.
void inDevicePixels(QPainter& target, const std::function<void()>& draw)
{
    const double ratio = target.device()->devicePixelRatio();
    target.save();
    target.resetTransform();
    target.scale(1 / ratio, 1 / ratio);
    target.setRenderHint(QPainter::SmoothPixmapTransform, false);
    draw();
    target.restore();
}

} // namespace

void paintDeviceImage(QPainter& target, QPoint at, const QImage& image, double opacity)
{
    inDevicePixels(target, [&] {
        target.setOpacity(opacity);
        target.drawImage(at, image);
    });
}

void paintDeviceImage(QPainter& target, QPoint at, const QImage& image, const QPainterPath& shape)
{
    inDevicePixels(target, [&] {
        QBrush texture(image);
        texture.setTransform(QTransform::fromTranslate(at.x(), at.y()));
        target.setClipRect(QRect(at, image.size()), Qt::IntersectClip); // a texture goes on beyond its edges
        target.setRenderHint(QPainter::Antialiasing);
        target.fillPath(shape, texture);
    });
}

} // namespace ambrelle
