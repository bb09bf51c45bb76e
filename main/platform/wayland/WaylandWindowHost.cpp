// SPDX-License-Identifier: MIT

#include "platform/wayland/WaylandWindowHost.h"

#include "foundation/Wording.h"
#include "platform/toolkit/NativeScreens.h"
#include "platform/wayland/connection/ToolkitWayland.h"

#include <QGuiApplication>
#include <QScreen>

namespace ambrelle {

WaylandWindowHost::WaylandWindowHost(ScreenList::FactsOf factsOf)
{
    wl_display* const display = toolkitDisplay();
    auto parts = display ? std::make_unique<WaylandParts>(display, std::move(factsOf)) : nullptr;
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

QRectF WaylandWindowHost::fromLayout(const QRectF& place) const
{
    QList<NativeScreens::Screen> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append({QRectF(screen->geometry()), LayerPlace::factorOf(*screen)});
    return m_parts->screens.space().turned(NativeScreens(screens).toolkitRect(place.toRect()));
}

std::unique_ptr<PanelWindow> WaylandWindowHost::makePanel(PanelDelegate& delegate)
{
    auto panel = std::make_unique<WaylandPanel>(delegate, *m_parts);
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
    panel.onDestroyed = [this](WaylandPanel* gone) { m_panels.removeOne(gone); };
    m_panels.append(&panel);
}

std::unique_ptr<BackdropWindow> WaylandWindowHost::makeBackdrop(BackdropDelegate& delegate)
{
    return std::make_unique<WaylandBackdrop>(delegate, *m_parts);
}

std::unique_ptr<DropSpotter> WaylandWindowHost::makeDropSpotter()
{
    return m_parts ? std::make_unique<WaylandDropSpotter>(*m_parts) : nullptr;
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
