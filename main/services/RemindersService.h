// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "platform/CalendarStore.h"

#include <QLocale>
#include <QObject>
#include <QSet>
#include <QTimeZone>

#include <map>

namespace ambrelle {

/// A reminder that is not completed.
struct ReminderRow {
    QString id;
    QString title; ///< "Untitled" when it has none
    std::optional<QDateTime> due;
    bool hasTime = false; ///< the due date carries a time of day
    QColor color; ///< of its list

    bool operator==(const ReminderRow&) const = default;
    /// Due before today.
    bool isOverdue(const QDateTime& now) const;
    /// "Today", "Tomorrow", "Yesterday", else the day and month, with the year unless it is this one; none without a
    /// date.
    std::optional<QString> dueText(const QDateTime& now, const QLocale& locale) const;
};

/// Lists the open reminders of all calendars, the earliest due first and those without a date last, and ticks them off.
class RemindersService : public QObject {
    Q_OBJECT
public:
    /// A ticked row stays on view for so long.
    static constexpr std::chrono::milliseconds tickedTime{700};

    RemindersService(CalendarStore& store, Clock& clock);

    /// Asks for access and lists reminders from then on; once only.
    void start();
    /// Reads the reminders again; they are published when the store answers, and not while a ticked row is on view.
    void reload();
    /// Ticks off the reminder. If it cannot be saved it stays in the list, not ticked.
    void complete(const QString& id);
    /// Fixed sample rows for pictures; they can be ticked, and nothing is saved.
    void loadPreviewData();

    const QList<ReminderRow>& reminders() const { return m_reminders; }
    const QString& status() const { return m_status; } ///< shown in place of reminders; empty while there is access
    const QSet<QString>& completing() const { return m_completing; } ///< reminders being ticked off right now

Q_SIGNALS:
    void changed();

private:
    void accessChanged();
    void saved(const QString& id, bool isSaved);
    void finish(const QString& id);
    void publish(const QList<CalendarReminder>& reminders);
    void publish(const QList<ReminderRow>& reminders, const QString& status);

    CalendarStore& m_store;
    Clock& m_clock;
    QList<ReminderRow> m_reminders;
    QString m_status;
    QSet<QString> m_completing;
    std::map<QString, Ticket> m_ticked; // saved rows that are still on view
    bool m_started = false;
    bool m_preview = false;
    QTimeZone m_zone; // of the last reload
    Ticket m_timer;
};

} // namespace ambrelle
