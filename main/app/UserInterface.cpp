// SPDX-License-Identifier: MIT

#include "app/UserInterface.h"

#include "model/AppSettings.h"
#include "platform/SystemAppearance.h"
#include "platform/TrayPresence.h"
#include "window/look/AppLook.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds trayDelay{500};

} // namespace

UserInterface::UserInterface(const Collaborators& with)
    : m_appearance(with.appearance)
    , m_trays(with.trays)
    , m_clock(with.clock)
    , m_quickMenu({.manager = with.manager,
          .settings = with.settings,
          .focus = with.focus,
          .open = [this](std::optional<MainTab> tab) { open(tab); },
          // Not quit(): it would ask the panels first, and they refuse to be closed by a window manager.
          .quit = [] { QCoreApplication::exit(); }})
    , m_mainWindow([this] { return m_quickMenu.items(); })
    , m_widgetMenu(with.manager, m_quickMenu)
    , m_widgetSettings({with.manager, with.host, with.appearance, with.clock})
    , m_statusItem([this] { return m_quickMenu.items(); }, [this] { m_mainWindow.toggle(); }, with.clock)
{
    connect(&m_appearance, &SystemAppearance::changed, this, &UserInterface::followAppearance);
    for (const TrayPresence* tray : m_trays)
        connect(tray, &TrayPresence::appeared, &m_statusItem, &StatusItemController::show);
}

void UserInterface::start()
{
    m_start = m_clock.after(trayDelay, [this] {
        followAppearance();
        for (TrayPresence* tray : m_trays)
            tray->start();
    });
}

void UserInterface::reopen(const QStringList& files)
{
    QStringList paths;
    for (const QString& file : files)
        paths += QFileInfo(file).absoluteFilePath();
    m_mainWindow.model().addHandedFiles(paths);
    open({});
}

void UserInterface::open(std::optional<MainTab> tab)
{
    if (tab)
        m_mainWindow.show(*tab);
    else
        m_mainWindow.show();
}

void UserInterface::followAppearance()
{
    AppLook::shared().apply(LookWishes::of(m_appearance));
}

} // namespace ambrelle
