// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"
#include "services/LiveServices.h"

namespace ambrelle {

/// Those of the machine's ports that the live services ask.
inline LiveServices::Ports servicePorts(const Machine::Ports& ports)
{
    return {
        .http = ports.http,
        .location = ports.location,
        .players = ports.players,
        .calendars = ports.calendars,
        .announcer = ports.announcer,
        .devices = ports.devices,
        .input = ports.input,
    };
}

} // namespace ambrelle
