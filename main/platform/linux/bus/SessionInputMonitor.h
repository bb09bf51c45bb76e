// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"
#include "platform/linux/bus/OpenBus.h"

namespace ambrelle {

/// The idle time that the window manager tells on the session bus, where it is Mutter: for sessions in which no program
/// may see the input of another. Clicks and travel stay unknown. Screen savers are not asked: those of such sessions
/// answer to the question how long the session was idle, and what they answer does not follow the input.
class SessionInputMonitor final : public InputMonitor {
public:
    using InputMonitor::metresPerPoint;

    explicit SessionInputMonitor(OpenBus openBus = &QDBusConnection::sessionBus);

    bool isAvailable() const override { return m_answered; }
    QString whyNot() const override;
    bool tellsPointer() const override { return false; }
    void start() override { m_started = true; }
    void stop() override { m_started = false; }
    void secondsSinceInput(QObject* context, Answer answer) override;
    double metresPerPoint() const override { return usualMetresPerPoint; }

private:
    OpenBus m_openBus;
    bool m_started = false;
    bool m_answered = true; ///< until nobody does
};

} // namespace ambrelle
