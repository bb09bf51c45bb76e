// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

namespace ambrelle {

/// Gives away what only an open window needs, a while after it was closed.
class IdleRelease {
public:
    static constexpr std::chrono::seconds patience{60};

    IdleRelease(Clock& clock, Clock::Work release)
        : m_clock(clock)
        , m_release(std::move(release))
    {
    }

    void setShown(bool shown)
    {
        if (shown)
            m_pending.reset();
        else if (!m_pending)
            m_pending = m_clock.after(patience, [this] {
                m_pending.reset();
                m_release();
            });
    }

private:
    Clock& m_clock;
    Clock::Work m_release;
    Ticket m_pending;
};

} // namespace ambrelle
