// SPDX-License-Identifier: MIT

#include "platform/calendar/ReminderEdit.h"

#include "platform/calendar/CalendarRows.h"

#include <QTimeZone>

namespace ambrelle {
namespace {

const CalendarZone berlin(QTimeZone("Europe/Berlin"));
/// Monday, 2 June 2025, 10:00 UTC.
const std::chrono::sys_seconds now = std::chrono::sys_days(std::chrono::year(2025) / 6 / 2) + std::chrono::hours(10);

std::optional<QByteArray> completed(const QByteArray& text, const char* uid)
{
    return textWithReminderCompleted(text, {uid, {}}, now, berlin);
}

TEST(ReminderEditTest, OnlyWhatTheTickMeansChanges)
{
    const auto text = testData("calendars/tasks.ics");
    const QByteArray stamp("\r\nLAST-MODIFIED:20250602T100000Z\r\n");

    QByteArray invoice = text;
    invoice.replace(
        "DUE;VALUE=DATE:20250601\r\nSTATUS:NEEDS-ACTION\r\n", "DUE;VALUE=DATE:20250601\r\nSTATUS:COMPLETED\r\n");
    invoice.replace(
        "gefaltet\r\n", "gefaltet\r\nCOMPLETED:20250602T100000Z\r\nPERCENT-COMPLETE:100" + stamp + "SEQUENCE:1\r\n");
    EXPECT_EQ(completed(text, "invoice"), invoice);

    QByteArray last = text;
    last.replace("RRULE:FREQ=WEEKLY;COUNT=1\r\n",
        "RRULE:FREQ=WEEKLY;COUNT=1\r\nSTATUS:COMPLETED\r\nCOMPLETED:20250602T100000Z\r\nPERCENT-COMPLETE:100" + stamp
            + "SEQUENCE:1\r\n");
    EXPECT_EQ(completed(text, "last"), last);
}

TEST(ReminderEditTest, ARecurringReminderMovesOn)
{
    const auto text = testData("calendars/tasks.ics");
    QByteArray water = text;
    // The 1st is over, the 3rd an exception; three of six are left.
    water.replace("DTSTART;TZID=Europe/Berlin:20250530T080000", "DTSTART;TZID=Europe/Berlin:20250605T080000");
    water.replace("DUE;TZID=Europe/Berlin:20250530T090000", "DUE;TZID=Europe/Berlin:20250605T090000");
    water.replace("INTERVAL=2;COUNT=6", "INTERVAL=2;COUNT=3");
    water.replace("SEQUENCE:4\r\nLAST-MODIFIED:20250501T000000Z\r\nPERCENT-COMPLETE:20\r\nSTATUS:IN-PROCESS",
        "SEQUENCE:5\r\nLAST-MODIFIED:20250602T100000Z\r\nPERCENT-COMPLETE:0\r\nSTATUS:NEEDS-ACTION");
    const auto once = completed(text, "water");
    EXPECT_EQ(once, water);
    // What is due later moves by one occurrence, and ends after the last.
    QByteArray twice = *completed(*once, "water");
    EXPECT_TRUE(twice.contains("DTSTART;TZID=Europe/Berlin:20250607T080000"));
    EXPECT_TRUE(twice.contains("INTERVAL=2;COUNT=2"));
    const auto ended = completed(*completed(twice, "water"), "water");
    ASSERT_TRUE(ended);
    EXPECT_TRUE(ended->contains("DTSTART;TZID=Europe/Berlin:20250609T080000"));
    EXPECT_FALSE(completed(*ended, "water"));
}

TEST(ReminderEditTest, MovesInTheFormThatIsThere)
{
    struct Case {
        const char* what;
        QByteArray before;
        QByteArray after;
    };
    const Case cases[] = {
        {"by the due date alone", "DUE;VALUE=DATE:20250525\nRRULE:FREQ=WEEKLY\n",
            "DUE;VALUE=DATE:20250608\nRRULE:FREQ=WEEKLY\n"},
        {"today is not missed yet", "DUE;VALUE=DATE:20250601\nRRULE:FREQ=DAILY\n",
            "DUE;VALUE=DATE:20250602\nRRULE:FREQ=DAILY\n"},
        {"in UTC, the same time after the clocks changed", "DTSTART:20250301T090000Z\nRRULE:FREQ=MONTHLY\n",
            "DTSTART:20250701T090000Z\nRRULE:FREQ=MONTHLY\n"},
        {"wherever the user is", "DTSTART:20250531T230000\nRRULE:FREQ=DAILY\n",
            "DTSTART:20250602T230000\nRRULE:FREQ=DAILY\n"},
        {"to an addition", "DTSTART:20250531T230000Z\nRDATE:20250610T110000Z\n",
            "DTSTART:20250610T110000Z\nRDATE:20250610T110000Z\n"},
        {"a folded rule", "DTSTART:20250601T080000Z\nRRULE:FREQ=DAILY;COU\n NT=10\n",
            "DTSTART:20250602T080000Z\nRRULE:FREQ=DAILY;COUNT=9\n"},
    };
    const QByteArray head("BEGIN:VCALENDAR\nBEGIN:VTODO\nUID:a\n");
    const QByteArray tail("END:VTODO\nEND:VCALENDAR");
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const auto edited = completed(head + each.before + tail, "a");
        EXPECT_EQ(edited, head + each.after + "LAST-MODIFIED:20250602T100000Z\nSEQUENCE:1\n" + tail);
    }
}

TEST(ReminderEditTest, AChangedOccurrenceIsDoneByItself)
{
    const auto text = testData("calendars/tasks.ics");
    const std::chrono::local_seconds twelfth = std::chrono::local_days(std::chrono::year(2025) / 5 / 12);
    const auto edited = textWithReminderCompleted(text, {"series", twelfth}, now, berlin);
    ASSERT_TRUE(edited);
    EXPECT_TRUE(edited->contains("DUE;VALUE=DATE:20250513\r\nSTATUS:COMPLETED\r\n"));
    EXPECT_TRUE(edited->contains("DTSTART;VALUE=DATE:20250505\r\nRRULE:FREQ=WEEKLY\r\nEND:VTODO"));
}

TEST(ReminderEditTest, NothingToDo)
{
    const auto text = testData("calendars/tasks.ics");
    for (const char* uid : {"done", "cancelled", "nobody", ""})
        EXPECT_FALSE(completed(text, uid)) << uid;
    EXPECT_FALSE(completed(QByteArray(), "invoice"));
}

} // namespace
} // namespace ambrelle
