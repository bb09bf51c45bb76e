// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/SystemClock.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

using Moment = TimerQueue::Moment;

Moment monotonicNow()
{
    return std::chrono::duration_cast<Moment>(std::chrono::steady_clock::now().time_since_epoch());
}

// By which multiples of a period come before whole seconds of the wall clock, so that they wait for what is due then.
constexpr Moment early(3);

} // namespace

SystemClock::SystemClock()
    : m_origin(monotonicNow() - Moment(QDateTime::currentMSecsSinceEpoch()) - early)
    , m_queue([this] { arm(); })
    , m_minutes(*this, [this](bool listening) { m_watch.setActive(listening); })
    , m_watch([this] { m_minutes.clockChanged(); })
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer); // the queue has its own tolerance
    m_timer.callOnTimeout([this] { m_queue.run(queueNow()); });
}

TimerQueue::Moment SystemClock::queueNow() const
{
    return monotonicNow() - m_origin;
}

double SystemClock::elapsed() const
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

Ticket SystemClock::every(std::chrono::milliseconds period, Work work)
{
    const Moment atLeast = std::max(period, Moment(1));
    return m_queue.repeat(queueNow() + atLeast, atLeast, std::move(work), TimerQueue::Phase::shared);
}

Ticket SystemClock::after(std::chrono::milliseconds delay, Work work)
{
    return m_queue.once(queueNow() + delay, std::move(work));
}

Ticket SystemClock::everyMinute(Work work)
{
    return m_minutes.add(std::move(work));
}

Ticket SystemClock::everyJump(Work work)
{
    return m_minutes.addForJumps(std::move(work));
}

void SystemClock::arm()
{
    const std::optional<Moment> wake = m_queue.nextWake();
    if (!wake) {
        m_timer.stop();
        return;
    }
    // A timer counts at most this far; waking up for nothing once in a day does no harm.
    constexpr Moment farthest = std::chrono::hours(24);
    m_timer.start(std::clamp(*wake - queueNow(), Moment::zero(), farthest));
}

} // namespace ambrelle
