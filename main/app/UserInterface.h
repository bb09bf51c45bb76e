// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/QuickMenu.h"
#include "foundation/Clock.h"
#include "model/ThemeStore.h"
#include "platform/Machine.h"
#include "window/frame/MainWindowController.h"
#include "window/frame/ProgramFacts.h"
#include "window/frame/Sheet.h"
#include "window/frame/StatusItemController.h"
#include "window/frame/Undo.h"
#include "window/frame/WindowContext.h"
#include "window/popover/WidgetContextMenu.h"
#include "window/popover/WidgetSettings.h"
#include "window/themes/ThemeActions.h"
#include "window/wallpapers/PictureSorter.h"

namespace ambrelle {

struct StartRequest;
class TrayPresence;
class Updater;
class UserDefaults;
class WindowPictures;

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
        WindowPictures& pictures;
        SystemMonitor& monitor;
        LiveServices& services;
        const ReadingFeed& feed;
        Updater& updater;
    };

    explicit UserInterface(const Collaborators& collaborators);

    /// What a window like the program's own is made of.
    const WindowContext& context() const { return m_context; }
    /// Looks for a tray, after the widgets had time to be painted.
    void start();
    /// The first start: the main window with its welcome, after the widgets had time to be painted.
    void welcome();
    /// The weather's city and the calendars, where the settings of them are.
    void askForCity();
    void showCalendars();
    /// Whether the main window, be it as an icon, or a widget's settings are open: something may be half typed there.
    bool isInUse() const;
    /// Opens the files in the main window, then performs the action; opens the window alone when there is neither.
    void carryOut(const StartRequest& request);

private:
    void tellRefused(UserDefaults& defaults);
    void perform(const QString& action);
    void open(std::optional<MainTab> tab);
    void followAppearance();
    QuickMenu::Updates updates();
    void showUpdates();

    WindowHost& m_host;
    SystemAppearance& m_appearance;
    QList<TrayPresence*> m_trays;
    Clock& m_clock;
    Updater& m_updater;
    QuickMenu m_quickMenu;
    MainWindowModel m_model;
    SheetQueue m_sheets;
    UndoKeeper m_undo;
    ThemeStore m_themes;
    PictureSorter m_sorter;
    const ProgramFacts m_facts;
    WindowContext m_context;
    ThemeActions m_themeActions;
    MainWindowController m_mainWindow;
    WidgetContextMenu m_widgetMenu;
    WidgetSettings m_widgetSettings;
    StatusItemController m_statusItem;
    QString m_token; ///< of what is being carried out
    Ticket m_start;
    Ticket m_welcome;
};

} // namespace ambrelle
