// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/Wording.h"
#include "model/WidgetKind.h"
#include "services/ActivityTracker.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

int wholeMinutes(double seconds)
{
    return static_cast<int>(seconds / 60);
}

QString distance(double metres, const QLocale& locale)
{
    constexpr double kilometre = 1000;
    const double whole = std::round(metres);
    if (whole < kilometre)
        return Wording::tr("%1 m").arg(locale.toString(whole, 'f', 0));
    return Wording::tr("%1 km").arg(locale.toString(metres / kilometre, 'f', 2));
}

QString clicks(int count, const QLocale& locale)
{
    return Wording::tr("%1 clicks", nullptr, count).arg(locale.toString(count));
}

} // namespace

ActivityReading activityReading(const ActivityTracker& tracker, const QDateTime& now, const QLocale& locale)
{
    if (!tracker.isAvailable())
        return {.notice = {symbol(WidgetKind::activity), tracker.whyNot()}};
    ActivityReading reading{.hour = now.time().hour(), .active = Units::inWords(wholeMinutes(tracker.activeSeconds()))};
    for (const double seconds : tracker.hours())
        reading.hours.append(std::min(1.0, wholeMinutes(seconds) / 60.0));
    if (tracker.tellsPointer()) {
        reading.metres = distance(tracker.metres(), locale);
        reading.clicks = clicks(tracker.clicks(), locale);
    } else {
        reading.hint = Wording::tr("Active time only");
    }
    return reading;
}

} // namespace ambrelle
