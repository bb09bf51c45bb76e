// SPDX-License-Identifier: MIT

#include "platform/calendar/FolderCalendarStore.h"

#include "foundation/Wording.h"
#include "platform/calendar/CalendarBook.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds settlingTime(300); // a synchronisation changes many files one after the other

QStringList wholePaths(QStringList folders)
{
    for (QString& folder : folders) {
        if (folder == u'~' || folder.startsWith("~/"_L1))
            folder.replace(0, 1, QDir::homePath());
    }
    folders.removeIf([](const QString& folder) { return !folder.startsWith(u'/'); });
    return folders;
}

} // namespace

FolderCalendarStore::FolderCalendarStore(Clock& clock, const CalendarPlaces& places)
    : m_clock(clock)
    , m_book(std::make_shared<CalendarBook>(wholePaths(places.folders), places.addresses))
    , m_isRemote(places.isRemote)
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
            .arg(QFileInfo(m_unread.first().file).fileName(), m_unread.first().reason);
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
    const auto work = [book = m_book, isRemote = m_isRemote, reminder, now] {
        const bool isSaved = book->complete(reminder, now);
        Outcome outcome = refreshed(*book, isRemote);
        outcome.isSaved = isSaved;
        return outcome;
    };
    m_worker.run(work, [this, context = QPointer(context), done = std::move(done)](const Outcome& outcome) {
        accept(outcome);
        if (context)
            done(outcome.isSaved);
    });
}

FolderCalendarStore::Outcome FolderCalendarStore::refreshed(CalendarBook& book, const IsRemote& isRemote)
{
    Outcome outcome;
    outcome.differs = book.refresh();
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
    m_worker.run([book = m_book, isRemote = m_isRemote] { return refreshed(*book, isRemote); },
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
