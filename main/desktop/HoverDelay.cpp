// SPDX-License-Identifier: MIT

#include "desktop/HoverDelay.h"

namespace ambrelle {

HoverDelay::HoverDelay(Clock& clock, std::function<void(bool)> changed)
    : m_clock(clock)
    , m_changed(std::move(changed))
{
}

void HoverDelay::enter()
{
    m_pending.reset();
    set(true);
}

void HoverDelay::leave()
{
    if (m_hovering)
        m_pending = m_clock.after(leaveDelay, [this] { set(false); });
}

void HoverDelay::set(bool hovering)
{
    if (hovering == m_hovering)
        return;
    m_hovering = hovering;
    m_changed(hovering);
}

} // namespace ambrelle
