// SPDX-License-Identifier: MIT

#include "platform/wayland/window/OutputShield.h"

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

std::vector<std::unique_ptr<OutputShield>> OutputShield::overAll(WaylandParts& parts, ShellLayer layer)
{
    std::vector<std::unique_ptr<OutputShield>> made;
    for (QScreen* const screen : LayerPlace::usableScreens())
        made.push_back(std::make_unique<OutputShield>(parts, *screen, layer));
    return made;
}

bool OutputShield::event(QEvent* event)
{
    if (!event->isSinglePointEvent())
        return QWindow::event(event);
    const auto& pointed = static_cast<const QSinglePointEvent&>(*event);
    const QPointF place = QPointF(geometry().topLeft()) + pointed.position();
    if (heard)
        heard(pointed, place);
    // What is done about it may end this window.
    if (event->type() == QEvent::MouseButtonPress && pressed) {
        QMetaObject::invokeMethod(
            this, [this] { pressed(); }, Qt::QueuedConnection);
        return true;
    }
    if (event->type() == QEvent::Enter && entered) {
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
