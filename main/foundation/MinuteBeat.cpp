// SPDX-License-Identifier: MIT

#include "foundation/MinuteBeat.h"

#include <utility>

namespace ambrelle {

namespace {

constexpr qint64 minute = 60'000;
constexpr TimerQueue::Moment oneBeat{1};

qint64 minuteAfter(qint64 moment)
{
    const qint64 past = ((moment % minute) + minute) % minute;
    return moment - past + minute;
}

} // namespace

MinuteBeat::MinuteBeat(Clock& clock, std::function<void(bool)> listening)
    : m_clock(clock)
    , m_listening(std::move(listening))
    , m_listeners([this] { listenersChanged(); })
    , m_jumpListeners([this] { listenersChanged(); })
{
}

Ticket MinuteBeat::add(Clock::Work work)
{
    return m_listeners.repeat(m_beat + oneBeat, oneBeat, std::move(work));
}

Ticket MinuteBeat::addForJumps(Clock::Work work)
{
    return m_jumpListeners.repeat(m_beat + oneBeat, oneBeat, std::move(work));
}

void MinuteBeat::clockChanged()
{
    if (m_isBeating) {
        arm();
        callAll(m_listeners);
    }
    callAll(m_jumpListeners);
}

void MinuteBeat::listenersChanged()
{
    if (m_isBeating == m_listeners.isEmpty()) {
        m_isBeating = !m_isBeating;
        if (m_isBeating)
            arm();
        else
            m_timer.reset();
    }
    const bool isListening = m_isBeating || !m_jumpListeners.isEmpty();
    if (std::exchange(m_isListening, isListening) != isListening && m_listening)
        m_listening(isListening);
}

void MinuteBeat::arm()
{
    const qint64 now = m_clock.now().toMSecsSinceEpoch();
    m_nextMinute = minuteAfter(now);
    m_timer = m_clock.after(std::chrono::milliseconds(m_nextMinute - now), [this] { strike(); });
}

void MinuteBeat::strike()
{
    // A wall clock that is being slowed down has not reached the minute when the timer has.
    const bool early = m_clock.now().toMSecsSinceEpoch() < m_nextMinute;
    arm();
    if (!early)
        callAll(m_listeners);
}

void MinuteBeat::callAll(TimerQueue& listeners)
{
    m_beat += oneBeat;
    listeners.run(m_beat);
}

} // namespace ambrelle
