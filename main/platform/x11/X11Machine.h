// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HostOffer.h"
#include "platform/linux/JointVisibility.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/x11/session/X11InputMonitor.h"
#include "platform/x11/session/XEmbedTray.h"
#include "platform/x11/X11WindowHost.h"

namespace ambrelle {

/// Linux with an X server. Make it after the application object, which must run on the "xcb" platform plugin.
class X11Machine final : public Machine {
public:
    explicit X11Machine(const Wishes& wishes);

    /// Only while windows().isAvailable().
    Ports ports() override;
    const WindowHost& windows() const { return m_windows; }

    /// It takes Wayland sessions too, through their X server, where no host for their compositor comes before.
    static HostOffer offer();

private:
    LinuxSystem m_system;
    X11WindowHost m_windows;
    JointVisibility m_visibility;
    std::unique_ptr<X11InputMonitor> m_input; ///< null where it would hear of our own windows only
    XEmbedTray m_tray;
};

} // namespace ambrelle
