// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <chrono>
#include <optional>

namespace ambrelle {

/// How often windows may be put in order again. Another program may insist on being on top as well: then it wins for a
/// while rather than both fighting for ever, and for twice as long each time that it has not given up.
class RestackBudget {
public:
    using Time = std::chrono::milliseconds; ///< on any clock that never jumps

    static constexpr int most = 8; ///< within one period
    static constexpr Time shortest{10000};
    static constexpr Time longest{320000};

    /// Whether the windows may be put in order now.
    bool spend(Time now)
    {
        if (!m_began || now >= *m_began + m_period) {
            m_period = m_spent > most ? std::min(2 * m_period, longest) : shortest;
            m_began = now;
            m_spent = 0;
        }
        return ++m_spent <= most;
    }
    /// Until it is worth to ask again.
    Time rest(Time now) const { return m_began ? std::max(Time(0), *m_began + m_period - now) : Time(0); }

private:
    std::optional<Time> m_began;
    Time m_period = shortest;
    int m_spent = 0;
};

} // namespace ambrelle
