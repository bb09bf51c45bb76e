// SPDX-License-Identifier: MIT

#pragma once

#include "platform/headless/HeadlessDesktop.h"
#include "platform/HostOffer.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/wayland/WaylandWindowHost.h"

namespace ambrelle {

/// Linux with a Wayland compositor that has a layer shell. Make it after the application object, which must run on the
/// "wayland" platform plugin.
class WaylandMachine final : public Machine {
public:
    explicit WaylandMachine(const Wishes& wishes);

    /// Only while windows().isAvailable().
    Ports ports() override;
    const WindowHost& windows() const { return m_windows; }

    static HostOffer offer();

private:
    void givePrograms(const std::function<void(const QProcessEnvironment&)>& start);

    LinuxSystem m_system;
    WaylandWindowHost m_windows;
    HeadlessDesktop m_unknown;
};

} // namespace ambrelle
