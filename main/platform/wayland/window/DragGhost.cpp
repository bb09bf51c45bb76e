// SPDX-License-Identifier: MIT

#include "platform/wayland/window/DragGhost.h"

#include "platform/wayland/connection/ToolkitWayland.h"

namespace ambrelle {

DragGhost::DragGhost(WaylandParts& parts, ShellLayer layer)
    : m_parts(parts)
    , m_layer(layer)
{
}

DragGhost::~DragGhost()
{
    m_parts.order.left(*this);
}

void DragGhost::setPlace(const LayerPlace& at)
{
    const bool elsewhere = at.screen != m_at.screen;
    m_at = at;
    if (elsewhere || !m_role)
        return open();
    m_role->setPlace(at.place);
    m_role->commit();
}

void DragGhost::setLayer(ShellLayer layer)
{
    m_layer = layer;
    if (!m_role)
        return;
    if (m_parts.order.joining() == Joining::anew)
        return open();
    m_role->setLayer(layer);
    m_role->commit();
    m_parts.order.joined(*this);
}

bool DragGhost::joinAgain()
{
    if (!m_role)
        return false;
    if (m_parts.order.joining() == Joining::anew)
        open();
    else
        m_role->joinAgain(m_layer);
    return m_role != nullptr;
}

void DragGhost::open()
{
    if (m_surface && lost)
        lost();
    m_parts.order.left(*this);
    m_role.reset();
    m_surface.reset();
    wl_output* const output = toolkitOutput(m_at.screen);
    if (!output)
        return;
    wl_compositor* const compositor = m_parts.connection.compositor();
    m_surface.reset(wl_compositor_create_surface(compositor));
    const Handle<wl_region> nothing(wl_compositor_create_region(compositor));
    wl_surface_set_input_region(m_surface.get(), nothing.get());
    m_role = std::make_unique<LayerRole>(m_parts.connection, m_surface.get(), output, m_layer);
    m_role->ready = [this] {
        if (ready)
            ready();
    };
    m_role->closed = [this] {
        if (lost)
            lost();
        m_parts.order.left(*this);
        m_role.reset();
    };
    m_role->setPlace(m_at.place);
    m_role->commit();
    m_parts.order.joined(*this);
}

} // namespace ambrelle
