// SPDX-License-Identifier: MIT

#pragma once

#include "app/UserInterface.h"
#include "app/WidgetActions.h"
#include "app/WindowPictures.h"
#include "desktop/AppearanceFollower.h"
#include "desktop/WidgetManager.h"
#include "desktop/WidgetTip.h"
#include "platform/Machine.h"
#include "services/Automation.h"
#include "services/LiveServices.h"
#include "services/SystemMonitor.h"
#include "wallpapers/DesktopWallpaper.h"
#include "wallpapers/WallpaperShuffle.h"

namespace ambrelle {

/// Wires a machine, the services and the desktop together, and starts them in order. Needs the application object.
class AppDelegate : public QObject {
public:
    /// What the user has settled so far.
    struct Stores {
        UserDefaults& defaults;
        AppSettings& settings;
        ThemeAccent& accents;
    };

    /// The machine and the stores outlive the application.
    AppDelegate(Machine& machine, const Stores& stores);
    ~AppDelegate() override;

    void start();
    /// The program was asked to show itself, maybe with theme files.
    void reopen(const QStringList& files) { m_interface.reopen(files); }

private:
    void firstLaunch();
    void screensChanged();
    void settingChanged(const QString& key);
    void clicked(const WidgetController& widget, const FaceAction& action);

    const Machine::Ports m_ports;
    AppSettings& m_settings;
    SystemMonitor m_monitor;
    LiveServices m_services;
    ReadingFeed m_feed;
    DesktopWallpaper m_wallpaper;
    WidgetManager m_manager;
    WidgetActions m_actions;
    WidgetTip m_tip;
    WindowPictures m_pictures;
    WallpaperShuffle m_shuffle;
    Automation m_automation;
    AppearanceFollower m_follower;
    UserInterface m_interface;
};

} // namespace ambrelle
