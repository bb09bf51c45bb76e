#include "desktop/DeviceLayer.h"

namespace ambrelle {

DeviceLayer::DeviceLayer(const QPainter& target, const QRectF& area, const std::function<void(QPainter&)>& draw)
    : m_device(target.deviceTransform())
    , m_pixels(m_device.mapRect(area).toAlignedRect())
    , m_image(m_pixels.size(), QImage::Format_ARGB32_Premultiplied)
{
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setTransform(m_device * QTransform::fromTranslate(-m_pixels.x(), -m_pixels.y()));
    draw(painter);
    painter.end();
    m_image.setDevicePixelRatio(target.device()->devicePixelRatio());
}

bool DeviceLayer::covers(const QPainter& target, const QRectF& area) const
{
    return !isEmpty() && m_device == target.deviceTransform()
        && m_pixels.contains(m_device.mapRect(area).toAlignedRect());
}

void DeviceLayer::paint(QPainter& target, double opacity) const
{
    target.save();
    target.resetTransform();
    target.setOpacity(opacity);
    target.drawImage(QPointF(m_pixels.topLeft()) / m_image.devicePixelRatio(), m_image);
    target.restore();
}

} // namespace ambrelle
