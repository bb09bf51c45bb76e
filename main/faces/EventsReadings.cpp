// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/Wording.h"
#include "model/WidgetKind.h"
#include "services/EventsService.h"
#include "services/RemindersService.h"

#include <QTimeZone>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr qsizetype mostRows = 12; // no face has room for more
constexpr QColor ofNoCalendar(0x8E, 0x8E, 0x93);

/// "09:30" or "All day"; of another day than today with its name before.
QString timeText(const EventRow& event, const QDateTime& now, const QLocale& locale)
{
    const QDateTime start = event.start.toTimeZone(now.timeZone());
    const QDateTime end = event.end.toTimeZone(now.timeZone());
    const QDate today = now.date();
    if (start.date() > today) {
        const QString day = locale.standaloneDayName(start.date().dayOfWeek(), QLocale::ShortFormat);
        return event.allDay ? Wording::tr("%1, all day").arg(day)
                            : Wording::tr("%1 %2", "day of the week, time").arg(day, Units::time(start, locale));
    }
    if (event.allDay)
        return Wording::tr("All day");
    if (start.date() == today)
        return Units::time(start, locale);
    // Since yesterday or longer: what is left of today tells more than when it began.
    return end.date() > today ? Wording::tr("All day") : Wording::tr("Until %1").arg(Units::time(end, locale));
}

/// "Yesterday", "Today, 14:05", "3 Jun, 14:05"; empty without a date.
QString dueText(const ReminderRow& reminder, const QDateTime& now, const QLocale& locale)
{
    QString day = reminder.dueText(now, locale).value_or(QString());
    if (!reminder.due || !reminder.hasTime)
        return day;
    return Wording::tr("%1, %2", "day, time").arg(day, Units::time(reminder.due->toTimeZone(now.timeZone()), locale));
}

} // namespace

EventsReading eventsReading(const EventsService& service, const QDateTime& now, const QLocale& locale)
{
    EventsReading reading;
    const QDate today = now.date();
    reading.day = Wording::tr("%1 %2", "day of the week, of the month")
                      .arg(locale.standaloneDayName(today.dayOfWeek()), QString::number(today.day()));
    if (!service.status().isEmpty()) {
        reading.notice = {symbol(WidgetKind::events), service.status()};
        return reading;
    }
    const auto& events = service.events();
    const bool anyToday = std::ranges::any_of(
        events, [&](const EventRow& event) { return event.start.toTimeZone(now.timeZone()).date() <= today; });
    const QString sentence = Wording::tr("No more events today");
    if (events.isEmpty()) {
        reading.notice = {symbol(WidgetKind::events), sentence};
        return reading;
    }
    if (!anyToday)
        reading.rows.append({Wording::tr("Today"), sentence, ofNoCalendar});
    for (const EventRow& event : events)
        reading.rows.append({timeText(event, now, locale), event.title, event.color});
    return reading;
}

RemindersReading remindersReading(const RemindersService& service, const QDateTime& now, const QLocale& locale)
{
    RemindersReading reading;
    if (!service.status().isEmpty())
        reading.notice = {symbol(WidgetKind::reminders), service.status()};
    else if (service.reminders().isEmpty())
        reading.notice = {symbol(WidgetKind::reminders), Wording::tr("All done")};
    if (reading.notice)
        return reading;
    for (const ReminderRow& reminder : service.reminders().first(std::min(mostRows, service.reminders().size()))) {
        reading.rows.append({.id = reminder.id,
            .title = reminder.title,
            .due = dueText(reminder, now, locale),
            .dueDay = reminder.dueText(now, locale).value_or(QString()),
            .overdue = reminder.isOverdue(now),
            .done = service.completing().contains(reminder.id),
            .colour = reminder.color});
    }
    return reading;
}

} // namespace ambrelle
