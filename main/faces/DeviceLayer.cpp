// SPDX-License-Identifier: MIT

#include "faces/DeviceLayer.h"

#include "drawing/DeviceImage.h"

namespace ambrelle {

DeviceLayer::DeviceLayer(const QPainter& target, const QRectF& area, const std::function<void(QPainter&)>& draw)
    : m_device(target.deviceTransform())
    , m_pixels(devicePixels(target, area))
    , m_image(deviceImage(target, m_pixels, draw))
{
}

bool DeviceLayer::covers(const QPainter& target, const QRectF& area) const
{
    if (isEmpty())
        return false;
    // A window gives each part that it paints a picture of its own; a layer lies in all of them.
    const QPointF by = shift(target);
    return m_device * QTransform::fromTranslate(by.x(), by.y()) == target.deviceTransform()
        && by == QPointF(by.toPoint()) && m_pixels.translated(by.toPoint()).contains(devicePixels(target, area));
}

QPointF DeviceLayer::shift(const QPainter& target) const
{
    const QTransform& device = target.deviceTransform();
    return {device.dx() - m_device.dx(), device.dy() - m_device.dy()};
}

void DeviceLayer::paint(QPainter& target, double opacity) const
{
    paintDeviceImage(target, m_pixels.topLeft() + shift(target).toPoint(), m_image, opacity);
}

} // namespace ambrelle
