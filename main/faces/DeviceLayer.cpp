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
    return !isEmpty() && m_device == target.deviceTransform() && m_pixels.contains(devicePixels(target, area));
}

void DeviceLayer::paint(QPainter& target, double opacity) const
{
    paintDeviceImage(target, m_pixels.topLeft(), m_image, opacity);
}

} // namespace ambrelle
