// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace ambrelle {

/// Work due at moments of one time line, which the owner moves: the part that every clock shares. Work may cancel its
/// own ticket or another's, add work, or destroy the queue; a ticket may outlive the queue.
class TimerQueue {
public:
    using Work = std::function<void()>;
    using Moment = std::chrono::milliseconds;

    /// `changed` runs after work was added, cancelled or done, so that the owner can look at `nextWake` again.
    explicit TimerQueue(std::function<void()> changed = {});
    ~TimerQueue();
    TimerQueue(const TimerQueue&) = delete;
    TimerQueue& operator=(const TimerQueue&) = delete;

    [[nodiscard]] Ticket once(Moment due, Work work);
    enum class Phase {
        own, ///< stays where the first run was
        shared, ///< drifts to multiples of the period, by at most a twentieth of one per run
    };
    /// First at `due`, then every `period`; a time that was missed is left out, not made up for.
    [[nodiscard]] Ticket repeat(Moment due, Moment period, Work work, Phase phase = Phase::own);

    bool isEmpty() const;
    std::optional<Moment> nextDue() const;
    /// The moment to wake up at so that no repeating work is more than a tenth of its period late, none of the other is
    /// late, and as much as possible is done in one go.
    std::optional<Moment> nextWake() const;
    /// Does what is due at `now` in the order of the due moments.
    void run(Moment now);

private:
    struct Job;
    struct State;

    Ticket add(Moment due, Moment period, Work work, Phase phase);

    std::shared_ptr<State> m_state;
};

} // namespace ambrelle
