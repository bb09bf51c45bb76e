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

/// The calendars in folders of `.ics` files, as programs that synchronise calendars write them: a folder for each
/// calendar with a file for each item, or single files with many items. Nothing is read before access is requested.
class FolderCalendarStore final : public CalendarStore {
    Q_OBJECT
public:
    /// The folders need not exist; they are noticed when they appear.
    explicit FolderCalendarStore(Clock& clock, const QStringList& folders = standardFolders());
    ~FolderCalendarStore() override;

    /// `ambrelle/calendars` below the XDG data folder, and `~/.calendars`.
    static QStringList standardFolders();

    bool isAvailable() const override { return !m_calendars.isEmpty(); }
    QString whyNone(CalendarKind kind) const override;
    void requestAccess(QObject* context, std::function<void(bool)> done) override;
    QList<CalendarInfo> calendars() const override { return m_calendars; }
    void events(const QDateTime& from, const QDateTime& to, const QStringList& calendars, QObject* context,
        std::function<void(const QList<CalendarEvent>&)> done) override;
    void reminders(
        const QDateTime& now, QObject* context, std::function<void(const QList<CalendarReminder>&)> done) override;
    void complete(
        const QString& reminder, const QDateTime& now, QObject* context, std::function<void(bool)> done) override;

private:
    struct Outcome {
        bool differs = false;
        bool isSaved = false; // of a completed reminder
        QList<CalendarInfo> calendars;
        QList<WatchedFolder> watched;
    };

    static Outcome refresh(CalendarBook& book);
    void look();
    void lookSoon();
    void accept(const Outcome& outcome);

    Clock& m_clock;
    std::shared_ptr<CalendarBook> m_book; // used on the worker's thread only
    FolderWatch m_watch;
    QList<CalendarInfo> m_calendars;
    bool m_isOpen = false; // the first look is done
    bool m_isLooking = false;
    bool m_looksAgain = false;
    std::vector<std::function<void()>> m_waiting; // for the first look
    Ticket m_soon;
    SerialWorker m_worker{*this};
};

} // namespace ambrelle
