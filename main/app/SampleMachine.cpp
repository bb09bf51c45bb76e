// SPDX-License-Identifier: MIT

#include "app/SampleMachine.h"

#include "app/Hosts.h"
#include "foundation/ManualClock.h"
#include "offline/SampleData.h"

namespace ambrelle {

namespace {

Machine::Ports joint(const Machine::Ports& still, WindowHost& windows)
{
    return {.clock = still.clock,
        .windows = windows,
        .otherWindows = still.otherWindows,
        .visibility = still.visibility,
        .input = still.input,
        .appearance = still.appearance,
        .desktopPicture = still.desktopPicture,
        .trays = {},
        .programs = still.programs,
        .loginItem = still.loginItem,
        .announcer = still.announcer,
        .sources = still.sources,
        .devices = still.devices,
        .http = still.http,
        .location = still.location,
        .players = still.players,
        .calendars = still.calendars,
        .door = still.door,
        .desktopNames = {}};
}

} // namespace

SampleMachine::SampleMachine(std::unique_ptr<Machine> shown)
    : m_shown(std::move(shown))
    , m_still(makeHeadlessMachine(std::make_unique<ManualClock>(SampleData::moment())))
{
}

Machine::Ports SampleMachine::ports()
{
    return joint(m_still->ports(), m_shown->ports().windows);
}

} // namespace ambrelle
