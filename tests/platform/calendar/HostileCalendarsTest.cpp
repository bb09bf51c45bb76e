// SPDX-License-Identifier: MIT

#include "platform/calendar/HostileCalendars.h"
#include "platform/calendar/CalendarBook.h"
#include "platform/calendar/CalendarTexts.h"
#include "support/TestFolder.h"

#include <QTimeZone>

#include <gmock/gmock.h>

#include <ctime>

#include <malloc.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

constexpr double mostSeconds = 2;
constexpr double mostMegabytes = 100;
#ifdef __SANITIZE_ADDRESS__
// The checks keep what was freed for a while, and ask at every step: what counts then is that they find nothing.
constexpr double slower = 100;
const std::vector<qsizetype> sizes{100'000};
#else
constexpr double slower = 1;
const std::vector<qsizetype> sizes{1'000'000, 10'000'000};
#endif

double threadSeconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// Of this process, as the kernel counts it.
double megabytes(const char* line)
{
    QFile status(u"/proc/self/status"_s);
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray& each : status.readAll().split('\n')) {
        if (each.startsWith(line))
            return each.mid(each.indexOf(':') + 1).simplified().split(' ').first().toDouble() / 1024;
    }
    ADD_FAILURE() << line;
    return 0;
}

/// Makes the present use the peak.
void forgetPeak()
{
    ::malloc_trim(0);
    QFile peak(u"/proc/self/clear_refs"_s);
    EXPECT_TRUE(peak.open(QIODevice::WriteOnly));
    EXPECT_EQ(peak.write("5"), 1);
}

/// The smaller ones are read, and ask when events are wanted; the large ones already while they are read.
class HostileCalendarsTest : public ::testing::TestWithParam<qsizetype> { };

TEST_P(HostileCalendarsTest, NoneTakesMuchOrHidesAnother)
{
    const QDateTime monday(QDate(2025, 6, 2), QTime(0, 0), QTimeZone("Europe/Berlin"));
    for (const HostileCalendar& hostile : hostileCalendars()) {
        SCOPED_TRACE(hostile.what);
        const TestFolder folder;
        folder.write(u"a hostile.ics"_s, hostile.text(GetParam()));
        folder.write(u"b good.ics"_s,
            "BEGIN:VCALENDAR\nBEGIN:VEVENT\nSUMMARY:Good\nDTSTART:20250605T100000Z\nEND:VEVENT\n"
            "BEGIN:VTODO\nSUMMARY:Good\nEND:VTODO\nEND:VCALENDAR\n");
        forgetPeak();
        const double memory = megabytes("VmRSS");
        const double before = threadSeconds();
        CalendarBook book;
        book.refresh({folder.path()});
        const double read = threadSeconds();
        EXPECT_TRUE(
            titlesOf(book.events(monday, monday.addDays(7), identifiersOf(book.calendars()))).contains(u"Good"_s));
        const auto reminders = book.reminders(monday);
        const double answered = threadSeconds();
        EXPECT_TRUE(std::ranges::any_of(reminders, [](const auto& each) { return each.title == "Good"_L1; }));
        const double used = megabytes("VmHWM") - memory;
        EXPECT_LT(answered - before, mostSeconds * slower);
        EXPECT_LT(used, mostMegabytes * slower);
        const auto unread = book.unread();
        std::printf("%-45s read %.2f s, answers %.2f s, %5.1f MB %s\n", hostile.what, read - before, answered - read,
            used, unread.isEmpty() ? "" : qPrintable(unread.first().reason));
    }
}

INSTANTIATE_TEST_SUITE_P(Bytes, HostileCalendarsTest, ::testing::ValuesIn(sizes));

} // namespace
} // namespace ambrelle
