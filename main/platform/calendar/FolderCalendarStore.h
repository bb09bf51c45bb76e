// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "foundation/SerialWorker.h"
#include "platform/calendar/FolderWatch.h"
#include "platform/CalendarStore.h"

#include <memory>
#include <vector>

namespace ambrelle {

class CalendarBook;

/// Where calendars are, and whose.
struct CalendarPlaces {
    QStringList folders; ///< need not exist: they are noticed when they appear; "~/" begins one in the user's home
    QStringList added{}; ///< likewise, but those of the user
    std::function<void(const QStringList& added)> keepAdded{}; ///< called when the user has changed them
    QStringList addresses{}; ///< of the user, whose declined events are left out
    std::function<bool(const QString& folder)> isRemote = CalendarFolders::isRemote;
};

/// The calendars in folders of `.ics` files, as programs that synchronise calendars write them: a folder for each
/// calendar with a file for each item, or single files with many items. Nothing is read before access is requested.
class FolderCalendarStore final : public CalendarStore {
    Q_OBJECT
public:
    /// Folders that the kernel cannot watch are looked through so often.
    static constexpr std::chrono::minutes remotePeriod{5};

    FolderCalendarStore(Clock& clock, const CalendarPlaces& places);
    FolderCalendarStore(Clock& clock, const QStringList& folders);
    ~FolderCalendarStore() override;

    /// `ambrelle/calendars` below the XDG data folder, and `~/.calendars`.
    static QStringList standardFolders();

    bool isAvailable() const override { return !m_calendars.isEmpty(); }
    QString whyNone(CalendarKind kind) const override;
    void requestAccess(QObject* context, std::function<void(bool)> done) override;
    QList<CalendarInfo> calendars() const override { return m_calendars; }
    QList<UnreadCalendar> unread() const override { return m_unread; }
    QList<CalendarSource> sources() const override;
    bool addSource(const QString& folder) override;
    void removeSource(const QString& folder) override;
    QStringList addedSources() const override { return m_places.added; }
    void setAddedSources(const QStringList& added) override;
    void events(const QDateTime& from, const QDateTime& to, const QStringList& calendars, QObject* context,
        std::function<void(const QList<CalendarEvent>&)> done) override;
    void reminders(
        const QDateTime& now, QObject* context, std::function<void(const QList<CalendarReminder>&)> done) override;
    void complete(
        const QString& reminder, const QDateTime& now, QObject* context, std::function<void(bool)> done) override;

private:
    using IsRemote = std::function<bool(const QString& folder)>;
    struct Outcome {
        bool differs = false;
        bool isSaved = false; // of a completed reminder
        QList<CalendarInfo> calendars;
        QList<UnreadCalendar> unread;
        QList<WatchedFolder> watched;
        bool isRemote = false; // any of it
    };
    template <typename Each> struct Answer {
        QList<Each> all;
        QList<UnreadCalendar> unread;
    };

    static Outcome refreshed(CalendarBook& book, const QStringList& roots, const IsRemote& isRemote);
    QStringList roots() const;
    void accept(const QList<UnreadCalendar>& unread);
    void look();
    void lookSoon();
    void accept(const Outcome& outcome);

    Clock& m_clock;
    std::shared_ptr<CalendarBook> m_book; // used on the worker's thread only
    CalendarPlaces m_places;
    FolderWatch m_watch;
    QList<CalendarInfo> m_calendars;
    QList<UnreadCalendar> m_unread;
    bool m_isOpen = false; // the first look is done
    bool m_isLooking = false;
    bool m_looksAgain = false;
    std::vector<std::function<void()>> m_waiting; // for the first look
    Ticket m_soon;
    Ticket m_remote; // while any folder is
    SerialWorker m_worker{*this, std::chrono::milliseconds(400)}; // what the user ticked off is worth a wait
};

} // namespace ambrelle
