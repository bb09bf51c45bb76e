// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "services/FocusTimer.h"

#include <cmath>

namespace ambrelle {

namespace {

/// A dot for every finished session of the round; those of a whole round stay until the next session begins.
int litDots(const FocusTimer& timer, double remaining)
{
    const int inRound = timer.completedToday() % FocusTimer::sessionsPerRound;
    if (inRound != 0 || timer.completedToday() == 0)
        return inRound;
    const bool isWorking =
        timer.phase() == FocusPhase::focus && (timer.isRunning() || remaining < timer.duration(FocusPhase::focus));
    return isWorking ? 0 : FocusTimer::sessionsPerRound;
}

} // namespace

FocusReading focusReading(const FocusTimer& timer, const QDateTime& now)
{
    const double remaining = timer.remaining(now);
    FocusReading reading{.phase = title(timer.phase())};
    // Upwards, so that a period shows its whole length first and 0:00 only when it is over.
    reading.remaining = Units::clock(std::ceil(remaining));
    reading.progress = timer.progress(now);
    reading.running = timer.isRunning();
    reading.sessions = litDots(timer, remaining);
    return reading;
}

} // namespace ambrelle
