// SPDX-License-Identifier: MIT

#include "platform/calendar/FolderCalendarStore.h"

#include "foundation/Wording.h"
#include "platform/calendar/CalendarBook.h"

#include <QDir>
#include <QPointer>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds settlingTime(300); // a synchronisation changes many files one after the other

/// Clean and absolute; empty when it is neither that nor in the user's home.
QString wholePath(QString folder)
{
    if (folder == u'~' || folder.startsWith("~/"_L1))
        folder.replace(0, 1, QDir::homePath());
    return folder.startsWith(u'/') ? QDir::cleanPath(folder) : QString();
}

} // namespace

FolderCalendarStore::FolderCalendarStore(Clock& clock, const CalendarPlaces& places)
    : m_clock(clock)
    , m_book(std::make_shared<CalendarBook>(places.addresses))
    , m_places(places)
{
    connect(&m_watch, &FolderWatch::changed, this, &FolderCalendarStore::lookSoon);
}

FolderCalendarStore::FolderCalendarStore(Clock& clock, const QStringList& folders)
    : FolderCalendarStore(clock, CalendarPlaces{.folders = folders})
{
}

FolderCalendarStore::~FolderCalendarStore() = default;

QStringList FolderCalendarStore::standardFolders()
{
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/ambrelle/calendars"_s,
        QDir::homePath() + u"/.calendars"_s};
}

QString FolderCalendarStore::whyNone(CalendarKind kind) const
{
    if (isAvailable())
        return {};
    if (!m_unread.isEmpty())
        return Wording::tr("No calendars that can be shown. “%1”: %2", "file, sentence why not")
            .arg(m_unread.first().name(), m_unread.first().reason);
    return kind == CalendarKind::events
        ? Wording::tr("No calendars yet. Put .ics files into ~/.calendars to see events.")
        : Wording::tr("No reminders yet. Put .ics files into ~/.calendars to see them.");
}

void FolderCalendarStore::requestAccess(QObject* context, std::function<void(bool)> done)
{
    auto answer = [this, context = QPointer(context), done = std::move(done)] {
        if (context)
            done(isAvailable());
    };
    if (m_isOpen) {
        QMetaObject::invokeMethod(this, std::move(answer), Qt::QueuedConnection);
        return;
    }
    m_waiting.emplace_back(std::move(answer));
    look();
}

QList<CalendarSource> FolderCalendarStore::sources() const
{
    QList<CalendarSource> sources;
    const auto append = [&sources](const QStringList& folders, bool isAdded) {
        for (const QString& each : folders) {
            const QString folder = wholePath(each);
            if (!folder.isEmpty() && !std::ranges::count(sources, folder, &CalendarSource::folder))
                sources.append({folder, isAdded});
        }
    };
    append(m_places.folders, false);
    append(m_places.added, true);
    return sources;
}

QStringList FolderCalendarStore::roots() const
{
    QStringList roots;
    for (const CalendarSource& source : sources())
        roots.append(source.folder);
    return roots;
}

bool FolderCalendarStore::addSource(const QString& folder)
{
    const QString path = wholePath(folder);
    if (!path.isEmpty() && !roots().contains(path))
        setAddedSources(m_places.added + QStringList{path});
    return !path.isEmpty();
}

void FolderCalendarStore::removeSource(const QString& folder)
{
    QStringList added = m_places.added;
    if (added.removeIf([path = wholePath(folder)](const QString& each) { return wholePath(each) == path; }) > 0)
        setAddedSources(added);
}

void FolderCalendarStore::setAddedSources(const QStringList& added)
{
    if (std::exchange(m_places.added, added) == added)
        return;
    if (m_places.keepAdded)
        m_places.keepAdded(added);
    if (m_isOpen || m_isLooking)
        look();
    Q_EMIT changed();
}

void FolderCalendarStore::events(const QDateTime& from, const QDateTime& to, const QStringList& calendars,
    QObject* context, std::function<void(const QList<CalendarEvent>&)> done)
{
    const auto work = [book = m_book, from, to, calendars] {
        const auto all = book->events(from, to, calendars);
        return Answer<CalendarEvent>{all, book->unread()};
    };
    m_worker.run(work, [this, context = QPointer(context), done = std::move(done)](const auto& answer) {
        if (context)
            done(answer.all);
        accept(answer.unread);
    });
}

void FolderCalendarStore::reminders(
    const QDateTime& now, QObject* context, std::function<void(const QList<CalendarReminder>&)> done)
{
    const auto work = [book = m_book, now] {
        const auto all = book->reminders(now);
        return Answer<CalendarReminder>{all, book->unread()};
    };
    m_worker.run(work, [this, context = QPointer(context), done = std::move(done)](const auto& answer) {
        if (context)
            done(answer.all);
        accept(answer.unread);
    });
}

void FolderCalendarStore::complete(
    const QString& reminder, const QDateTime& now, QObject* context, std::function<void(bool)> done)
{
    const auto work = [book = m_book, roots = roots(), isRemote = m_places.isRemote, reminder, now] {
        const bool isSaved = book->complete(reminder, now);
        Outcome outcome = refreshed(*book, roots, isRemote);
        outcome.isSaved = isSaved;
        return outcome;
    };
    m_worker.run(work, [this, context = QPointer(context), done = std::move(done)](const Outcome& outcome) {
        accept(outcome);
        if (context)
            done(outcome.isSaved);
    });
}

FolderCalendarStore::Outcome FolderCalendarStore::refreshed(
    CalendarBook& book, const QStringList& roots, const IsRemote& isRemote)
{
    Outcome outcome;
    outcome.differs = book.refresh(roots);
    outcome.calendars = book.calendars();
    outcome.unread = book.unread();
    outcome.watched = book.watched();
    outcome.isRemote = std::ranges::any_of(outcome.watched, isRemote, &WatchedFolder::path);
    return outcome;
}

void FolderCalendarStore::lookSoon()
{
    if (!m_soon)
        m_soon = m_clock.after(settlingTime, [this] {
            m_soon.reset();
            look();
        });
}

void FolderCalendarStore::look()
{
    if (m_isLooking) {
        m_looksAgain = true;
        return;
    }
    m_isLooking = true;
    m_looksAgain = false;
    m_worker.run(
        [book = m_book, roots = roots(), isRemote = m_places.isRemote] { return refreshed(*book, roots, isRemote); },
        [this](const Outcome& outcome) {
            m_isLooking = false;
            m_isOpen = true;
            accept(outcome);
            for (const auto& answer : std::exchange(m_waiting, {}))
                answer();
            if (m_looksAgain)
                look();
        });
}

void FolderCalendarStore::accept(const Outcome& outcome)
{
    m_calendars = outcome.calendars;
    // What changed before the watch began is found by another look.
    if (m_watch.watch(outcome.watched))
        look();
    if (!outcome.isRemote)
        m_remote.reset();
    else if (!m_remote)
        m_remote = m_clock.every(remotePeriod, [this] { look(); });
    const bool differs = std::exchange(m_unread, outcome.unread) != outcome.unread;
    if (outcome.differs || differs)
        Q_EMIT changed();
}

void FolderCalendarStore::accept(const QList<UnreadCalendar>& unread)
{
    if (std::exchange(m_unread, unread) != unread)
        Q_EMIT changed();
}

} // namespace ambrelle
