// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarBook.h"

#include "foundation/ForeignText.h"
#include "foundation/Wording.h"
#include "platform/calendar/CalendarOccurrences.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace std::chrono;

namespace {

constexpr qsizetype longestFileName = 200; // letters
constexpr qsizetype mostEvents = 10'000; // of one file
constexpr qsizetype mostReminders = 10'000; // likewise
constexpr qsizetype mostAnswers = 100'000; // of all files

sys_seconds instantOf(const QDateTime& moment)
{
    return sys_seconds(seconds(moment.toSecsSinceEpoch()));
}

QDateTime utc(sys_seconds instant)
{
    return QDateTime::fromSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC);
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
        calendar.name = folder.files.size() == 1 && !folder.isRoot
            ? folder.name
            : foreignText(QFileInfo(path).completeBaseName(), longestFileName);
    count(calendar, content);
    return calendar;
}

/// What the files answer. Those with the most give way, so that they do not hide the others.
template <typename Each> class Answers {
public:
    /// `lacksSome`: of the file, where it is noted that it gave way.
    void add(QList<Each> ofFile, bool& lacksSome)
    {
        m_all += ofFile.size();
        m_ofFiles.push_back({std::move(ofFile), &lacksSome});
        while (m_all > mostAnswers) {
            auto& most = *std::ranges::max_element(m_ofFiles, {}, [](const File& file) { return file.answers.size(); });
            m_all -= most.answers.size();
            most.answers = {};
            *most.lacksSome = true;
        }
    }
    QList<Each> joined() const
    {
        QList<Each> all;
        for (const File& file : m_ofFiles)
            all.append(file.answers);
        return all;
    }

private:
    struct File {
        QList<Each> answers;
        bool* lacksSome;
    };
    std::vector<File> m_ofFiles;
    qsizetype m_all = 0;
};

/// Why the page, or some of it, is not shown; empty when all of it is.
QString sentenceOf(const CalendarPage& page)
{
    switch (page.fault) {
    case PageFault::none:
        return page.lacksEvents || page.lacksReminders ? Wording::tr("There is more in it than can be listed.")
                                                       : QString();
    case PageFault::closed: return Wording::tr("It cannot be read.");
    case PageFault::tooLarge:
        return Wording::tr("It is larger than %1 MB.").arg(CalendarPages::mostFileBytes / (1024 * 1024));
    case PageFault::noCalendar: return Wording::tr("It is not a calendar.");
    case PageFault::tooMuch: return Wording::tr("It takes more time or memory than a calendar may.");
    case PageFault::tooMuchTogether: return Wording::tr("All calendars together are too large.");
    }
    return {};
}

QString withoutDot(const QString& name)
{
    return name.startsWith(u'.') ? name.mid(1) : name;
}

} // namespace

CalendarBook::CalendarBook(const QStringList& addresses)
{
    for (const QString& address : addresses)
        m_addresses.append(address.trimmed().toLower().toUtf8());
}

bool CalendarBook::refresh(const QStringList& roots)
{
    const auto found = CalendarFolders::found(roots);
    m_watched = found.watched;
    const bool differs = m_pages.read(found.folders, m_addresses);
    auto calendars = assign(found.folders);
    if (!differs && calendars == m_calendars)
        return false;
    m_calendars = std::move(calendars);
    m_answer.reset();
    return true;
}

QList<UnreadCalendar> CalendarBook::unread() const
{
    QList<UnreadCalendar> unread;
    for (const auto& [path, page] : m_pages.byPath()) {
        if (const QString reason = sentenceOf(page); !reason.isEmpty())
            unread.append({path, reason});
    }
    return unread;
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
            const auto page = m_pages.byPath().find(path);
            if (page == m_pages.byPath().end() || !page->second.content.isCalendar)
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

QList<CalendarEvent> CalendarBook::eventsOf(CalendarPage& page, const QDateTime& from, const QDateTime& to)
{
    const CalendarZone local(from.timeZone());
    Effort effort; // each file has its own
    QList<CalendarEvent> events;
    for (const CalendarSeries& series : page.content.series) {
        if (series.isReminder() || events.size() >= mostEvents)
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
    page.lacksEvents = effort.hasRunOut || events.size() >= mostEvents;
    return events;
}

const QList<CalendarEvent>& CalendarBook::allEvents(const QDateTime& from, const QDateTime& to)
{
    const bool isKnown =
        m_answer && m_answer->from == from && m_answer->to == to && m_answer->from.timeZone() == from.timeZone();
    if (isKnown)
        return m_answer->events;
    Answers<CalendarEvent> events;
    for (auto& [path, page] : m_pages.byPath())
        events.add(eventsOf(page, from, to), page.lacksEvents);
    m_answer = Answer{from, to, events.joined()};
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

QList<CalendarReminder> CalendarBook::remindersOf(const QString& path, CalendarPage& page, const CalendarZone& local)
{
    Effort effort;
    QList<CalendarReminder> reminders;
    for (const CalendarSeries& series : page.content.series) {
        if (!series.isReminder() || reminders.size() >= mostReminders)
            continue;
        for (const OpenReminder& open : CalendarOccurrences::reminders(series, local, effort)) {
            ReminderKey key{open.item->uid, {}};
            QString identifier = path + u'#' + QString::fromUtf8(key.uid);
            if (const auto& change = open.item->recurrenceId) {
                key.recurrenceId = change->wallTime;
                identifier += u'#' + QString::number(change->wallTime.time_since_epoch().count());
            }
            CalendarReminder reminder{.identifier = identifier, .calendar = page.calendar, .title = open.item->title};
            if (open.due) {
                reminder.due = utc(open.due->instant(local));
                reminder.hasTime = !open.due->isDay;
            }
            reminders.append(reminder);
            m_reminders.insert(identifier, {path, key});
        }
    }
    page.lacksReminders = effort.hasRunOut || reminders.size() >= mostReminders;
    return reminders;
}

QList<CalendarReminder> CalendarBook::reminders(const QDateTime& now)
{
    const CalendarZone local(now.timeZone());
    Answers<CalendarReminder> reminders;
    m_reminders.clear();
    for (auto& [path, page] : m_pages.byPath())
        reminders.add(remindersOf(path, page, local), page.lacksReminders);
    return reminders.joined();
}

bool CalendarBook::complete(const QString& reminder, const QDateTime& now)
{
    const auto place = m_reminders.constFind(reminder);
    if (place == m_reminders.constEnd())
        return false;
    const auto stamp = FileStamp::of(place->file);
    const auto text = boundedContent(place->file, CalendarPages::mostFileBytes);
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
