// SPDX-License-Identifier: MIT

#include "platform/calendar/FolderCalendarStore.h"

#include "foundation/Wording.h"
#include "platform/calendar/CalendarBook.h"

#include <QDir>
#include <QPointer>
#include <QStandardPaths>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds settlingTime(300); // a synchronisation changes many files one after the other

} // namespace

FolderCalendarStore::FolderCalendarStore(Clock& clock, const QStringList& folders)
    : m_clock(clock)
    , m_book(std::make_shared<CalendarBook>(folders))
{
    connect(&m_watch, &FolderWatch::changed, this, &FolderCalendarStore::lookSoon);
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
    m_worker.run([book = m_book, from, to, calendars] { return book->events(from, to, calendars); },
        [context = QPointer(context), done = std::move(done)](const QList<CalendarEvent>& events) {
            if (context)
                done(events);
        });
}

void FolderCalendarStore::reminders(
    const QDateTime& now, QObject* context, std::function<void(const QList<CalendarReminder>&)> done)
{
    m_worker.run([book = m_book, now] { return book->reminders(now); },
        [context = QPointer(context), done = std::move(done)](const QList<CalendarReminder>& reminders) {
            if (context)
                done(reminders);
        });
}

void FolderCalendarStore::complete(
    const QString& reminder, const QDateTime& now, QObject* context, std::function<void(bool)> done)
{
    const auto work = [book = m_book, reminder, now] {
        const bool isSaved = book->complete(reminder, now);
        Outcome outcome = refresh(*book);
        outcome.isSaved = isSaved;
        return outcome;
    };
    m_worker.run(work, [this, context = QPointer(context), done = std::move(done)](const Outcome& outcome) {
        accept(outcome);
        if (context)
            done(outcome.isSaved);
    });
}

FolderCalendarStore::Outcome FolderCalendarStore::refresh(CalendarBook& book)
{
    Outcome outcome;
    outcome.differs = book.refresh();
    outcome.calendars = book.calendars();
    outcome.watched = book.watched();
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
    m_worker.run([book = m_book] { return refresh(*book); },
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
    if (outcome.differs)
        Q_EMIT changed();
}

} // namespace ambrelle
