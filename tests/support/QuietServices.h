#pragma once

#include "platform/headless/HeadlessAnnouncer.h"
#include "platform/headless/HeadlessCalendarStore.h"
#include "platform/headless/HeadlessDevices.h"
#include "platform/headless/HeadlessHttpClient.h"
#include "platform/headless/HeadlessInputMonitor.h"
#include "platform/headless/HeadlessLocation.h"
#include "platform/headless/HeadlessPlayers.h"
#include "services/LiveServices.h"

namespace ambrelle {

/// Live services of a machine that has nothing to tell.
struct QuietServices {
    QuietServices(AppSettings& settings, UserDefaults& defaults, Clock& clock)
        : live({http, location, players, calendars, announcer, {&devices}, input}, {}, settings, defaults, clock)
    {
    }

    HeadlessHttpClient http;
    HeadlessLocation location;
    HeadlessPlayers players;
    HeadlessCalendarStore calendars;
    HeadlessAnnouncer announcer;
    HeadlessDevices devices;
    HeadlessInputMonitor input;
    LiveServices live;
};

} // namespace ambrelle
