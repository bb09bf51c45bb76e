// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarFolders.h"
#include "platform/calendar/FileStamp.h"
#include "platform/calendar/IcsParser.h"

#include <map>
#include <set>

namespace ambrelle {

/// Why a calendar file, or some of it, is not shown.
enum class PageFault { none, closed, tooLarge, noCalendar, tooMuch, tooMuchTogether };

/// A calendar file as it was read last.
struct CalendarPage {
    FileStamp stamp;
    IcsFile content; ///< empty with a fault
    QString calendar; ///< its identifier
    PageFault fault = PageFault::none;
    bool lacksEvents = false; ///< there were more than can be listed, when they were asked for last
    bool lacksReminders = false; ///< likewise
};

/// The calendar files of some folders, read once and again when they change. All together take a certain memory; beyond
/// it the largest are left out, so that none is left out for the sake of another that is larger.
class CalendarPages {
public:
    static constexpr qint64 mostFileBytes = 32LL * 1024 * 1024; ///< larger files are left out
    static constexpr std::int64_t mostBytes = 200LL * 1024 * 1024; ///< of memory, for all

    /// True when any file is new, different or gone. The owners are as IcsParser wants them.
    bool read(const QList<CalendarFolder>& folders, const QList<QByteArray>& owners);

    std::map<QString, CalendarPage>& byPath() { return m_pages; }
    const std::map<QString, CalendarPage>& byPath() const { return m_pages; }

private:
    using Pages = std::map<QString, CalendarPage>;
    bool readPage(const QString& path, Pages& old, const QList<QByteArray>& owners);
    void keep(const QString& path, CalendarPage page);
    bool bringBack(const std::map<QString, QList<QByteArray>>& owners);

    Pages m_pages;
    std::int64_t m_bytes = 0; // of the pages, but those left out
    std::set<std::pair<std::int64_t, QString>> m_bySize; // likewise
};

} // namespace ambrelle
