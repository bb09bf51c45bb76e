// SPDX-License-Identifier: MIT

#include "window/frame/StatusItemController.h"

#include "window/look/AppLook.h"
#include "window/look/SymbolIcon.h"

#include <QApplication>
#include <QSystemTrayIcon>

#include <utility>

namespace ambrelle {

StatusItemController::StatusItemController(ActionMenu::Items items, std::function<void()> toggle, Clock& clock)
    : m_toggle(std::move(toggle))
    , m_clock(clock)
    , m_menu(std::move(items), AppLook::menuSymbol)
{
}

StatusItemController::~StatusItemController() = default;

void StatusItemController::show()
{
    if (m_item)
        return;
    m_menu.refill(); // a panel may show what it was told first
    m_item = std::make_unique<QSystemTrayIcon>(markIcon());
    m_item->setToolTip(QGuiApplication::applicationDisplayName());
    m_item->setContextMenu(&m_menu);
    connect(m_item.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            clicked();
        else if (reason == QSystemTrayIcon::Context)
            openMenu();
    });
    m_item->show();
    Q_EMIT appeared();
}

void StatusItemController::clicked()
{
    if (QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier)) {
        openMenu();
        return;
    }
    // A panel may tell a double click as two.
    if (!m_lastClick || m_clock.elapsed() - *m_lastClick > QApplication::doubleClickInterval() / 1000.0)
        m_toggle();
    m_lastClick = m_clock.elapsed(); // after the window was made, which may take a moment
}

void StatusItemController::openMenu()
{
    if (!m_menu.isVisible()) // the toolkit opens it itself in some trays
        m_menu.popup(QCursor::pos());
}

} // namespace ambrelle
