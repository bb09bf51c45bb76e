// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"

namespace ambrelle {

/// The opacity of a window on its way from one value to another. Nothing wakes up once it has arrived.
class WindowFade {
public:
    static constexpr std::chrono::milliseconds duration{250};

    WindowFade(Clock& clock, std::function<void(double opacity)> show);

    /// Starts from what is shown now. A fade that already goes there is left alone.
    void to(double opacity);
    void stop(); ///< where it is, for good

private:
    void step();

    Clock& m_clock;
    std::function<void(double)> m_show;
    double m_from = 1;
    double m_target = 1;
    double m_shown = 1;
    double m_began = 0; ///< on the clock that never jumps
    Ticket m_next;
};

} // namespace ambrelle
