// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarBook.h"

#include "platform/calendar/CalendarOccurrences.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace std::chrono;

namespace {

constexpr qsizetype mostEvents = 50'000; // of one answer

sys_seconds instantOf(const QDateTime& moment)
{
    return sys_seconds(seconds(moment.toSecsSinceEpoch()));
}

QDateTime utc(sys_seconds instant)
{
    return QDateTime::fromSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC);
}

std::string_view view(const QByteArray& text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

void count(CalendarInfo& calendar, const IcsFile& content)
{
    for (const CalendarSeries& series : content.series)
        (series.isReminder() ? calendar.hasReminders : calendar.hasEvents) = true;
}

/// A file with many items, or with a name, is a calendar of its own, unless its folder says to be one.
bool standsAlone(const CalendarFolder& folder, const IcsFile& content)
{
    return !folder.isMarked && (!content.name.isEmpty() || content.series.size() > 1);
}

CalendarInfo ownCalendar(const CalendarFolder& folder, const QString& path, const IcsFile& content)
{
    CalendarInfo calendar{.identifier = path, .name = content.name, .color = content.color};
    if (calendar.name.isEmpty())
        calendar.name = folder.files.size() == 1 && !folder.isRoot ? folder.name : QFileInfo(path).completeBaseName();
    count(calendar, content);
    return calendar;
}

QString withoutDot(const QString& name)
{
    return name.startsWith(u'.') ? name.mid(1) : name;
}

} // namespace

CalendarBook::CalendarBook(QStringList roots)
    : m_roots(std::move(roots))
{
}

bool CalendarBook::refresh()
{
    const auto found = CalendarFolders::found(m_roots);
    m_watched = found.watched;
    const bool differs = readPages(found);
    auto calendars = assign(found.folders);
    if (!differs && calendars == m_calendars)
        return false;
    m_calendars = std::move(calendars);
    m_answer.reset();
    return true;
}

bool CalendarBook::readPages(const CalendarFolders& found)
{
    auto old = std::exchange(m_pages, {});
    bool differs = false;
    std::size_t series = 0;
    for (const CalendarFolder& folder : found.folders) {
        for (const QString& name : folder.files) {
            const QString path = folder.path + u'/' + name;
            const auto stamp = FileStamp::of(path);
            if (!stamp || series >= mostSeries)
                continue;
            Page page{.stamp = *stamp};
            const auto known = old.find(path);
            if (known != old.end() && known->second.stamp == *stamp) {
                page.content = std::move(known->second.content);
            } else {
                if (const auto text = boundedContent(path, mostFileBytes))
                    page.content = IcsParser::parsed(view(*text));
                differs = true;
            }
            series += page.content.series.size();
            m_pages.emplace(path, std::move(page));
        }
    }
    return differs || m_pages.size() != old.size();
}

/// Says which calendar each page belongs to, and gives all calendars.
QList<CalendarInfo> CalendarBook::assign(const QList<CalendarFolder>& folders)
{
    QList<CalendarInfo> calendars;
    for (const CalendarFolder& folder : folders) {
        CalendarInfo shared{.identifier = folder.path, .name = withoutDot(folder.name), .color = folder.color};
        bool isCalendar = folder.isMarked || (folder.isEmpty && !folder.isRoot);
        for (const QString& name : folder.files) {
            const QString path = folder.path + u'/' + name;
            const auto page = m_pages.find(path);
            if (page == m_pages.end() || !page->second.content.isCalendar)
                continue;
            const IcsFile& content = page->second.content;
            page->second.calendar = standsAlone(folder, content) ? path : folder.path;
            if (page->second.calendar == path) {
                calendars.append(ownCalendar(folder, path, content));
            } else {
                isCalendar = true;
                count(shared, content);
                if (!shared.color.isValid())
                    shared.color = content.color;
            }
        }
        if (isCalendar)
            calendars.append(shared);
    }
    for (CalendarInfo& calendar : calendars) {
        if (!calendar.hasEvents && !calendar.hasReminders)
            calendar.hasEvents = calendar.hasReminders = true;
    }
    std::ranges::stable_sort(calendars, [](const CalendarInfo& one, const CalendarInfo& other) {
        return QString::localeAwareCompare(one.name, other.name) < 0;
    });
    return calendars;
}

