// SPDX-License-Identifier: MIT

#include "foundation/TimerQueue.h"

#include <algorithm>
#include <vector>

namespace ambrelle {

struct TimerQueue::Job {
    Moment due;
    Moment period; // zero: once
    Work work;
    Phase phase;
    bool cancelled = false;

    Moment latest() const { return due + period / 10; }
    /// To the first run after `now`.
    void moveOn(Moment now)
    {
        due += period * ((now - due) / period + 1);
        const Moment past = due % period;
        if (phase == Phase::shared && past > Moment::zero())
            due += std::min(period - past, std::max(period / 20, Moment(1)));
    }
};

struct TimerQueue::State {
    std::vector<std::shared_ptr<Job>> jobs; // in the order they were added
    std::function<void()> changed;

    void notify() const
    {
        if (changed)
            changed();
    }
    void cancel(const std::shared_ptr<Job>& job)
    {
        job->cancelled = true;
        if (std::erase(jobs, job) > 0)
            notify();
    }
};

TimerQueue::TimerQueue(std::function<void()> changed)
    : m_state(std::make_shared<State>())
{
    m_state->changed = std::move(changed);
}

TimerQueue::~TimerQueue()
{
    m_state->changed = nullptr;
}

Ticket TimerQueue::once(Moment due, Work work)
{
    return add(due, Moment::zero(), std::move(work), Phase::own);
}

Ticket TimerQueue::repeat(Moment due, Moment period, Work work, Phase phase)
{
    return add(due, std::max(period, Moment(1)), std::move(work), phase);
}

Ticket TimerQueue::add(Moment due, Moment period, Work work, Phase phase)
{
    auto job = std::make_shared<Job>(Job{due, period, std::move(work), phase});
    m_state->jobs.push_back(job);
    m_state->notify();
    return Ticket([weakState = std::weak_ptr(m_state), weakJob = std::weak_ptr(job)] {
        const auto state = weakState.lock();
        const auto cancelled = weakJob.lock();
        if (state && cancelled)
            state->cancel(cancelled);
    });
}

bool TimerQueue::isEmpty() const
{
    return m_state->jobs.empty();
}

std::optional<TimerQueue::Moment> TimerQueue::nextDue() const
{
    const auto& jobs = m_state->jobs;
    if (jobs.empty())
        return std::nullopt;
    return (*std::ranges::min_element(jobs, {}, [](const auto& job) { return job->due; }))->due;
}

std::optional<TimerQueue::Moment> TimerQueue::nextWake() const
{
    const auto& jobs = m_state->jobs;
    std::optional<Moment> wake = nextDue();
    if (!wake)
        return std::nullopt;
    const auto strictest = std::ranges::min_element(jobs, {}, [](const auto& job) { return job->latest(); });
    const Moment latest = (*strictest)->latest();
    for (const auto& job : jobs) {
        if (job->due <= latest)
            wake = std::max(*wake, job->due);
    }
    return wake;
}

void TimerQueue::run(Moment now)
{
    // The queue may be gone after any piece of work.
    const std::weak_ptr<State> alive = m_state;
    auto& jobs = m_state->jobs;
    std::vector<std::shared_ptr<Job>> due;
    std::ranges::copy_if(jobs, std::back_inserter(due), [now](const auto& job) { return job->due <= now; });
    std::ranges::stable_sort(due, {}, [](const auto& job) { return job->due; });
    std::erase_if(jobs, [now](const auto& job) { return job->due <= now && job->period == Moment::zero(); });
    for (const auto& job : due) {
        if (job->period > Moment::zero())
            job->moveOn(now);
    }
    // Before the work, so that a nested event loop inside it still has its timers.
    m_state->notify();
    for (const auto& job : due) {
        if (alive.expired())
            return;
        if (!job->cancelled)
            job->work();
    }
}

} // namespace ambrelle
