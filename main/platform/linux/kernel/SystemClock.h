// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "foundation/MinuteBeat.h"
#include "foundation/TimerQueue.h"
#include "platform/linux/kernel/ClockWatch.h"

#include <QTimer>

namespace ambrelle {

/// The machine's clock. One timer serves all work, and none runs while nobody waits. It belongs to the thread that made
/// it and needs that thread's event loop.
class SystemClock : public Clock {
public:
    SystemClock();

    QDateTime now() const override { return QDateTime::currentDateTime(); }
    double elapsed() const override;
    [[nodiscard]] Ticket every(std::chrono::milliseconds period, Work work) override;
    [[nodiscard]] Ticket after(std::chrono::milliseconds delay, Work work) override;
    [[nodiscard]] Ticket everyMinute(Work work) override;
    [[nodiscard]] Ticket everyJump(Work work) override;

private:
    void arm();
    /// On the queue's time line: a clock that never jumps, set to the wall clock's time once, so that seconds that are
    /// shown and what is done every so many of them wake the machine up together.
    TimerQueue::Moment queueNow() const;

    const TimerQueue::Moment m_origin; ///< of that line
    QTimer m_timer;
    TimerQueue m_queue;
    MinuteBeat m_minutes;
    ClockWatch m_watch;
};

} // namespace ambrelle
