// SPDX-License-Identifier: MIT

#include "services/FocusTimer.h"

#include "foundation/UserDefaults.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "platform/Announcer.h"
#include "services/DayKey.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const auto completedKey = u"focus.completed"_s;
constexpr double noticeableJump = 1; // seconds; less is the clock being kept right

double secondsBetween(const QDateTime& from, const QDateTime& to)
{
    return static_cast<double>(from.msecsTo(to)) / 1000;
}

QDateTime later(const QDateTime& moment, double seconds)
{
    return moment.addMSecs(std::llround(seconds * 1000));
}

} // namespace

FocusTimer::FocusTimer(Announcer& announcer, AppSettings& settings, UserDefaults& defaults, Clock& clock)
    : m_announcer(announcer)
    , m_settings(settings)
    , m_defaults(defaults)
    , m_clock(clock)
{
    m_now.remaining = duration(m_now.phase);
    m_now.completedToday = storedCount(dayKey(m_clock.now().date()));
    m_published = m_now;
    connect(&settings, &AppSettings::changed, this, [this](const QString& key) {
        const QString lengths[] = {
            m_settings.focusMinutes.key(), m_settings.breakMinutes.key(), m_settings.longBreakMinutes.key()};
        if (std::ranges::find(lengths, key) != std::end(lengths))
            durationsChanged();
    });
}

void FocusTimer::toggle()
{
    if (isRunning())
        pause();
    else
        start();
}

void FocusTimer::start()
{
    if (isRunning())
        return;
    run();
    publish();
}

void FocusTimer::pause()
{
    if (!isRunning())
        return;
    followClock();
    m_now.remaining = remaining(m_clock.now());
    halt();
    publish();
}

void FocusTimer::reset()
{
    halt();
    m_now.phase = Phase::focus;
    m_now.remaining = duration(Phase::focus);
    publish();
}

void FocusTimer::skip()
{
    halt();
    advance(false);
    publish();
}

void FocusTimer::durationsChanged()
{
    if (!isRunning())
        m_now.remaining = duration(m_now.phase);
    publish();
}

void FocusTimer::loadPreviewData()
{
    constexpr double left = 1000; // seconds
    halt();
    m_now = {Phase::focus, std::nullopt, left, 2};
    setEnd();
    publish();
}

double FocusTimer::remaining(const QDateTime& at) const
{
    return m_now.endDate ? std::max(secondsBetween(at, *m_now.endDate), 0.0) : m_now.remaining;
}

double FocusTimer::progress(const QDateTime& at) const
{
    const double whole = duration(m_now.phase);
    return whole > 0 ? std::clamp(1 - remaining(at) / whole, 0.0, 1.0) : 0;
}

double FocusTimer::duration(Phase phase) const
{
    switch (phase) {
    case Phase::focus: return m_settings.focusMinutes() * 60.0;
    case Phase::shortBreak: return m_settings.breakMinutes() * 60.0;
    case Phase::longBreak: break;
    }
    return m_settings.longBreakMinutes() * 60.0;
}

void FocusTimer::run()
{
    if (m_now.remaining <= 0)
        m_now.remaining = duration(m_now.phase);
    setEnd();
    m_ticker = m_clock.every(1s, [this] { tick(); });
}

void FocusTimer::setEnd()
{
    m_seenTime = m_clock.now();
    m_seenElapsed = m_clock.elapsed();
    m_now.endDate = later(m_seenTime, m_now.remaining);
}

void FocusTimer::halt()
{
    m_ticker.reset();
    m_now.endDate.reset();
}

void FocusTimer::tick()
{
    followClock();
    if (m_clock.now() < *m_now.endDate) {
        Q_EMIT changed(); // the time that is left
        return;
    }
    halt();
    const Phase finished = m_now.phase;
    advance(true);
    announce(finished);
    if (m_now.phase != Phase::focus)
        run();
    publish();
}

/// A wall clock that was set back must not make the period longer. One that ran ahead slept with the machine, or was
/// set: that time counts as passed.
void FocusTimer::followClock()
{
    const QDateTime time = m_clock.now();
    const double elapsed = m_clock.elapsed();
    const double setBack = elapsed - m_seenElapsed - secondsBetween(m_seenTime, time);
    if (setBack > noticeableJump)
        m_now.endDate = later(*m_now.endDate, -setBack);
    m_seenTime = time;
    m_seenElapsed = elapsed;
}

void FocusTimer::advance(bool finished)
{
    Phase next = Phase::focus;
    if (m_now.phase == Phase::focus) {
        if (finished)
            recordCompletion();
        const bool roundIsOver = finished && m_now.completedToday % sessionsPerRound == 0;
        next = roundIsOver ? Phase::longBreak : Phase::shortBreak;
    }
    m_now.phase = next;
    m_now.remaining = duration(next);
}

void FocusTimer::recordCompletion()
{
    const QString day = dayKey(m_clock.now().date());
    m_now.completedToday = storedCount(day) + 1;
    m_defaults.set(completedKey, QJsonObject{{day, m_now.completedToday}});
}

void FocusTimer::announce(Phase finished)
{
    const bool worked = finished == Phase::focus;
    if (m_settings.focusSound())
        m_announcer.play(worked ? AnnouncedSound::glass : AnnouncedSound::hero);
    if (worked) {
        const auto minutes = static_cast<int>(duration(m_now.phase) / 60);
        m_announcer.notify(
            Wording::tr("Focus session done"), Wording::tr("Nice work. Take %n minutes.", nullptr, minutes));
    } else {
        m_announcer.notify(
            Wording::tr("Break's over"), Wording::tr("Ready for the next session? Click the Focus widget to start."));
    }
}

void FocusTimer::publish()
{
    if (m_now == m_published)
        return;
    m_published = m_now;
    Q_EMIT changed();
}

int FocusTimer::storedCount(const QString& day) const
{
    const QJsonObject counts = m_defaults.object(completedKey).value_or(QJsonObject());
    const int count = JsonForm<int>::read(counts.value(day)).value_or(0);
    return std::clamp(count, 0, std::numeric_limits<int>::max() - 1);
}

} // namespace ambrelle
