// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarOccurrences.h"
#include "platform/calendar/IcsParser.h"
#include "support/TestData.h"

#include <QDateTime>
#include <QStringList>
#include <QTimeZone>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

inline QDateTime dayIn(const char* zone, const char* date)
{
    return QDate::fromString(QLatin1StringView(date), Qt::ISODate).startOfDay(QTimeZone(zone));
}

/// A calendar with one component of these lines.
inline QByteArray calendarWith(const char* component, const QByteArray& lines)
{
    const QByteArray name(component);
    return "BEGIN:VCALENDAR\r\nBEGIN:" + name + "\r\nUID:one\r\nSUMMARY:One\r\n" + lines + "END:" + name
        + "\r\nEND:VCALENDAR\r\n";
}

inline std::chrono::sys_seconds instantOf(const QDateTime& moment)
{
    return std::chrono::sys_seconds(std::chrono::seconds(moment.toSecsSinceEpoch()));
}

inline QDateTime momentOf(std::chrono::sys_seconds instant)
{
    return QDateTime::fromSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC);
}

/// "03-28 08:00 to 03-28 08:15 Stand-up" in UTC, by start, and the days of an all-day event in the local zone.
inline QStringList eventRows(
    const QByteArray& text, const QDateTime& from, const QDateTime& to, const QList<QByteArray>& owners = {})
{
    const CalendarZone local(from.timeZone());
    const IcsFile file = IcsParser::parsed(view(text), owners);
    QStringList rows;
    Effort effort;
    for (const auto& series : file.series) {
        if (series.isReminder())
            continue;
        for (const auto& event : CalendarOccurrences::events(series, instantOf(from), instantOf(to), local, effort)) {
            const bool isDay = event.item->start->isDay;
            const auto format = [&](std::chrono::sys_seconds instant) {
                return isDay ? momentOf(instant).toTimeZone(from.timeZone()).toString(u"MM-dd"_s)
                             : momentOf(instant).toString(u"MM-dd HH:mm"_s);
            };
            rows.append(format(event.start) + u" to "_s + format(event.end) + u' ' + event.item->title);
        }
    }
    rows.sort();
    return rows;
}

} // namespace ambrelle
