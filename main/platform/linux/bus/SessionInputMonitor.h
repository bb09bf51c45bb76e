// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"
#include "platform/linux/bus/OpenBus.h"

namespace ambrelle {

/// The idle time that the desktop's own services tell on the session bus: for sessions in which no program may see the
/// input of another. Clicks and travel stay unknown.
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
    void ask(std::size_t service, QObject* context, const Answer& answer);

    OpenBus m_openBus;
    bool m_started = false;
    bool m_answered = true; ///< until nobody does
};

} // namespace ambrelle
