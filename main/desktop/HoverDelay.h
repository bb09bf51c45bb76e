// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

namespace ambrelle {

/// Whether the pointer is over a widget: true at once, false only when it stayed away for a while, so that a toolbar
/// does not flicker when the pointer crosses a gap.
class HoverDelay {
public:
    static constexpr std::chrono::milliseconds leaveDelay{250};

    HoverDelay(Clock& clock, std::function<void(bool hovering)> changed);

    void enter();
    void leave();
    bool isHovering() const { return m_hovering; }

private:
    void set(bool hovering);

    Clock& m_clock;
    std::function<void(bool)> m_changed;
    Ticket m_pending;
    bool m_hovering = false;
};

} // namespace ambrelle
