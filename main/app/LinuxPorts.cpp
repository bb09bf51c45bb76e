#include "app/LinuxPorts.h"

#include "platform/linux/bus/SessionInputMonitor.h"
#include "platform/x11/session/X11InputMonitor.h"

namespace ambrelle {

namespace {

std::unique_ptr<InputMonitor> makeInput(bool isX11)
{
    // Behind XWayland the X server hears only what goes to X windows.
    if (isX11 && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return std::make_unique<X11InputMonitor>();
    return std::make_unique<SessionInputMonitor>();
}

} // namespace

LinuxPorts::LinuxPorts(Clock& clock, const QStringList& calendarFolders, bool isX11)
    : m_calendars(clock, FolderCalendarStore::standardFolders() + calendarFolders)
    , m_input(makeInput(isX11))
{
}

LiveServices::Ports LinuxPorts::ports()
{
    return {.http = m_http,
        .location = m_location,
        .players = m_players,
        .calendars = m_calendars,
        .announcer = m_announcer,
        .devices = {&m_bluetooth, &m_power},
        .input = *m_input};
}

} // namespace ambrelle