QList<CalendarEvent> CalendarBook::eventsOf(
    const Page& page, const QDateTime& from, const QDateTime& to, Effort& effort) const
{
    const CalendarZone local(from.timeZone());
    QList<CalendarEvent> events;
    for (const CalendarSeries& series : page.content.series) {
        if (series.isReminder())
            continue;
        const auto occurrences = CalendarOccurrences::events(series, instantOf(from), instantOf(to), local, effort);
        for (const EventOccurrence& occurrence : occurrences) {
            const QString uid = QString::fromUtf8(occurrence.item->uid);
            const auto start = occurrence.start.time_since_epoch().count();
            events.append({.identifier = uid + u'@' + QString::number(start),
                .calendar = page.calendar,
                .title = occurrence.item->title,
                .start = utc(occurrence.start),
                .end = utc(occurrence.end),
                .allDay = occurrence.item->start->isDay});
        }
    }
    return events;
}

const QList<CalendarEvent>& CalendarBook::allEvents(const QDateTime& from, const QDateTime& to)
{
    const bool isKnown =
        m_answer && m_answer->from == from && m_answer->to == to && m_answer->from.timeZone() == from.timeZone();
    if (!isKnown) {
        m_answer = Answer{from, to, {}};
        Effort effort;
        for (const auto& [path, page] : m_pages) {
            if (m_answer->events.size() < mostEvents)
                m_answer->events.append(eventsOf(page, from, to, effort));
        }
    }
    return m_answer->events;
}

QList<CalendarEvent> CalendarBook::events(const QDateTime& from, const QDateTime& to, const QStringList& calendars)
{
    QList<CalendarEvent> wanted;
    for (const CalendarEvent& event : allEvents(from, to)) {
        if (calendars.contains(event.calendar))
            wanted.append(event);
    }
    return wanted;
}

QList<CalendarReminder> CalendarBook::reminders(const QDateTime& now)
{
    const CalendarZone local(now.timeZone());
    Effort effort;
    QList<CalendarReminder> reminders;
    m_reminders.clear();
    for (const auto& [path, page] : m_pages) {
        for (const CalendarSeries& series : page.content.series) {
            if (!series.isReminder())
                continue;
            for (const OpenReminder& open : CalendarOccurrences::reminders(series, local, effort)) {
                ReminderKey key{open.item->uid, {}};
                QString identifier = path + u'#' + QString::fromUtf8(key.uid);
                if (const auto& change = open.item->recurrenceId) {
                    key.recurrenceId = change->wallTime;
                    identifier += u'#' + QString::number(change->wallTime.time_since_epoch().count());
                }
                CalendarReminder reminder{
                    .identifier = identifier, .calendar = page.calendar, .title = open.item->title};
                if (open.due) {
                    reminder.due = utc(open.due->instant(local));
                    reminder.hasTime = !open.due->isDay;
                }
                reminders.append(reminder);
                m_reminders.insert(identifier, {path, key});
            }
        }
    }
    return reminders;
}

bool CalendarBook::complete(const QString& reminder, const QDateTime& now)
{
    const auto place = m_reminders.constFind(reminder);
    if (place == m_reminders.constEnd())
        return false;
    const auto stamp = FileStamp::of(place->file);
    const auto text = boundedContent(place->file, mostFileBytes);
    if (!stamp || !text)
        return false;
    const auto edited = textWithReminderCompleted(*text, place->key, instantOf(now), CalendarZone(now.timeZone()));
    if (!edited)
        return false;
    QSaveFile file(place->file);
    if (!file.open(QIODevice::WriteOnly) || file.write(*edited) != edited->size())
        return false;
    // A disk that fills up cuts the file short without a word: commit() would put that in place of the user's.
    if (!file.flush() || file.size() != edited->size())
        return false;
    // Somebody else's change is worth more than a tick that can be repeated.
    if (FileStamp::of(place->file) != stamp)
        return false;
    return file.commit();
}

} // namespace ambrelle
