// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

#include <chrono>
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

namespace ambrelle {

/// Shows what is being done where that takes a moment: from 0.15 s on, then for 0.3 s at least. `Work` says what it is.
template <typename Work> class WorkNotice {
public:
    /// `changed` is called after `shown()` has changed.
    WorkNotice(Clock& clock, std::function<void()> changed)
        : m_clock(clock)
        , m_changed(std::move(changed))
    {
    }

    const std::optional<Work>& shown() const { return m_shown; }

    /// Takes the place of the work that is shown, at once; an end that waits is told before.
    void begin(const Work& work)
    {
        m_next.reset();
        if (const auto then = std::exchange(m_then, nullptr))
            then();
        if (m_shown)
            return show(work);
        m_next = m_clock.after(unnoticed, [this, work] { show(work); });
    }
    /// `then` is called once it is shown no longer.
    void end(std::function<void()> then = {})
    {
        m_next.reset();
        m_then = std::move(then);
        const double rest = m_shown ? m_since + leastShown - m_clock.elapsed() : 0; // seconds
        if (rest > 0)
            m_next = m_clock.after(std::chrono::milliseconds(std::lround(rest * 1000)), [this] { finish(); });
        else
            finish();
    }

private:
    static constexpr std::chrono::milliseconds unnoticed{150};
    static constexpr double leastShown = 0.3; // seconds

    void show(const std::optional<Work>& work)
    {
        m_since = m_clock.elapsed();
        if (std::exchange(m_shown, work) != work)
            m_changed();
    }
    void finish()
    {
        const auto ended = std::exchange(m_then, nullptr);
        show(std::nullopt);
        if (ended)
            ended();
    }

    Clock& m_clock;
    std::function<void()> m_changed;
    std::optional<Work> m_shown;
    double m_since = 0; // seconds
    std::function<void()> m_then; // of the end that waits
    Ticket m_next;
};

} // namespace ambrelle
