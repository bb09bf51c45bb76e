// SPDX-License-Identifier: MIT

#include "platform/wayland/WaylandWindowHost.h"

#include "foundation/Wording.h"
#include "platform/wayland/connection/ToolkitWayland.h"

#include <QCursor>

namespace ambrelle {

WaylandWindowHost::WaylandWindowHost()
{
    wl_display* const display = toolkitDisplay();
    auto parts = display ? std::make_unique<WaylandParts>(display) : nullptr;
    if (!parts || !parts->connection.isComplete())
        return;
    m_parts = std::move(parts);
    m_popups = std::make_unique<PopupRoles>(*m_parts);
    connect(&m_parts->screens, &ScreenList::changed, this, &WaylandWindowHost::screensSettled);
}

WaylandWindowHost::~WaylandWindowHost() = default;

QString WaylandWindowHost::whyNot() const
{
    return m_parts ? QString() : Wording::tr("Widgets on the desktop need the layer shell, which is not there.");
}

QList<ScreenInfo> WaylandWindowHost::screens() const
{
    return m_parts ? m_parts->screens.screens() : QList<ScreenInfo>{};
}

QPointF WaylandWindowHost::pointer() const
{
    return m_parts ? m_parts->screens.space().turned(QPointF(QCursor::pos())) : QPointF();
}

QRectF WaylandWindowHost::toolkitRect(const QRectF& rect) const
{
    return m_parts ? m_parts->screens.space().turnedBack(rect) : rect;
}

std::unique_ptr<PanelWindow> WaylandWindowHost::makePanel(PanelDelegate& delegate)
{
    auto panel = std::make_unique<WaylandPanel>(delegate, *m_parts);
    panel->setOverWindows(!m_backdrops.isEmpty());
    take(*panel);
    return panel;
}

std::unique_ptr<SceneWindow> WaylandWindowHost::makeScene(OrnamentDelegate& delegate)
{
    auto scene = std::make_unique<WaylandScene>(delegate, *m_parts);
    take(scene->panel());
    return scene;
}

void WaylandWindowHost::take(WaylandPanel& panel)
{
    panel.onShown = [this](WaylandPanel* shown) { raiseAboveScene(*shown); };
    panel.onDestroyed = [this](WaylandPanel* gone) { m_panels.removeOne(gone); };
    m_panels.append(&panel);
}

/// A surface comes to its layer above all that are there.
void WaylandWindowHost::raiseAboveScene(const WaylandPanel& shown)
{
    if (!shown.isScene())
        return;
    const QList<LayerWindow*> windows = m_parts->windows;
    for (LayerWindow* window : windows) {
        const bool isPanel = std::ranges::any_of(m_panels,
            [&](WaylandPanel* panel) { return &panel->window() == window && !panel->isScene() && panel->isShown(); });
        if (isPanel && window->layer() == ShellLayer::bottom)
            window->raise();
    }
}

std::unique_ptr<BackdropWindow> WaylandWindowHost::makeBackdrop(BackdropDelegate& delegate)
{
    auto backdrop = std::make_unique<WaylandBackdrop>(delegate, *m_parts);
    backdrop->onDestroyed = [this](WaylandBackdrop* gone) {
        m_backdrops.removeOne(gone);
        backdropsChanged();
    };
    m_backdrops.append(backdrop.get());
    backdropsChanged();
    return backdrop;
}

void WaylandWindowHost::backdropsChanged()
{
    for (WaylandPanel* panel : m_panels)
        panel->setOverWindows(!m_backdrops.isEmpty());
}

bool WaylandWindowHost::admit(QWindow& window, const QString& token)
{
    if (!m_parts)
        return false;
    m_parts->activation.activate(window, token);
    return true;
}

void WaylandWindowHost::screensSettled()
{
    for (WaylandPanel* panel : m_panels)
        panel->place();
    Q_EMIT screensChanged();
}

} // namespace ambrelle
