// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "platform/CalendarStore.h"

#include <QObject>

namespace ambrelle {

class AppSettings;

/// An event that takes place in the coming days.
struct EventRow {
    QString id; ///< of this occurrence
    QString title; ///< "Untitled" when it has none
    QDateTime start;
    QDateTime end;
    bool allDay = false;
    QColor color; ///< of its calendar

    bool operator==(const EventRow&) const = default;
};

/// Lists the events of this week that are not over, in the calendars the user has not excluded.
class EventsService : public QObject {
    Q_OBJECT
public:
    static constexpr int mostEvents = 8;
    static constexpr int windowDays = 7; ///< from the start of today

    EventsService(CalendarStore& store, const AppSettings& settings, Clock& clock);

    /// Asks for access and lists events from then on; once only.
    void start();
    /// Reads the events again; they are published when the store answers.
    void reload();
    /// Fixed sample rows for pictures.
    void loadPreviewData();

    const QList<EventRow>& events() const { return m_events; } ///< by start, at most `mostEvents`
    const QList<CalendarInfo>& calendars() const { return m_calendars; } ///< those with events, excluded ones too
    /// Calendars that are left out, in whole or in part.
    const QList<UnreadCalendar>& unread() const { return m_unread; }
    /// Where the store looks for calendars.
    const QList<CalendarSource>& sources() const { return m_sources; }
    /// As CalendarStore has them; the calendars follow.
    bool addSource(const QString& folder) { return m_store.addSource(folder); }
    void removeSource(const QString& folder) { m_store.removeSource(folder); }
    QStringList addedSources() const { return m_store.addedSources(); }
    void restoreSources(const QStringList& before) { m_store.restoreSources(before); }
    const QString& status() const { return m_status; } ///< shown in place of events; empty while there is access

Q_SIGNALS:
    void changed();

private:
    void accessChanged();
    void publish(const QList<CalendarEvent>& events);
    void publish(const QList<EventRow>& events, const QList<CalendarInfo>& calendars, const QString& status);
    QList<EventRow> rowsOf(QList<CalendarEvent> events, const QList<CalendarInfo>& calendars) const;

    CalendarStore& m_store;
    const AppSettings& m_settings;
    Clock& m_clock;
    QList<EventRow> m_events;
    QList<CalendarInfo> m_calendars;
    QList<UnreadCalendar> m_unread;
    QList<CalendarSource> m_sources;
    QString m_status;
    bool m_started = false;
    Ticket m_timer;
};

} // namespace ambrelle
