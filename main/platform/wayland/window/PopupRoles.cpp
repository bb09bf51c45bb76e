// SPDX-License-Identifier: MIT

#include "platform/wayland/window/PopupRoles.h"

#include "platform/toolkit/RasterSurface.h"
#include "platform/wayland/connection/ToolkitWayland.h"
#include "platform/wayland/window/LayerPlace.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <qpa/qwindowsysteminterface.h>

namespace ambrelle {

PopupRoles::PopupRoles(WaylandParts& parts)
    : m_parts(parts)
    , m_shields(parts)
{
    m_shields.clicked = [this] { closeAll(); };
    qGuiApp->installEventFilter(this);
}

PopupRoles::~PopupRoles() = default;

bool PopupRoles::isOurs(const QWindow& window) const
{
    if (window.type() != Qt::Popup && window.type() != Qt::ToolTip)
        return false;
    QWindow* const parent = window.transientParent();
    return !parent || m_roles.contains(parent);
}

bool PopupRoles::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWindowType())
        return false;
    auto& window = static_cast<QWindow&>(*watched);
    switch (event->type()) {
    case QEvent::Show:
        if (!m_roles.contains(&window) && isOurs(window))
            adopt(window);
        return false;
    case QEvent::Expose:
    case QEvent::Paint:
    case QEvent::UpdateRequest: return holdBack(window);
    case QEvent::Move:
    case QEvent::Resize: place(window); return false;
    case QEvent::MouseButtonPress: return closeForPress(window);
    default: return false;
    }
}

void PopupRoles::adopt(QWindow& window)
{
    // The toolkit is about to show it, with a bare surface then.
    window.setFlag(Qt::BypassWindowManagerHint);
    m_roles.emplace(&window, nullptr);
    if (window.type() == Qt::Popup)
        m_popups.append(&window);
    // The role has to go before the surface does.
    connect(&window, &QWindow::visibleChanged, this, [this, &window](bool visible) {
        if (!visible)
            release(&window);
    });
    connect(&window, &QObject::destroyed, this, [this, &window] { release(&window); });
    arrangeShields();
}

void PopupRoles::release(QWindow* window)
{
    disconnect(window, nullptr, this, nullptr);
    m_roles.erase(window);
    m_popups.removeOne(window);
    arrangeShields();
}

/// A surface with pixels gets no role any more, and none may come before the compositor is ready for them.
bool PopupRoles::holdBack(QWindow& window)
{
    const auto found = m_roles.find(&window);
    if (found == m_roles.end())
        return false;
    if (!found->second)
        open(window);
    return !found->second || !found->second->isReady();
}

void PopupRoles::open(QWindow& window)
{
    const LayerPlace at = LayerPlace::of(window.geometry());
    wl_surface* const surface = toolkitSurface(&window);
    wl_output* const output = toolkitOutput(at.screen);
    if (!surface || !output)
        return;
    auto role = std::make_unique<LayerRole>(m_parts.connection, surface, output, ShellLayer::overlay);
    role->ready = [&window] { QWindowSystemInterface::handleExposeEvent(&window, QRect({0, 0}, window.size())); };
    role->closed = [this, &window] {
        if (m_popups.contains(&window))
            closeAll();
    };
    role->setPlace(at.place);
    role->setTakesKeyboard(m_popups.value(0) == &window);
    role->commit();
    m_roles[&window] = std::move(role);
}

void PopupRoles::place(QWindow& window) const
{
    const auto found = m_roles.find(&window);
    if (found == m_roles.end() || !found->second)
        return;
    found->second->setPlace(LayerPlace::of(window.geometry()).place);
    found->second->commit();
}

/// A press on a panel ends the menu, and does no more.
bool PopupRoles::closeForPress(const QWindow& pressed)
{
    if (m_popups.isEmpty() || m_popups.contains(&pressed))
        return false;
    closeAll();
    return true;
}

void PopupRoles::closeAll()
{
    while (!m_popups.isEmpty()) {
        QWindow* const last = m_popups.last();
        last->close();
        m_popups.removeOne(last); // whatever became of it
    }
    arrangeShields();
}

void PopupRoles::arrangeShields()
{
    m_shields.setRaised(!m_popups.isEmpty());
}

} // namespace ambrelle
