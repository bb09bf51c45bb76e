// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "foundation/TimerQueue.h"

namespace ambrelle {

/// Calls its listeners at the start of every minute of a clock, with one timer for all that runs while there are any,
/// and others only when the clock jumped.
class MinuteBeat {
public:
    /// `listening` hears whether there are listeners of either kind, whenever that changes.
    explicit MinuteBeat(Clock& clock, std::function<void(bool)> listening = {});

    [[nodiscard]] Ticket add(Clock::Work work);
    [[nodiscard]] Ticket addForJumps(Clock::Work work);
    /// The wall clock jumped: calls everyone at once and looks for the next minute afresh.
    void clockChanged();

private:
    void listenersChanged();
    void arm();
    void strike();
    void callAll(TimerQueue& listeners);

    Clock& m_clock;
    std::function<void(bool)> m_listening;
    bool m_isListening = false;
    bool m_isBeating = false;
    Ticket m_timer;
    qint64 m_nextMinute = 0; // milliseconds since 1970
    TimerQueue m_listeners; // its time line counts beats, as the next
    TimerQueue m_jumpListeners;
    TimerQueue::Moment m_beat{0};
};

} // namespace ambrelle
