// SPDX-License-Identifier: MIT

#include "platform/headless/HeadlessMachine.h"

#include "foundation/Clock.h"

#include <utility>

namespace ambrelle {

HeadlessMachine::HeadlessMachine(std::unique_ptr<Clock> clock)
    : m_clock(std::move(clock))
{
}

HeadlessMachine::~HeadlessMachine() = default;

Machine::Ports HeadlessMachine::ports()
{
    return {
        .clock = *m_clock,
        .windows = m_windows,
        .otherWindows = m_desktop.otherWindows,
        .visibility = m_desktop.visibility,
        .input = m_live.input,
        .appearance = m_desktop.appearance,
        .desktopPicture = m_desktop.picture,
        .trays = {},
        .programs = m_desktop.programs,
        .loginItem = m_desktop.loginItem,
        .announcer = m_live.announcer,
        .sources = m_sources.sources(),
        .devices = {&m_live.devices},
        .http = m_live.http,
        .location = m_live.location,
        .players = m_live.players,
        .calendars = m_live.calendars,
        .door = m_live.door,
        .desktopNames = {},
    };
}

} // namespace ambrelle
