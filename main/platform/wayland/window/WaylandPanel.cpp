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
    , m_delegate(delegate)
    , m_parts(parts)
    , m_canvas(canvas)
    , m_window(parts, surface(), ShellLayer::bottom, isScene() ? LayerWindow::Order::bottom : LayerWindow::Order::top)
    , m_catcher(parts, surface())
{
    surface().create();
    m_window.ready = [this] {
        if (!m_ghost)
            m_canvas->setTarget(m_window.surface());
    };
    m_window.lost = [this] {
        if (!m_ghost)
            m_canvas->setTarget(nullptr);
        QMetaObject::invokeMethod(&surface(), &PanelSurface::letGo, Qt::QueuedConnection);
    };
    QObject::connect(&surface(), &PanelSurface::pressed, &surface(), [this] { m_window.setHeld(true); });
    QObject::connect(&surface(), &PanelSurface::pixelRatioChanged, &surface(), [this] {
        place();
        applyInput();
    });
    QObject::connect(&surface(), &PanelSurface::released, &surface(), [this] {
        endFollowing();
        m_window.setHeld(false);
        raise();
    });
}

WaylandPanel::~WaylandPanel()
{
    if (onDestroyed)
        onDestroyed(this);
    QObject::disconnect(&surface(), &PanelSurface::pixelRatioChanged, nullptr, nullptr);
    QObject::disconnect(&surface(), &PanelSurface::pressed, nullptr, nullptr);
    QObject::disconnect(&surface(), &PanelSurface::released, nullptr, nullptr);
    m_twins.clear();
    m_heldTwin.reset();
    m_canvas->setTarget(nullptr);
    m_window.hide();
}

void WaylandPanel::place()
{
    surface().checkPixelRatio();
    const QRect wanted = wantedPlace();
    if (surface().isHeld() && isShown()) {
        follow(wanted);
    } else {
        surface().moveTo(wanted);
        m_window.setPlace(wanted);
    }
    arrangeTwins();
}

void WaylandPanel::arrangeTwins()
{
    const QRect at = wantedPlace();
    QScreen* const own = LayerPlace::of(at).screen;
    QList<QScreen*> others;
    if (isShown() && !isScene())
        others = LayerPlace::screensShowing(body().toAlignedRect().translated(at.topLeft()));
    others.removeOne(own);
    for (std::unique_ptr<PanelTwin>& twin : m_twins) {
        const bool stays = others.contains(twin->screen());
        if (twin->surface().isHeld() && (!stays || twin->surface().place().topLeft() != at.topLeft())) {
            twin->vanish(); // it has to stay where it was pressed
            m_heldTwin = std::move(twin);
        } else if (!stays) {
            twin.reset();
        }
    }
    std::erase(m_twins, nullptr);
    for (QScreen* const screen : others) {
        if (std::ranges::find(m_twins, screen, &PanelTwin::screen) == m_twins.end())
            m_twins.push_back(makeTwin(*screen));
    }
    for (const std::unique_ptr<PanelTwin>& twin : m_twins)
        twin->setPlace(at.topLeft(), frame().size());
    // There are compositors that show a surface beside its output too, where its twin is.
    const bool isCut = own && !m_twins.empty() && !surface().isHeld();
    if (m_canvas->setShownPart(isCut ? std::optional(own->geometry().translated(-at.topLeft())) : std::nullopt))
        surface().updateAll();
}

std::unique_ptr<PanelTwin> WaylandPanel::makeTwin(QScreen& screen)
{
    auto made = std::make_unique<PanelTwin>(m_delegate, m_parts, screen, layer());
    made->setOpacity(m_opacity);
    made->setInputArea(heardArea());
    QObject::connect(&made->surface(), &PanelSurface::released, &made->surface(), [this, twin = made.get()] {
        if (twin == m_heldTwin.get())
            m_heldTwin.reset();
        raise();
    });
    return made;
}

/// Not before the button is let go: a window that leaves its layer, if only for a moment, may lose the pointer.
void WaylandPanel::raise()
{
    m_window.raise();
    for (const std::unique_ptr<PanelTwin>& twin : m_twins)
        twin->raise();
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
    m_catcher.follow();
    m_ghost = std::make_unique<DragGhost>(m_parts, layer());
    m_ghost->ready = [this] {
        m_canvas->setTarget(m_ghost->surface());
        if (!m_nothing && m_window.isReady())
            m_nothing = PixelBuffer::showNothing(m_parts.connection.memory(), m_window.surface(), surface().size());
    };
    m_ghost->lost = [this] { m_canvas->setTarget(nullptr); };
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
    arrangeTwins();
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
    m_twins.clear();
    m_heldTwin.reset();
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
    for (const std::unique_ptr<PanelTwin>& twin : m_twins)
        twin->setLayer(layer());
}

void WaylandPanel::setOpacity(double opacity)
{
    m_opacity = std::clamp(opacity, 0.0, 1.0);
    m_canvas->setOpacity(m_opacity);
    surface().updateAll();
    for (const std::unique_ptr<PanelTwin>& twin : m_twins)
        twin->setOpacity(m_opacity);
}

void WaylandPanel::update(const QRectF& area)
{
    SurfacePanel::update(area);
    for (const std::unique_ptr<PanelTwin>& twin : m_twins)
        twin->update(area);
}

std::optional<QRect> WaylandPanel::heardArea() const
{
    const std::optional<QRectF> heard = inputArea();
    return heard ? std::optional(heard->toAlignedRect()) : std::nullopt;
}

void WaylandPanel::applyInput()
{
    const std::optional<QRect> heard = heardArea();
    m_window.setInputArea(heard);
    for (const std::unique_ptr<PanelTwin>& twin : m_twins)
        twin->setInputArea(heard);
    arrangeTwins();
}

} // namespace ambrelle
