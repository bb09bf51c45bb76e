// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/FolderCalendarStore.h"
#include "platform/linux/bus/ApplicationDoor.h"
#include "platform/linux/bus/AssistanceSwitch.h"
#include "platform/linux/bus/BluezDevices.h"
#include "platform/linux/bus/BusSessionVisibility.h"
#include "platform/linux/bus/GeoClueLocation.h"
#include "platform/linux/bus/MprisPlayers.h"
#include "platform/linux/bus/PortalAppearance.h"
#include "platform/linux/bus/SessionInputMonitor.h"
#include "platform/linux/bus/StatusNotifierTray.h"
#include "platform/linux/bus/UPowerDevices.h"
#include "platform/linux/desktop/AutostartEntry.h"
#include "platform/linux/desktop/DesktopAnnouncer.h"
#include "platform/linux/desktop/DesktopPrograms.h"
#include "platform/linux/DesktopPictureChoice.h"
#include "platform/linux/kernel/LinuxSources.h"
#include "platform/linux/kernel/RouteWatch.h"
#include "platform/linux/kernel/SystemClock.h"
#include "platform/linux/update/LinuxProgramFolder.h"
#include "platform/Machine.h"
#include "platform/network/HttpsReleaseServer.h"
#include "platform/network/QtHttpClient.h"

namespace ambrelle {

/// What every Linux host has, whatever shows its windows: the ports for which the window system is not asked. Making it
/// also tells background threads how to yield.
struct LinuxSystem {
    /// `hostsPicture` makes the picture of a desktop that has no way of its own to set it.
    LinuxSystem(const Machine::Wishes& wishes, const MakeDesktopPicture& hostsPicture);

    /// What a window system has of its own.
    struct WindowPorts {
        WindowHost& windows;
        WindowList& otherWindows;
        SessionVisibility& visibility;
        InputMonitor& input;
        QList<TrayPresence*> trays;
    };

    Machine::Ports ports(const WindowPorts& shown); ///< all there are

    DesktopSession session;
    SystemClock clock;
    LinuxSources sources;
    AssistanceSwitch assistance;
    PortalAppearance appearance;
    BusSessionVisibility visibility; ///< of the locker and the seat; the window system may know more
    SessionInputMonitor input; ///< for hosts that cannot see the pointer outside their windows
    StatusNotifierTray tray;
    QtHttpClient http;
    std::shared_ptr<ReleaseServer> releases = std::make_shared<HttpsReleaseServer>();
    RouteWatch routes;
    GeoClueLocation location;
    MprisPlayers players;
    FolderCalendarStore calendars;
    ApplicationDoor door;
    DesktopAnnouncer announcer;
    BluezDevices bluetooth;
    UPowerDevices power;
    DesktopPrograms programs;
    AutostartEntry loginItem;
    std::unique_ptr<DesktopPicture> desktopPicture;
    std::shared_ptr<ProgramFolder> programFolder; ///< none: the program is not to be replaced here
};

} // namespace ambrelle
