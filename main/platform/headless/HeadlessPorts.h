#pragma once

#include "platform/headless/HeadlessAnnouncer.h"
#include "platform/headless/HeadlessCalendarStore.h"
#include "platform/headless/HeadlessDevices.h"
#include "platform/headless/HeadlessHttpClient.h"
#include "platform/headless/HeadlessInputMonitor.h"
#include "platform/headless/HeadlessLocation.h"
#include "platform/headless/HeadlessPlayers.h"

namespace ambrelle {

/// A machine that has nothing to tell the live services.
struct HeadlessPorts {
    HeadlessHttpClient http;
    HeadlessLocation location;
    HeadlessPlayers players;
    HeadlessCalendarStore calendars;
    HeadlessAnnouncer announcer;
    HeadlessDevices devices;
    HeadlessInputMonitor input;
};

} // namespace ambrelle
