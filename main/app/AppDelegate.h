// SPDX-License-Identifier: MIT

#pragma once

#include "app/StartRequest.h"
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
#include "updates/Updater.h"
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

    /// The machine and the stores outlive the application. `updates` says whom to believe about newer releases.
    AppDelegate(Machine& machine, const Stores& stores, const Updater::Trust& updates = {});
    ~AppDelegate() override;

    const WindowContext& context() const { return m_interface.context(); }
    void start();
    /// The widgets stand: what this start is for is carried out, if it is for anything but the widgets.
    void started(const StartRequest& request);
    /// Another start or another program asks for something.
    void carryOut(const StartRequest& request) { m_interface.carryOut(request); }
    /// From now on other programs can ask.
    void openDoor();

private:
    void firstLaunch();
    void screensChanged();
    void settingChanged(const QString& key);
    bool isInUse() const;
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
    Updater m_updater;
    UserInterface m_interface;
};

} // namespace ambrelle
