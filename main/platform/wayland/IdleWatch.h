// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"
#include "platform/wayland/connection/WaylandConnection.h"

#include <ext-idle-notify-v1-client-protocol.h>
#include <kde-idle-client-protocol.h>

#include <QElapsedTimer>

#include <chrono>

namespace ambrelle {

/// The idle time that the compositor tells. It says no more than that there was no input for a while, and that there is
/// again; from that follows the time since the last input where it is longer than the while, and else that it is
/// shorter. Whoever keeps the screen on, as a player of films does, counts as input. Clicks and travel stay unknown: no
/// program may see the input of another.
class IdleWatch final : public InputMonitor {
    Q_OBJECT
public:
    using InputMonitor::metresPerPoint;

    /// None: there is no compositor to tell. It has to outlive this object. What is shorter than `shortest` counts as
    /// 0.
    explicit IdleWatch(const WaylandConnection* connection, std::chrono::milliseconds shortest = usualShortest);

    bool isAvailable() const override;
    QString whyNot() const override;
    bool tellsPointer() const override { return false; }
    void start() override;
    void stop() override;
    /// At once. Nothing before the first `shortest` has passed, unless input was heard of.
    void secondsSinceInput(QObject* context, Answer answer) override;
    double metresPerPoint() const override { return usualMetresPerPoint; }

    /// Much less than what counts as a pause, and long enough to hear of few pauses.
    static constexpr std::chrono::milliseconds usualShortest{10'000};

Q_SIGNALS:
    void idleChanged(bool idle); ///< for `shortest` or longer; false before start() and after stop()

private:
    bool isStarted() const { return m_notification || m_olderNotification; }
    void setIdle(bool idle);
    std::optional<double> seconds() const;

    std::chrono::milliseconds m_shortest;
    Handle<wl_seat> m_seat;
    Handle<ext_idle_notifier_v1> m_notifier;
    Handle<org_kde_kwin_idle> m_olderNotifier; ///< only where that is not offered
    Handle<ext_idle_notification_v1> m_notification; ///< while started
    Handle<org_kde_kwin_idle_timeout> m_olderNotification; ///< likewise
    bool m_idle = false;
    bool m_wasTold = false; ///< of input or a pause, since it was started
    QElapsedTimer m_since; ///< m_idle is as it is, or it was started
};

} // namespace ambrelle
