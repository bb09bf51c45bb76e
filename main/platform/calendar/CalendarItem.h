// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarZone.h"
#include "platform/calendar/RecurrenceRule.h"

#include <QColor>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace ambrelle {

/// A moment as a calendar file writes it.
struct CalendarMoment {
    std::chrono::local_seconds wallTime; ///< midnight of a day
    bool isDay = false; ///< without a time, so without a zone too
    std::shared_ptr<const CalendarZone> zone; ///< null: wherever the user is

    bool operator==(const CalendarMoment&) const = default;
    const CalendarZone& zoneOr(const CalendarZone& local) const { return zone && !isDay ? *zone : local; }
    std::chrono::sys_seconds instant(const CalendarZone& local) const { return zoneOr(local).instant(wallTime); }
    std::chrono::local_days day() const { return std::chrono::floor<std::chrono::days>(wallTime); }
};

/// How long something lasts: whole days of the calendar and, on top, time that passes.
struct CalendarLength {
    int days = 0;
    std::chrono::seconds time{};

    bool operator==(const CalendarLength&) const = default;
};

/// An event or reminder as it stands in a file, or one changed occurrence of it.
struct CalendarItem {
    bool isReminder = false;
    QByteArray uid;
    QString title;
    int sequence = 0;
    std::optional<std::chrono::local_seconds> modified; ///< in UTC
    bool isCancelled = false;
    bool isDeclined = false; ///< by the calendar's owner
    bool isCompleted = false;
    std::optional<CalendarMoment> start;
    std::optional<CalendarMoment> end; ///< DTEND or DUE
    std::optional<CalendarLength> length; ///< in place of an end
    std::optional<CalendarMoment> recurrenceId; ///< which occurrence this replaces
    bool appliesOn = false; ///< to the occurrences after that one, too
    std::vector<RecurrenceRule> rules;
    std::vector<CalendarMoment> additions; ///< RDATE
    std::vector<CalendarMoment> exceptions; ///< EXDATE

    bool operator==(const CalendarItem&) const = default;
    bool isRecurring() const { return !rules.empty() || !additions.empty(); }
};

/// An item and its changed occurrences, which share an identifier.
struct CalendarSeries {
    std::optional<CalendarItem> master;
    std::vector<CalendarItem> changes;

    bool isReminder() const { return master ? master->isReminder : changes.front().isReminder; }
    const QByteArray& uid() const { return master ? master->uid : changes.front().uid; }
};

} // namespace ambrelle
