// SPDX-License-Identifier: MIT

#include "platform/wayland/window/PanelTwin.h"

#include "platform/toolkit/PixelGrid.h"

#include <utility>

namespace ambrelle {

namespace {

PanelSurface* makeTwinSurface(PanelDelegate& twin, WaylandParts& parts, WaylandCanvas*& canvas)
{
    auto made = std::make_unique<WaylandCanvas>(parts.connection.memory(), WaylandCanvas::Keeping::pixels);
    canvas = made.get();
    return new PanelSurface(twin, parts.screens, std::move(made));
}

} // namespace

PanelTwin::PanelTwin(PanelDelegate& panel, WaylandParts& parts, QScreen& screen, ShellLayer layer)
    : m_panel(panel)
    , m_parts(parts)
    , m_screen(&screen)
    , m_surface(makeTwinSurface(*this, parts, m_canvas))
    , m_window(parts, *m_surface, layer, LayerWindow::Order::top)
    , m_catcher(parts, *m_surface)
{
    m_surface->setScreen(&screen);
    m_surface->create();
    m_window.ready = [this] {
        if (!m_vanished)
            m_canvas->setTarget(m_window.surface());
    };
    m_window.lost = [this] {
        m_canvas->setTarget(nullptr);
        QMetaObject::invokeMethod(m_surface, &PanelSurface::letGo, Qt::QueuedConnection);
    };
    QObject::connect(m_surface, &PanelSurface::pressed, m_surface, [this] { m_window.setHeld(true); });
    QObject::connect(m_surface, &PanelSurface::released, m_surface, [this] { m_window.setHeld(false); });
    QObject::connect(m_surface, &PanelSurface::pixelRatioChanged, m_surface, [this] { setPlace(m_corner, m_size); });
}

PanelTwin::~PanelTwin()
{
    QObject::disconnect(m_surface, nullptr, nullptr, nullptr);
    m_canvas->setTarget(nullptr);
    m_window.hide();
    m_surface->retire();
}

void PanelTwin::setPlace(const QPoint& corner, const QSizeF& size)
{
    m_corner = corner;
    m_size = size;
    if (!m_screen || m_vanished)
        return;
    const QRect place(corner, PixelGrid(m_surface->pixelRatio()).covering(size));
    if (m_canvas->setShownPart(m_screen->geometry().translated(-corner)))
        m_surface->updateAll();
    m_surface->moveTo(place);
    m_window.setPlace(place, *m_screen);
    m_window.show();
}

void PanelTwin::setOpacity(double opacity)
{
    m_canvas->setOpacity(opacity);
    m_surface->updateAll();
}

void PanelTwin::vanish()
{
    m_vanished = true;
    m_catcher.follow();
    m_canvas->setTarget(nullptr);
    if (m_window.isReady())
        m_nothing = PixelBuffer::showNothing(m_parts.connection.memory(), m_window.surface(), m_surface->size());
}

} // namespace ambrelle
