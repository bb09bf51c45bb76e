// SPDX-License-Identifier: MIT

#include "services/EventsService.h"

#include "foundation/Wording.h"
#include "model/AppSettings.h"

#include <QTimeZone>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor systemBlue(0x00, 0x7A, 0xFF);

QList<CalendarInfo> withEvents(QList<CalendarInfo> calendars)
{
    calendars.removeIf([](const CalendarInfo& calendar) { return !calendar.hasEvents; });
    return calendars;
}

QColor colorOf(const QString& identifier, const QList<CalendarInfo>& calendars)
{
    const auto calendar = std::ranges::find(calendars, identifier, &CalendarInfo::identifier);
    return calendar != calendars.end() && calendar->color.isValid() ? calendar->color : systemBlue;
}

} // namespace

EventsService::EventsService(CalendarStore& store, const AppSettings& settings, Clock& clock)
    : m_store(store)
    , m_settings(settings)
    , m_clock(clock)
{
}

void EventsService::start()
{
    if (m_started)
        return;
    m_started = true;
    publish({}, {}, Wording::tr("Requesting calendar access…"));
    m_store.requestAccess(this, [this](bool) {
        connect(&m_store, &CalendarStore::changed, this, &EventsService::accessChanged);
        connect(&m_settings, &AppSettings::changed, this, [this](const QString& key) {
            if (key == m_settings.excludedCalendars.key())
                reload();
        });
        accessChanged();
    });
}

/// Calendars may appear and vanish at any time.
void EventsService::accessChanged()
{
    if (!m_store.isAvailable()) {
        m_timer.reset();
        publish({}, {}, m_store.whyNone(CalendarKind::events));
        return;
    }
    if (!m_timer)
        m_timer = m_clock.everyMinute([this] { reload(); });
    reload();
}

void EventsService::reload()
{
    QStringList kept;
    for (const CalendarInfo& calendar : withEvents(m_store.calendars())) {
        if (!m_settings.excludedCalendars().contains(calendar.identifier))
            kept.append(calendar.identifier);
    }
    QDateTime today = m_clock.now();
    const QDate date = today.date();
    today = date.startOfDay(today.timeZone());
    m_store.events(today, date.addDays(windowDays).startOfDay(today.timeZone()), kept, this,
        [this](const QList<CalendarEvent>& events) { publish(events); });
}

void EventsService::publish(const QList<CalendarEvent>& events)
{
    if (!m_store.isAvailable())
        return; // meanwhile
    const auto calendars = withEvents(m_store.calendars());
    publish(rowsOf(events, calendars), calendars, {});
}

QList<EventRow> EventsService::rowsOf(QList<CalendarEvent> events, const QList<CalendarInfo>& calendars) const
{
    const QDateTime now = m_clock.now();
    events.removeIf([&now](const CalendarEvent& event) { return event.end <= now; });
    std::ranges::stable_sort(events, {}, &CalendarEvent::start);
    if (events.size() > mostEvents)
        events.resize(mostEvents);
    QList<EventRow> rows;
    for (const CalendarEvent& event : events) {
        rows.append({event.identifier, event.title.isEmpty() ? Wording::tr("Untitled") : event.title, event.start,
            event.end, event.allDay, colorOf(event.calendar, calendars)});
    }
    return rows;
}

void EventsService::publish(const QList<EventRow>& events, const QList<CalendarInfo>& calendars, const QString& status)
{
    const auto unread = m_started ? m_store.unread() : QList<UnreadCalendar>();
    const auto sources = m_started ? m_store.sources() : QList<CalendarSource>();
    if (events == m_events && calendars == m_calendars && status == m_status && unread == m_unread
        && sources == m_sources)
        return;
    m_unread = unread;
    m_sources = sources;
    m_events = events;
    m_calendars = calendars;
    m_status = status;
    Q_EMIT changed();
}

void EventsService::loadPreviewData()
{
    const QDateTime now = m_clock.now();
    const auto at = [&now](int days, int hour, int minute) {
        return QDateTime(now.date().addDays(days), QTime(hour, minute), now.timeZone());
    };
    const CalendarInfo home{u"home"_s, Wording::tr("Home"), QColor(0x34, 0xC7, 0x59), true, true};
    const CalendarInfo work{u"work"_s, Wording::tr("Work"), systemBlue, true, false};
    const CalendarInfo family{u"family"_s, Wording::tr("Family"), QColor(0xFF, 0x95, 0x00), true, false};
    publish(
        QList<EventRow>{
            {u"1"_s, Wording::tr("Anna's birthday"), at(0, 0, 0), at(1, 0, 0), true, family.color},
            {u"2"_s, Wording::tr("Breakdown: call the electrician"), at(0, 10, 0), at(0, 10, 30), false, home.color},
            {u"3"_s, Wording::tr("Deadline for the report"), at(0, 13, 30), at(0, 14, 30), false, work.color},
            {u"4"_s, Wording::tr("Choir practice"), at(0, 18, 15), at(0, 20, 0), false, family.color},
            {u"5"_s, Wording::tr("Planning"), at(2, 9, 0), at(2, 10, 0), false, work.color},
        },
        {family, home, work}, {});
}

} // namespace ambrelle
