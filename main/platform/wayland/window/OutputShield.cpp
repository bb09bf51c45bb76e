// SPDX-License-Identifier: MIT

#include "platform/wayland/window/OutputShield.h"

#include <QEnterEvent>

namespace ambrelle {

OutputShield::OutputShield(WaylandParts& parts, QScreen& screen, ShellLayer layer)
    : m_parts(parts)
    , m_layer(parts, *this, layer, LayerWindow::Order::top)
{
    setFlag(Qt::FramelessWindowHint);
    setFlag(Qt::WindowDoesNotAcceptFocus);
    m_layer.ready = [this] { fill(); };
    m_layer.setPlace(screen.geometry(), screen);
    m_layer.show();
}

OutputShield::~OutputShield()
{
    m_viewport.reset();
    m_layer.hide();
}

bool OutputShield::event(QEvent* event)
{
    // What is done about it may end this window.
    if (event->type() == QEvent::MouseButtonPress && pressed) {
        QMetaObject::invokeMethod(
            this, [this] { pressed(); }, Qt::QueuedConnection);
        return true;
    }
    if (event->type() == QEvent::Enter && entered) {
        const QPointF place = QPointF(geometry().topLeft()) + static_cast<QEnterEvent*>(event)->position();
        QMetaObject::invokeMethod(
            this, [this, place] { entered(place); }, Qt::QueuedConnection);
        return true;
    }
    return QWindow::event(event);
}

void OutputShield::fill()
{
    wl_surface* const surface = m_layer.surface();
    if (!surface)
        return;
    const QSize whole = m_layer.size();
    const bool stretches = m_parts.connection.viewporter() != nullptr;
    m_viewport.reset();
    if (stretches) {
        m_viewport.reset(wp_viewporter_get_viewport(m_parts.connection.viewporter(), surface));
        wp_viewport_set_destination(m_viewport.get(), whole.width(), whole.height());
    }
    m_pixel = PixelBuffer::showNothing(m_parts.connection.memory(), surface, stretches ? QSize(1, 1) : whole);
}

} // namespace ambrelle
