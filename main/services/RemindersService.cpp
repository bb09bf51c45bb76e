// SPDX-License-Identifier: MIT

#include "services/RemindersService.h"

#include "foundation/Wording.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor systemOrange(0xFF, 0x95, 0x00);

/// The earliest due first, those without a date last; among equals by title.
bool comesBefore(const ReminderRow& one, const ReminderRow& other)
{
    if (one.due.has_value() != other.due.has_value())
        return one.due.has_value();
    if (one.due && *one.due != *other.due)
        return *one.due < *other.due;
    return QString::localeAwareCompare(one.title, other.title) < 0;
}

/// By identifier, of those that have one.
QHash<QString, QColor> colorsOf(const QList<CalendarInfo>& calendars)
{
    QHash<QString, QColor> colors;
    for (const CalendarInfo& calendar : calendars) {
        if (calendar.color.isValid())
            colors.insert(calendar.identifier, calendar.color);
    }
    return colors;
}

QString dateText(QDate date, QDate today, const QLocale& locale)
{
    const QString order = locale.dateFormat(QLocale::ShortFormat);
    const bool monthFirst = order.indexOf(u'M') < order.indexOf(u'd');
    QString format = monthFirst ? u"MMM d"_s : u"d MMM"_s;
    if (date.year() != today.year())
        format += monthFirst ? u", yyyy"_s : u" yyyy"_s;
    return locale.toString(date, format);
}

} // namespace

bool ReminderRow::isOverdue(const QDateTime& now) const
{
    return due && *due < now.date().startOfDay(now.timeZone());
}

std::optional<QString> ReminderRow::dueText(const QDateTime& now, const QLocale& locale) const
{
    if (!due)
        return std::nullopt;
    const QDate date = due->toTimeZone(now.timeZone()).date();
    switch (now.date().daysTo(date)) {
    case -1: return Wording::tr("Yesterday");
    case 0: return Wording::tr("Today");
    case 1: return Wording::tr("Tomorrow");
    default: return dateText(date, now.date(), locale);
    }
}

RemindersService::RemindersService(CalendarStore& store, Clock& clock)
    : m_store(store)
    , m_clock(clock)
{
}

void RemindersService::start()
{
    if (m_started)
        return;
    m_started = true;
    m_preview = false;
    publish({}, Wording::tr("Requesting Reminders access…"));
    m_store.requestAccess(this, [this](bool) {
        connect(&m_store, &CalendarStore::changed, this, &RemindersService::accessChanged);
        accessChanged();
    });
}

/// Calendars may appear and vanish at any time.
void RemindersService::accessChanged()
{
    if (!m_store.isAvailable()) {
        m_timer.reset();
        publish({}, m_store.whyNone(CalendarKind::reminders));
        return;
    }
    // A day without a time begins at another moment elsewhere.
    if (!m_timer)
        m_timer = m_clock.everyMinute([this] {
            if (m_clock.now().timeZone() != m_zone)
                reload();
        });
    reload();
}

void RemindersService::reload()
{
    if (!m_completing.isEmpty())
        return; // when the last is through
    const QDateTime now = m_clock.now();
    m_zone = now.timeZone();
    m_store.reminders(now, this, [this](const QList<CalendarReminder>& reminders) { publish(reminders); });
}

void RemindersService::complete(const QString& id)
{
    const bool isListed = std::ranges::find(m_reminders, id, &ReminderRow::id) != m_reminders.end();
    if (!isListed || m_completing.contains(id))
        return;
    m_completing.insert(id);
    Q_EMIT changed();
    if (!m_preview)
        m_store.complete(id, m_clock.now(), this, [this, id](bool isSaved) { saved(id, isSaved); });
}

void RemindersService::saved(const QString& id, bool isSaved)
{
    if (!isSaved) {
        finish(id);
        return;
    }
    m_ticked[id] = m_clock.after(tickedTime, [this, id] {
        m_reminders.removeIf([&id](const ReminderRow& row) { return row.id == id; });
        m_ticked.erase(id);
        finish(id);
    });
}

void RemindersService::finish(const QString& id)
{
    m_completing.remove(id);
    Q_EMIT changed();
    reload();
}

void RemindersService::publish(const QList<CalendarReminder>& reminders)
{
    if (!m_store.isAvailable() || !m_completing.isEmpty())
        return; // meanwhile
    const auto colors = colorsOf(m_store.calendars());
    QList<ReminderRow> rows;
    for (const CalendarReminder& reminder : reminders) {
        rows.append({reminder.identifier, reminder.title.isEmpty() ? Wording::tr("Untitled") : reminder.title,
            reminder.due, reminder.hasTime, colors.value(reminder.calendar, systemOrange)});
    }
    std::ranges::stable_sort(rows, comesBefore);
    publish(rows, {});
}

void RemindersService::publish(const QList<ReminderRow>& reminders, const QString& status)
{
    if (reminders == m_reminders && status == m_status)
        return;
    m_reminders = reminders;
    m_status = status;
    Q_EMIT changed();
}

void RemindersService::loadPreviewData()
{
    const QDateTime now = m_clock.now();
    const auto day = [&now](int days) { return now.date().addDays(days).startOfDay(now.timeZone()); };
    const QColor work(0x00, 0x7A, 0xFF);
    const QColor home(0x34, 0xC7, 0x59);
    m_preview = true;
    m_completing.clear();
    publish(
        QList<ReminderRow>{
            {u"1"_s, Wording::tr("Send the invoice"), day(-1), false, work},
            {u"2"_s, Wording::tr("Call the dentist"), day(0), false, home},
            {u"3"_s, Wording::tr("Water the plants"), day(0), false, home},
            {u"4"_s, Wording::tr("Book train tickets"), day(1), false, systemOrange},
        },
        {});
}

} // namespace ambrelle
