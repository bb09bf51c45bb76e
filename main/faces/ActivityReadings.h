#pragma once

#include "faces/Readings.h"

#include <QDateTime>
#include <QLocale>

namespace ambrelle {

class ActivityTracker;

/// Today's activity. Time counts in whole minutes, so that a reading lasts for one at least.
ActivityReading activityReading(const ActivityTracker& tracker, const QDateTime& now, const QLocale& locale);

} // namespace ambrelle
