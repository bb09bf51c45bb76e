// SPDX-License-Identifier: MIT

#include "services/Automation.h"

#include "foundation/Clock.h"
#include "model/AppSettings.h"
#include "services/SystemMonitor.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace ambrelle {

namespace {

constexpr std::chrono::seconds automationPeriod{30};

} // namespace

Automation::Automation(const AppSettings& settings, SystemMonitor& monitor, Clock& clock, std::function<void()> shuffle)
    : m_settings(settings)
    , m_monitor(monitor)
    , m_clock(clock)
    , m_shuffle(std::move(shuffle))
    , m_lastShuffle(clock.now())
    , m_lastCounterReset(m_lastShuffle)
{
    connect(&settings, &AppSettings::changed, this, &Automation::follow);
}

void Automation::start()
{
    m_isStarted = true;
    m_timer.reset();
    follow();
}

void Automation::follow()
{
    const bool isWanted = m_settings.wallpaperShuffleMinutes() >= 1 || m_settings.downloadResetMinutes() >= 1;
    if (!m_isStarted || !isWanted) {
        m_timer.reset();
        m_jumps.reset();
    } else if (!m_timer) {
        m_timer = m_clock.every(automationPeriod, [this] { tick(); });
        m_jumps = m_clock.everyJump([this] { tick(); });
    }
}

void Automation::tick()
{
    if (isDue(m_lastShuffle, m_settings.wallpaperShuffleMinutes()))
        m_shuffle();
    if (isDue(m_lastCounterReset, m_settings.downloadResetMinutes()))
        m_monitor.resetSessionTotals();
}

/// And if so, the period begins anew.
bool Automation::isDue(QDateTime& last, int minutes) const
{
    const QDateTime now = m_clock.now();
    last = std::min(last, now); // the clock was set back
    if (minutes < 1 || last.secsTo(now) < minutes * std::int64_t(60))
        return false;
    last = now;
    return true;
}

} // namespace ambrelle
