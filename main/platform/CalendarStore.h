// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/ForeignText.h"
#include "platform/Port.h"

#include <QColor>
#include <QDateTime>
#include <QFileInfo>
#include <QList>
#include <QStringList>

#include <functional>
#include <optional>

namespace ambrelle {

enum class CalendarKind { events, reminders };

/// One of the user's calendars or reminder lists; some are both.
struct CalendarInfo {
    QString identifier; ///< stays the same from one run to the next
    QString name;
    QColor color; ///< invalid when the calendar has none
    bool hasEvents = false; ///< also of a calendar that is still empty
    bool hasReminders = false;

    bool operator==(const CalendarInfo&) const = default;
};

/// One occurrence of an event.
struct CalendarEvent {
    QString identifier;
    QString calendar; ///< its identifier
    QString title; ///< may be empty
    QDateTime start;
    QDateTime end; ///< not before the start; of an all-day event midnight after its last day
    bool allDay = false;

    bool operator==(const CalendarEvent&) const = default;
};

/// A reminder that is not completed; of a recurring one, its first occurrence that is open.
struct CalendarReminder {
    QString identifier;
    QString calendar; ///< its identifier
    QString title; ///< may be empty
    std::optional<QDateTime> due; ///< midnight of the day without a time
    bool hasTime = false;

    bool operator==(const CalendarReminder&) const = default;
};

/// A calendar that is left out, in whole or in part.
struct UnreadCalendar {
    QString file; ///< its path
    QString reason; ///< one sentence

    QString name() const { return foreignText(QFileInfo(file).fileName()); } ///< of the file, to be shown

    bool operator==(const UnreadCalendar&) const = default;
};

/// A folder in which calendars are looked for.
struct CalendarSource {
    QString folder; ///< its path; need not exist
    bool isAdded = false; ///< by the user, who may remove it again

    bool operator==(const CalendarSource&) const = default;
};

/// The events and reminders of the user. Nothing here blocks: answers come later on this thread, unless `context` is
/// gone by then. What has no time zone of its own counts as in that of the moment that came with the question. Moments
/// are given in UTC: thousands of them compare in no time. Available while there is any calendar to read, which is
/// known once requestAccess() was answered.
class CalendarStore : public Port {
public:
    QString whyNot() const final { return whyNone(CalendarKind::events); }
    /// Why there are none of that kind: one sentence, empty while available.
    virtual QString whyNone(CalendarKind kind) const = 0;

    /// Opens the store, and answers isAvailable(). From then on changed() comes when calendars, events or reminders, or
    /// whether there are any, are different.
    virtual void requestAccess(QObject* context, std::function<void(bool granted)> done) = 0;
    /// All calendars by name; empty before access was granted.
    virtual QList<CalendarInfo> calendars() const = 0;
    /// What looks like a calendar and is not, or not all, among them: known a while after it was met, and told by
    /// changed().
    virtual QList<UnreadCalendar> unread() const { return {}; }
    /// Where calendars come from, if they come from folders. That these are others is told by changed().
    virtual QList<CalendarSource> sources() const { return {}; }
    /// Looks in this folder from now on, and in times to come. False when it is no absolute path.
    virtual bool addSource(const QString&) { return false; }
    /// Looks no longer in a folder that was added; its files stay.
    virtual void removeSource(const QString&) { }
    /// The folders that were added, as they are kept, and in their order.
    virtual QStringList addedSources() const { return {}; }
    virtual void setAddedSources(const QStringList&) { }
    /// Has the folders of `before` back in their order, and keeps those that were added since.
    void restoreSources(const QStringList& before)
    {
        QStringList folders = before;
        for (const QString& folder : addedSources()) {
            if (!folders.contains(folder))
                folders.append(folder);
        }
        setAddedSources(folders);
    }
    /// Occurrences in these calendars that touch the time from `from` until before `to`, in no particular order.
    virtual void events(const QDateTime& from, const QDateTime& to, const QStringList& calendars, QObject* context,
        std::function<void(const QList<CalendarEvent>&)> done) = 0;
    /// The incomplete reminders of all calendars, in no particular order.
    virtual void reminders(
        const QDateTime& now, QObject* context, std::function<void(const QList<CalendarReminder>&)> done) = 0;
    /// Marks the reminder as completed at `now`; a recurring one moves on to its next occurrence that is not before
    /// today. `done` gets whether it was saved.
    virtual void complete(
        const QString& reminder, const QDateTime& now, QObject* context, std::function<void(bool saved)> done) = 0;
};

} // namespace ambrelle
