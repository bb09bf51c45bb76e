// SPDX-License-Identifier: MIT

#include "window/look/PeriodTitle.h"

#include "foundation/Wording.h"

namespace ambrelle {

namespace {

constexpr int minutesOfHour = 60;
constexpr int minutesOfDay = 24 * minutesOfHour;
constexpr int minutesOfWeek = 7 * minutesOfDay;

} // namespace

QString periodTitle(int minutes)
{
    if (minutes <= 0)
        return Wording::tr("Never");
    if (minutes == minutesOfWeek)
        return Wording::tr("Every week");
    if (minutes % minutesOfDay == 0)
        return Wording::tr("Every %n days", nullptr, minutes / minutesOfDay);
    if (minutes % minutesOfHour == 0)
        return Wording::tr("Every %n hours", nullptr, minutes / minutesOfHour);
    return Wording::tr("Every %n minutes", nullptr, minutes);
}

} // namespace ambrelle
