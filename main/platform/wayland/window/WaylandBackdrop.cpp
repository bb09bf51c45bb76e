// SPDX-License-Identifier: MIT

#include "platform/wayland/window/WaylandBackdrop.h"

namespace ambrelle {

namespace {

BackdropSurface* makeBackdropSurface(BackdropDelegate& delegate, WaylandParts& parts, WaylandCanvas*& canvas)
{
    // It is as large as its screen, and changes with the theme only.
    auto made = std::make_unique<WaylandCanvas>(parts.connection.memory(), WaylandCanvas::Keeping::nothing);
    canvas = made.get();
    return new BackdropSurface(delegate, std::move(made));
}

} // namespace

WaylandBackdrop::WaylandBackdrop(BackdropDelegate& delegate, WaylandParts& parts)
    : m_parts(parts)
    , m_surface(makeBackdropSurface(delegate, parts, m_canvas))
    , m_window(parts, *m_surface, ShellLayer::top, LayerWindow::Order::bottom)
{
    m_surface->create();
    m_window.ready = [this] { m_canvas->setTarget(m_window.surface()); };
    m_window.lost = [this] { m_canvas->setTarget(nullptr); };
}

WaylandBackdrop::~WaylandBackdrop()
{
    m_canvas->setTarget(nullptr);
    m_window.hide();
    m_surface->retire();
}

void WaylandBackdrop::setFrame(const QRectF& screen)
{
    m_frame = screen;
    m_window.setPlace(m_parts.screens.space().turnedBack(screen).toRect());
}

} // namespace ambrelle
