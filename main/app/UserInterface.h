// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/QuickMenu.h"
#include "foundation/Clock.h"
#include "platform/Machine.h"
#include "window/frame/MainWindowController.h"
#include "window/frame/StatusItemController.h"
#include "window/frame/WindowContext.h"
#include "window/popover/WidgetContextMenu.h"
#include "window/popover/WidgetSettings.h"

namespace ambrelle {

class TrayPresence;
class UserDefaults;

/// The tray item, the menus and the main window.
class UserInterface : public QObject {
public:
    struct Collaborators {
        UserDefaults& defaults;
        AppSettings& settings;
        ThemeAccent& accents;
        const Machine::Ports& ports;
        WidgetManager& manager;
        DesktopWallpaper& wallpaper;
        WallpaperStore& thumbnails;
        SystemMonitor& monitor;
        LiveServices& services;
        const ReadingFeed& feed;
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
    MainWindowModel m_model;
    WindowContext m_context;
    MainWindowController m_mainWindow;
    WidgetContextMenu m_widgetMenu;
    WidgetSettings m_widgetSettings;
    StatusItemController m_statusItem;
    Ticket m_start;
};

} // namespace ambrelle
