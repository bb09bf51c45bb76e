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

    /// Runs `work` every `period`, first after about one. On the machine's clock the runs stand at multiples of the
    /// period and may be a tenth of it late, so that the wake-ups of equal and agreeing periods coincide: the first
    /// comes after half a period to one and a half.
    [[nodiscard]] virtual Ticket every(std::chrono::milliseconds period, Work work) = 0;
    /// Runs `work` once after `delay`.
    [[nodiscard]] virtual Ticket after(std::chrono::milliseconds delay, Work work) = 0;
    /// Runs `work` at the start of every minute of the wall clock, and at once when that clock was set, the time zone
    /// changed or the machine woke up.
    [[nodiscard]] virtual Ticket everyMinute(Work work) = 0;
};

} // namespace ambrelle
