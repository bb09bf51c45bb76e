// SPDX-License-Identifier: MIT

#pragma once

#include "platform/CalendarStore.h"

#include <QStringList>

namespace ambrelle {

using namespace Qt::StringLiterals;

inline QByteArray event(const QByteArray& uid, const QByteArray& start = "20250602T120000Z")
{
    return "BEGIN:VEVENT\r\nUID:" + uid + "\r\nSUMMARY:" + uid + "\r\nDTSTART:" + start + "\r\nEND:VEVENT\r\n";
}

inline QByteArray reminder(const QByteArray& uid, const QByteArray& lines = {})
{
    return "BEGIN:VTODO\r\nUID:" + uid + "\r\nSUMMARY:" + uid + "\r\n" + lines + "END:VTODO\r\n";
}

inline QByteArray calendar(const QByteArray& content)
{
    return "BEGIN:VCALENDAR\r\n" + content + "END:VCALENDAR\r\n";
}

inline QStringList identifiersOf(const QList<CalendarInfo>& calendars)
{
    QStringList identifiers;
    for (const CalendarInfo& each : calendars)
        identifiers.append(each.identifier);
    return identifiers;
}

/// Sorted.
inline QStringList titlesOf(const QList<CalendarEvent>& events)
{
    QStringList titles;
    for (const CalendarEvent& each : events)
        titles.append(each.title);
    titles.sort();
    return titles;
}

} // namespace ambrelle
