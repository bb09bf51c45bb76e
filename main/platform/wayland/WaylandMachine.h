// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HostOffer.h"
#include "platform/linux/JointVisibility.h"
#include "platform/linux/LinuxSystem.h"
#include "platform/linux/sway/SwayOutputs.h"
#include "platform/linux/sway/SwayWindowList.h"
#include "platform/wayland/IdleWatch.h"
#include "platform/wayland/OutputPower.h"
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
    void learnOrder(const QByteArray& version);
    std::optional<ScreenFacts> factsOf(const QString& connector);
    void givePrograms(const std::function<void(const QProcessEnvironment&)>& start);

    LinuxSystem m_system;
    SwayOutputs m_outputs;
    bool m_hasWaited = false; ///< for its first answer
    WaylandWindowHost m_windows;
    SwaySocket m_sway; ///< asked once what it is
    SwayWindowList m_otherWindows;
    IdleWatch m_idle;
    OutputPower m_power;
    JointVisibility m_visibility;
};

} // namespace ambrelle
