// SPDX-License-Identifier: MIT

#include "desktop/Locating.h"

namespace ambrelle {

Locating::Locating(Clock& clock, std::function<void()> changed)
    : m_clock(clock)
    , m_changed(std::move(changed))
{
}

void Locating::start(bool steady)
{
    m_steady = steady;
    enter(0);
}

void Locating::stop()
{
    m_next.reset();
    m_phase = phases;
}

void Locating::enter(int phase)
{
    m_phase = phase;
    m_next = isActive() ? m_clock.after(duration / phases, [this] { enter(m_phase + 1); }) : Ticket();
    m_changed();
}

} // namespace ambrelle
