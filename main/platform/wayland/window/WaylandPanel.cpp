// SPDX-License-Identifier: MIT

#include "platform/wayland/window/WaylandPanel.h"

#include "platform/toolkit/PixelGrid.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

PanelSurface* WaylandPanel::makeSurface(PanelDelegate& delegate, WaylandParts& parts, Rank rank, WaylandCanvas*& canvas)
{
    // A scene is as large as its screen, and hardly ever changes.
    const auto keeping = rank == Rank::scene ? WaylandCanvas::Keeping::nothing : WaylandCanvas::Keeping::pixels;
    auto made = std::make_unique<WaylandCanvas>(parts.connection.memory(), keeping);
    canvas = made.get();
    return new PanelSurface(delegate, parts.screens, std::move(made));
}

WaylandPanel::WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank)
    : m_parts(parts)
    , m_surface(makeSurface(delegate, parts, rank, m_canvas))
    , m_window(parts, *m_surface, ShellLayer::bottom,
          rank == Rank::scene ? LayerWindow::Order::bottom : LayerWindow::Order::top)
{
    m_surface->create();
    m_window.ready = [this] {
        if (!m_ghost)
            m_canvas->setTarget(m_window.surface());
    };
    QObject::connect(m_surface, &PanelSurface::pixelRatioChanged, m_surface, [this] {
        place();
        applyInput();
    });
    QObject::connect(m_surface, &PanelSurface::released, m_surface, [this] { endFollowing(); });
}

WaylandPanel::~WaylandPanel()
{
    if (onDestroyed)
        onDestroyed(this);
    QObject::disconnect(m_surface, &PanelSurface::pixelRatioChanged, nullptr, nullptr);
    QObject::disconnect(m_surface, &PanelSurface::released, nullptr, nullptr);
    m_canvas->setTarget(nullptr);
    m_window.hide();
    m_surface->retire();
}

QRect WaylandPanel::wantedPlace() const
{
    const QRectF wanted = m_parts.screens.space().turnedBack(m_frame);
    return {wanted.topLeft().toPoint(), PixelGrid(pixelRatio()).covering(wanted.size())};
}

void WaylandPanel::setFrame(const QRectF& frame)
{
    m_frame = frame;
    place();
}

void WaylandPanel::place()
{
    const QRect wanted = wantedPlace();
    if (m_surface->isHeld() && isShown()) {
        follow(wanted);
    } else {
        m_surface->moveTo(wanted);
        m_window.setPlace(wanted);
    }
}

/// The window keeps its place while a button is held on it; only its size follows, which the ghost shows.
void WaylandPanel::follow(const QRect& place)
{
    if (!m_ghost && place == m_surface->geometry())
        return;
    if (!m_ghost)
        beginFollowing();
    if (place.size() != m_surface->size())
        m_surface->resize(place.size());
    m_ghost->setPlace(LayerPlace::of(place));
}

void WaylandPanel::beginFollowing()
{
    m_ghost = std::make_unique<DragGhost>(m_parts, layer());
    m_ghost->ready = [this] {
        m_canvas->setTarget(m_ghost->surface());
        if (m_nothing || !m_window.surface())
            return;
        m_nothing = PixelBuffer::make(m_parts.connection.memory(), m_surface->size());
        if (!m_nothing)
            return;
        wl_surface_set_buffer_scale(m_window.surface(), 1);
        m_nothing->attachTo(m_window.surface());
        wl_surface_damage_buffer(m_window.surface(), 0, 0, m_surface->width(), m_surface->height());
        wl_surface_commit(m_window.surface());
    };
}

void WaylandPanel::endFollowing()
{
    if (!m_ghost)
        return;
    const QRect wanted = wantedPlace();
    m_canvas->setTarget(nullptr);
    m_surface->moveTo(wanted);
    m_window.setPlace(wanted);
    if (m_window.isReady()) // on another output it still has to become so
        m_canvas->setTarget(m_window.surface());
    m_ghost.reset();
    m_nothing.reset();
}

void WaylandPanel::show()
{
    if (isShown())
        return;
    m_window.show();
    applyInput();
}

void WaylandPanel::hide()
{
    if (!isShown())
        return;
    m_ghost.reset();
    m_nothing.reset();
    m_canvas->setTarget(nullptr);
    m_window.hide();
}

ShellLayer WaylandPanel::layer() const
{
    return m_level == WindowLevel::floating ? ShellLayer::top : ShellLayer::bottom;
}

void WaylandPanel::setLevel(WindowLevel level)
{
    m_level = level;
    m_window.setLayer(layer());
    if (m_ghost)
        m_ghost->setLayer(layer());
}

void WaylandPanel::setOpacity(double opacity)
{
    m_canvas->setOpacity(std::clamp(opacity, 0.0, 1.0));
    m_surface->updateAll();
}

void WaylandPanel::setClickThrough(bool through)
{
    if (std::exchange(m_clickThrough, through) != through)
        applyInput();
}

void WaylandPanel::setInputArea(const QRectF& area)
{
    if (m_inputArea == area)
        return;
    m_inputArea = area;
    applyInput();
}

void WaylandPanel::applyInput()
{
    if (m_clickThrough)
        m_window.setInputArea(QRect());
    else if (m_inputArea)
        m_window.setInputArea(m_inputArea->toAlignedRect());
    else
        m_window.setInputArea(std::nullopt);
}

} // namespace ambrelle
