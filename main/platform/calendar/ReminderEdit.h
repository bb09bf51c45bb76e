// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarZone.h"

#include <QByteArray>

#include <optional>

namespace ambrelle {

/// Which reminder of a file: the series, or the change of one occurrence.
struct ReminderKey {
    QByteArray uid;
    std::optional<std::chrono::local_seconds> recurrenceId; ///< of a change, in its own wall time

    bool operator==(const ReminderKey&) const = default;
};

/// The text of a calendar file with that reminder completed at `now`. A recurring one is moved to its next occurrence
/// that is not before the day of `now`, and completed after the last. Everything else stays as it is, byte by byte.
/// None when the reminder is not there or already done.
std::optional<QByteArray> textWithReminderCompleted(
    const QByteArray& text, const ReminderKey& key, std::chrono::sys_seconds now, const CalendarZone& local);

} // namespace ambrelle
