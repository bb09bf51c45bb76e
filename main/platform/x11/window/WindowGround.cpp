// SPDX-License-Identifier: MIT

#include "platform/x11/window/WindowGround.h"

#include <QPainter>

namespace ambrelle {

WindowGround::WindowGround(X11Parts& parts)
    : m_parts(parts)
{
}

void WindowGround::forget()
{
    m_picture = {};
    m_area = {};
}

void WindowGround::draw(QPainter& painter, const QRect& place, double pixelRatio)
{
    if (m_parts.compositor.isActive()) {
        forget();
        return;
    }
    if (place != m_area) {
        m_picture = m_parts.picture.part(place);
        m_picture.setDevicePixelRatio(pixelRatio);
        m_area = place;
    }
    painter.drawImage(QPointF(0, 0), m_picture);
}

} // namespace ambrelle
