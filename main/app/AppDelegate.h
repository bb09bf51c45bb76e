#pragma once

#include "app/DesktopSenses.h"
#include "app/LinuxPorts.h"
#include "app/UserInterface.h"
#include "app/WidgetActions.h"
#include "desktop/AppearanceFollower.h"
#include "desktop/WidgetManager.h"
#include "platform/linux/bus/PortalAppearance.h"
#include "platform/linux/desktop/DesktopPrograms.h"
#include "platform/linux/kernel/LinuxSources.h"
#include "platform/linux/kernel/SystemClock.h"
#include "services/Automation.h"
#include "services/SystemMonitor.h"
#include "wallpapers/DesktopWallpaper.h"
#include "wallpapers/WallpaperStore.h"

#include <memory>

namespace ambrelle {

/// Wires the real machine, the services and the desktop together, and starts them in order. Needs the application
/// object.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    AppDelegate();
    ~AppDelegate() override;

    void start();
    /// The program was asked to show itself, maybe with theme files.
    void reopen(const QStringList& files) { m_interface.reopen(files); }

private:
    void firstLaunch();
    void clicked(WidgetKind kind, const FaceAction& action);

    SystemClock m_clock;
    LinuxSources m_sources;
    PortalAppearance m_appearance;
    std::unique_ptr<WindowHost> m_host;
    DesktopSenses m_senses;
    LinuxPorts m_ports;
    SystemMonitor m_monitor;
    LiveServices m_services;
    ReadingFeed m_feed;
    WidgetManager m_manager;
    DesktopPrograms m_programs;
    WidgetActions m_actions;
    std::unique_ptr<DesktopPicture> m_desktopPicture;
    DesktopWallpaper m_wallpaper;
    WallpaperStore m_thumbnails;
    Automation m_automation;
    AppearanceFollower m_follower;
    UserInterface m_interface;
};

} // namespace ambrelle
