// SPDX-License-Identifier: MIT

#include "desktop/WindowFade.h"

#include <algorithm>

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds frame{16};
constexpr double arrived = 0.999; // of the way: the last frame may come a rounding error early

double easedFade(double part)
{
    return part * part * (3 - 2 * part);
}

} // namespace

WindowFade::WindowFade(Clock& clock, std::function<void(double)> show)
    : m_clock(clock)
    , m_show(std::move(show))
{
}

void WindowFade::to(double opacity)
{
    if (opacity == m_target)
        return;
    m_from = m_shown;
    m_target = opacity;
    m_began = m_clock.elapsed();
    m_next = m_clock.after(frame, [this] { step(); });
}

void WindowFade::stop()
{
    m_next.reset();
}

void WindowFade::step()
{
    const double part = (m_clock.elapsed() - m_began) / std::chrono::duration<double>(duration).count();
    if (part < arrived) {
        m_shown = m_from + (m_target - m_from) * easedFade(part);
        m_next = m_clock.after(frame, [this] { step(); });
    } else {
        m_shown = m_target;
        m_next.reset();
    }
    m_show(m_shown);
}

} // namespace ambrelle
