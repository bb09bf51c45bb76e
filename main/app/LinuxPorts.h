#pragma once

#include "platform/calendar/FolderCalendarStore.h"
#include "platform/InputMonitor.h"
#include "platform/linux/bus/BluezDevices.h"
#include "platform/linux/bus/GeoClueLocation.h"
#include "platform/linux/bus/MprisPlayers.h"
#include "platform/linux/bus/UPowerDevices.h"
#include "platform/linux/desktop/DesktopAnnouncer.h"
#include "platform/network/QtHttpClient.h"
#include "services/LiveServices.h"

#include <memory>

namespace ambrelle {

/// What the live services ask of this machine. Nothing is opened before a service asks.
class LinuxPorts {
public:
    /// `calendarFolders` are looked at besides the usual ones. `isX11`: the pointer can be watched there.
    LinuxPorts(Clock& clock, const QStringList& calendarFolders, bool isX11);

    LiveServices::Ports ports();

private:
    QtHttpClient m_http;
    GeoClueLocation m_location;
    MprisPlayers m_players;
    FolderCalendarStore m_calendars;
    DesktopAnnouncer m_announcer;
    BluezDevices m_bluetooth;
    UPowerDevices m_power;
    std::unique_ptr<InputMonitor> m_input;
};

} // namespace ambrelle
