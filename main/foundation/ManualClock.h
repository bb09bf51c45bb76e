// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "foundation/MinuteBeat.h"
#include "foundation/TimerQueue.h"

namespace ambrelle {

/// A clock that stands still until it is moved: for tests, and for pictures that must not depend on the hour they are
/// drawn at. Repeating work runs at exact multiples of its period after it was asked for.
class ManualClock : public Clock {
public:
    /// Monday, 2 June 2025, 10:00 UTC.
    ManualClock();
    explicit ManualClock(QDateTime now);

    QDateTime now() const override { return m_now; }
    double elapsed() const override;
    [[nodiscard]] Ticket every(std::chrono::milliseconds period, Work work) override;
    [[nodiscard]] Ticket after(std::chrono::milliseconds delay, Work work) override;
    [[nodiscard]] Ticket everyMinute(Work work) override;
    [[nodiscard]] Ticket everyJump(Work work) override;

    /// Lets time pass and does what becomes due in order, each at its moment.
    void advance(std::chrono::milliseconds time);
    /// Sets the wall clock, as a user does, or a machine that slept until then: `elapsed` stays, and those who wait for
    /// minutes or jumps are called.
    void setNow(const QDateTime& now);

private:
    void moveTo(TimerQueue::Moment moment);

    QDateTime m_now;
    TimerQueue::Moment m_elapsed{0};
    TimerQueue m_queue;
    MinuteBeat m_minutes{*this};
};

} // namespace ambrelle
