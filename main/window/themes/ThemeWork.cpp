// SPDX-License-Identifier: MIT

#include "window/themes/ThemeWork.h"

#include "foundation/Clock.h"

#include <utility>

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds unnoticed{150};
constexpr double leastShown = 0.3; // seconds

} // namespace

ThemeWork::ThemeWork(Clock& clock)
    : m_clock(clock)
{
}

void ThemeWork::begin(const Working& work)
{
    m_next.reset();
    if (const auto then = std::exchange(m_then, nullptr))
        then();
    if (m_working)
        return show(work);
    m_next = m_clock.after(unnoticed, [this, work] {
        m_since = m_clock.elapsed();
        show(work);
    });
}

void ThemeWork::end(const std::function<void()>& then)
{
    m_next.reset();
    m_then = then;
    const auto finish = [this] {
        const auto ended = std::exchange(m_then, nullptr);
        show({});
        if (ended)
            ended();
    };
    const double rest = leastShown - (m_clock.elapsed() - m_since);
    if (m_working && rest > 0)
        m_next = m_clock.after(std::chrono::milliseconds(qRound(rest * 1000)), finish);
    else
        finish();
}

void ThemeWork::show(const std::optional<Working>& working)
{
    if (std::exchange(m_working, working) != working)
        Q_EMIT changed();
}

} // namespace ambrelle
