// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarPages.h"
#include "platform/calendar/ReminderEdit.h"
#include "platform/CalendarStore.h"

#include <QHash>

namespace ambrelle {

/// Everything in some folders of calendar files, read once and again where files or the folders change. It reads, and
/// at times thinks for long: not for the main thread.
class CalendarBook {
public:
    /// The addresses are the user's, whose declined events are left out.
    explicit CalendarBook(const QStringList& addresses = {});

    /// Reads what is new or different in these folders; true when anything is.
    bool refresh(const QStringList& roots);

    const QList<CalendarInfo>& calendars() const { return m_calendars; } ///< by name
    const QList<WatchedFolder>& watched() const { return m_watched; } ///< where changes show

    /// Files that are left out in whole or in part, as far as events and reminders were asked for.
    QList<UnreadCalendar> unread() const;

    /// As CalendarStore has them.
    QList<CalendarEvent> events(const QDateTime& from, const QDateTime& to, const QStringList& calendars);
    QList<CalendarReminder> reminders(const QDateTime& now);
    /// Of a reminder listed last; false when it could not be saved. The book is not refreshed.
    bool complete(const QString& reminder, const QDateTime& now);

private:
    struct Place {
        QString file;
        ReminderKey key;
    };
    /// The events of a time are asked for again and again while nothing changes.
    struct Answer {
        QDateTime from;
        QDateTime to;
        QList<CalendarEvent> events;
    };

    QList<CalendarInfo> assign(const QList<CalendarFolder>& folders);
    static QList<CalendarEvent> eventsOf(CalendarPage& page, const QDateTime& from, const QDateTime& to);
    QList<CalendarReminder> remindersOf(const QString& path, CalendarPage& page, const CalendarZone& local);
    const QList<CalendarEvent>& allEvents(const QDateTime& from, const QDateTime& to);

    QList<QByteArray> m_addresses;
    CalendarPages m_pages;
    QList<CalendarInfo> m_calendars;
    QList<WatchedFolder> m_watched;
    QHash<QString, Place> m_reminders; // as listed last
    std::optional<Answer> m_answer;
};

} // namespace ambrelle
