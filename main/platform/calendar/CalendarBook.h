// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarFolders.h"
#include "platform/calendar/FileStamp.h"
#include "platform/calendar/IcsParser.h"
#include "platform/calendar/ReminderEdit.h"
#include "platform/CalendarStore.h"

#include <QHash>

#include <map>

namespace ambrelle {

/// Everything in some folders of calendar files, read once and again where files change. It reads, and at times thinks
/// for long: not for the main thread.
class CalendarBook {
public:
    static constexpr qint64 mostFileBytes = 32LL * 1024 * 1024; ///< larger files are left out
    static constexpr std::size_t mostSeries = 200'000; ///< in all files; then the remaining ones are left out

    explicit CalendarBook(QStringList roots);

    /// Reads what is new or different; true when anything is.
    bool refresh();

    const QList<CalendarInfo>& calendars() const { return m_calendars; } ///< by name
    const QList<WatchedFolder>& watched() const { return m_watched; } ///< where changes show

    /// As CalendarStore has them.
    QList<CalendarEvent> events(const QDateTime& from, const QDateTime& to, const QStringList& calendars);
    QList<CalendarReminder> reminders(const QDateTime& now);
    /// Of a reminder listed last; false when it could not be saved. The book is not refreshed.
    bool complete(const QString& reminder, const QDateTime& now);

private:
    struct Page {
        FileStamp stamp;
        IcsFile content;
        QString calendar; // its identifier
    };
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

    bool readPages(const CalendarFolders& found);
    QList<CalendarInfo> assign(const QList<CalendarFolder>& folders);
    QList<CalendarEvent> eventsOf(const Page& page, const QDateTime& from, const QDateTime& to, Effort& effort) const;
    const QList<CalendarEvent>& allEvents(const QDateTime& from, const QDateTime& to);

    QStringList m_roots;
    std::map<QString, Page> m_pages; // by path
    QList<CalendarInfo> m_calendars;
    QList<WatchedFolder> m_watched;
    QHash<QString, Place> m_reminders; // as listed last
    std::optional<Answer> m_answer;
};

} // namespace ambrelle
