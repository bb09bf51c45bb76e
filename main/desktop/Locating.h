// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

#include <functional>

namespace ambrelle {

/// The moment in which a widget is pointed out, with a mark that blinks twice.
class Locating {
public:
    static constexpr std::chrono::milliseconds duration{1600};

    /// `changed` is called whenever isActive() or isLit() is to be looked at again.
    Locating(Clock& clock, std::function<void()> changed);

    void start(bool steady); ///< from the beginning, also in the middle of it; `steady` does not blink
    void stop(); ///< nothing is called any more
    bool isActive() const { return m_phase < phases; }
    bool isLit() const { return isActive() && (m_steady || m_phase % 2 == 0); }

private:
    static constexpr int phases = 4; // lit, dark, lit, dark

    void enter(int phase);

    Clock& m_clock;
    std::function<void()> m_changed;
    bool m_steady = false;
    int m_phase = phases;
    Ticket m_next;
};

} // namespace ambrelle
