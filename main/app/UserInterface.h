// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/QuickMenu.h"
#include "foundation/Clock.h"
#include "window/frame/MainWindowController.h"
#include "window/frame/StatusItemController.h"
#include "window/popover/WidgetContextMenu.h"
#include "window/popover/WidgetSettings.h"

namespace ambrelle {

class SystemAppearance;
class TrayPresence;

/// The tray item, the menus and the main window.
class UserInterface : public QObject {
public:
    struct Collaborators {
        WindowHost& host;
        WidgetManager& manager;
        AppSettings& settings;
        FocusTimer& focus;
        SystemAppearance& appearance;
        QList<TrayPresence*> trays;
        Clock& clock;
    };

    explicit UserInterface(const Collaborators& collaborators);

    /// Looks for a tray, after the widgets had time to be painted.
    void start();
    /// The program was started again, maybe with theme files.
    void reopen(const QStringList& files);

    MainWindowController& mainWindow() { return m_mainWindow; }

private:
    void open(std::optional<MainTab> tab);
    void followAppearance();

    SystemAppearance& m_appearance;
    QList<TrayPresence*> m_trays;
    Clock& m_clock;
    QuickMenu m_quickMenu;
    MainWindowController m_mainWindow;
    WidgetContextMenu m_widgetMenu;
    WidgetSettings m_widgetSettings;
    StatusItemController m_statusItem;
    Ticket m_start;
};

} // namespace ambrelle
