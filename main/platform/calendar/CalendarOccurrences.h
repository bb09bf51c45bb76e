// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarItem.h"

namespace ambrelle {

/// One time that an event takes place.
struct EventOccurrence {
    const CalendarItem* item = nullptr; ///< the series' own, or the change of this occurrence
    std::chrono::sys_seconds start;
    std::chrono::sys_seconds end;
};

/// A reminder waiting to be done.
struct OpenReminder {
    const CalendarItem* item = nullptr;
    std::optional<CalendarMoment> due;
    std::optional<std::chrono::local_seconds> occurrence; ///< its start, of a recurring one
};

/// What series of items come to in time. Moments without a zone count in `local`.
namespace CalendarOccurrences {

/// The occurrences that touch the time from `from` until before `to`; at most some thousands.
std::vector<EventOccurrence> events(const CalendarSeries& series, std::chrono::sys_seconds from,
    std::chrono::sys_seconds to, const CalendarZone& local, Effort& effort);

/// Of a recurring reminder its first open occurrence, else the reminder unless it is done.
std::vector<OpenReminder> reminders(const CalendarSeries& series, const CalendarZone& local, Effort& effort);

/// The start of the first occurrence from `from` on that is neither excepted nor done, in the wall time of the series.
std::optional<std::chrono::local_seconds> nextStart(
    const CalendarSeries& series, std::chrono::local_seconds from, const CalendarZone& local, Effort& effort);

/// The last moment that a rule of this item may give, in the item's wall time.
std::chrono::local_seconds lastOf(const RecurrenceRule& rule, const CalendarItem& item, const CalendarZone& local);

} // namespace CalendarOccurrences

} // namespace ambrelle
