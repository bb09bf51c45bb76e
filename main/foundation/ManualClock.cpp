// SPDX-License-Identifier: MIT

#include "foundation/ManualClock.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

ManualClock::ManualClock()
    : ManualClock(QDateTime(QDate(2025, 6, 2), QTime(10, 0), Qt::UTC))
{
}

ManualClock::ManualClock(QDateTime now)
    : m_now(std::move(now))
{
}

double ManualClock::elapsed() const
{
    return std::chrono::duration<double>(m_elapsed).count();
}

Ticket ManualClock::every(std::chrono::milliseconds period, Work work)
{
    return m_queue.repeat(m_elapsed + period, period, std::move(work));
}

Ticket ManualClock::after(std::chrono::milliseconds delay, Work work)
{
    return m_queue.once(m_elapsed + delay, std::move(work));
}

Ticket ManualClock::everyMinute(Work work)
{
    return m_minutes.add(std::move(work));
}

Ticket ManualClock::everyJump(Work work)
{
    return m_minutes.addForJumps(std::move(work));
}

void ManualClock::advance(std::chrono::milliseconds time)
{
    const TimerQueue::Moment target = m_elapsed + time;
    while (m_queue.nextDue().value_or(TimerQueue::Moment::max()) <= target) {
        moveTo(*m_queue.nextDue());
        m_queue.run(m_elapsed);
    }
    moveTo(target);
}

void ManualClock::moveTo(TimerQueue::Moment moment)
{
    if (moment <= m_elapsed)
        return;
    m_now = m_now.addMSecs((moment - m_elapsed).count());
    m_elapsed = moment;
}

void ManualClock::setNow(const QDateTime& now)
{
    m_now = now;
    m_minutes.clockChanged();
}

} // namespace ambrelle
