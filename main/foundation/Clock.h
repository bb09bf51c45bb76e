// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"

#include <QDateTime>

#include <chrono>
#include <functional>

namespace ambrelle {

/// The time, and the only source of delayed and periodic work. `SystemClock` is the real one; `ManualClock` is moved by
/// hand, so that no test ever sleeps.
class Clock {
public:
    using Work = std::function<void()>;

    virtual ~Clock() = default;

    /// The wall clock in the machine's time zone.
    virtual QDateTime now() const = 0;
    /// Seconds on a clock that never jumps; only differences mean something.
    virtual double elapsed() const = 0;

    /// Runs `work` every `period`, first after one. On the machine's clock runs may be a tenth of a period late, and
    /// drift to multiples of the period, so that after some runs the wake-ups of equal and agreeing periods coincide.
    [[nodiscard]] virtual Ticket every(std::chrono::milliseconds period, Work work) = 0;
    /// Runs `work` once after `delay`.
    [[nodiscard]] virtual Ticket after(std::chrono::milliseconds delay, Work work) = 0;
    /// Runs `work` at the start of every minute of the wall clock, and at once when that clock was set, the time zone
    /// changed or the machine woke up.
    [[nodiscard]] virtual Ticket everyMinute(Work work) = 0;
    /// Runs `work` whenever the wall clock was set, the time zone changed or the machine woke up.
    [[nodiscard]] virtual Ticket everyJump(Work work) = 0;
};

} // namespace ambrelle
