// SPDX-License-Identifier: MIT

#pragma once

#include "platform/headless/HeadlessPorts.h"
#include "services/LiveServices.h"

namespace ambrelle {

/// Live services of a machine that has nothing to tell.
struct QuietServices {
    QuietServices(AppSettings& settings, UserDefaults& defaults, Clock& clock)
        : live({ports.http, ports.location, ports.players, ports.calendars, ports.announcer, {&ports.devices},
                   ports.input},
            {}, settings, defaults, clock)
    {
    }

    HeadlessPorts ports;
    LiveServices live;
};

} // namespace ambrelle
