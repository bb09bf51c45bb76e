// SPDX-License-Identifier: MIT

#include "platform/wayland/window/WaylandPanel.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// A scene is as large as its screen, and hardly ever changes.
WaylandCanvas* makeCanvas(WaylandParts& parts, SurfacePanel::Rank rank)
{
    using Keeping = WaylandCanvas::Keeping;
    return new WaylandCanvas(
        parts.connection.memory(), rank == SurfacePanel::Rank::scene ? Keeping::nothing : Keeping::pixels);
}

} // namespace

WaylandPanel::WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank)
    : WaylandPanel(delegate, parts, rank, makeCanvas(parts, rank))
{
}

WaylandPanel::WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank, WaylandCanvas* canvas)
    : SurfacePanel(delegate, parts.screens, rank, std::unique_ptr<SurfaceCanvas>(canvas))
    , m_parts(parts)
    , m_canvas(canvas)
    , m_window(parts, surface(), ShellLayer::bottom, isScene() ? LayerWindow::Order::bottom : LayerWindow::Order::top)
{
    surface().create();
    m_window.ready = [this] {
        if (!m_ghost)
            m_canvas->setTarget(m_window.surface());
    };
    QObject::connect(&surface(), &PanelSurface::pixelRatioChanged, &surface(), [this] {
        place();
        applyInput();
    });
    QObject::connect(&surface(), &PanelSurface::released, &surface(), [this] { endFollowing(); });
}

WaylandPanel::~WaylandPanel()
{
    if (onDestroyed)
        onDestroyed(this);
    QObject::disconnect(&surface(), &PanelSurface::pixelRatioChanged, nullptr, nullptr);
    QObject::disconnect(&surface(), &PanelSurface::released, nullptr, nullptr);
    m_canvas->setTarget(nullptr);
    m_window.hide();
}

void WaylandPanel::place()
{
    const QRect wanted = wantedPlace();
    if (surface().isHeld() && isShown()) {
        follow(wanted);
    } else {
        surface().moveTo(wanted);
        m_window.setPlace(wanted);
    }
}

/// The window keeps its place while a button is held on it; only its size follows, which the ghost shows.
void WaylandPanel::follow(const QRect& place)
{
    if (!m_ghost && place == surface().geometry())
        return;
    if (!m_ghost)
        beginFollowing();
    if (place.size() != surface().size())
        surface().resize(place.size());
    m_ghost->setPlace(LayerPlace::of(place));
}

void WaylandPanel::beginFollowing()
{
    m_ghost = std::make_unique<DragGhost>(m_parts, layer());
    m_ghost->ready = [this] {
        m_canvas->setTarget(m_ghost->surface());
        if (m_nothing || !m_window.surface())
            return;
        m_nothing = PixelBuffer::make(m_parts.connection.memory(), surface().size());
        if (!m_nothing)
            return;
        wl_surface_set_buffer_scale(m_window.surface(), 1);
        m_nothing->attachTo(m_window.surface());
        wl_surface_damage_buffer(m_window.surface(), 0, 0, surface().width(), surface().height());
        wl_surface_commit(m_window.surface());
    };
}

void WaylandPanel::endFollowing()
{
    if (!m_ghost)
        return;
    const QRect wanted = wantedPlace();
    m_canvas->setTarget(nullptr);
    surface().moveTo(wanted);
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
    surface().updateAll();
}

void WaylandPanel::applyInput()
{
    const std::optional<QRectF> heard = inputArea();
    m_window.setInputArea(heard ? std::optional(heard->toAlignedRect()) : std::nullopt);
}

} // namespace ambrelle
