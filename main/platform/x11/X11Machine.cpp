// SPDX-License-Identifier: MIT

#include "platform/x11/X11Machine.h"

#include "platform/x11/PrivateDisplay.h"
#include "platform/x11/root/RootPixmapPicture.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// Behind XWayland the X server hears only what goes to X windows, and has a root window that nobody sees.
bool isBehindWayland()
{
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

std::unique_ptr<DesktopPicture> rootPicture()
{
    return isBehindWayland() ? nullptr : std::make_unique<RootPixmapPicture>();
}

bool displayAnswers()
{
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

QString whyNoDisplay()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return u"Ambrelle needs an X11 display (or XWayland), and the variable DISPLAY names none."_s;
    if (!displayAnswers())
        return u"Ambrelle cannot reach the display “%1”."_s.arg(qEnvironmentVariable("DISPLAY"));
    return {};
}

std::unique_ptr<Machine> makeX11Machine(const Machine::Wishes& wishes)
{
    auto machine = std::make_unique<X11Machine>(wishes);
    return machine->windows().isAvailable() ? std::move(machine) : nullptr;
}

} // namespace

X11Machine::X11Machine(const Wishes& wishes)
    : m_system(wishes, rootPicture)
    , m_visibility({&m_system.visibility, &m_windows.sessionVisibility()})
    , m_input(isBehindWayland() ? nullptr : std::make_unique<X11InputMonitor>())
{
}

Machine::Ports X11Machine::ports()
{
    return m_system.ports({
        .windows = m_windows,
        .otherWindows = m_windows.windowList(),
        .visibility = m_visibility,
        .input = m_input ? static_cast<InputMonitor&>(*m_input) : m_system.input,
        .trays = {&m_system.tray, &m_tray},
    });
}

HostOffer X11Machine::offer()
{
    return {.plugins = {"xcb", "wayland"},
        .whyNot = whyNoDisplay,
        .make = makeX11Machine,
        .startDisplay = PrivateDisplay::start,
        .isThere = [] { return !qEnvironmentVariableIsEmpty("DISPLAY"); }};
}

} // namespace ambrelle
