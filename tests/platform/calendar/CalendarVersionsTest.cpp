// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarRows.h"

#include <gmock/gmock.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CalendarVersionsTest, ChangedOccurrencesStandForTheirOriginals)
{
    const QByteArray head("BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\nSUMMARY:Plain\nDTSTART:20250602T100000Z\n"
                          "RRULE:FREQ=DAILY;COUNT=3\nEND:VEVENT\n");
    const auto change = [](const char* lines) { return QByteArray("BEGIN:VEVENT\nUID:a\n") + lines + "END:VEVENT\n"; };
    const QDateTime monday = dayIn("UTC", "2025-06-02");
    const auto rows = [&](const QByteArray& text) { return eventRows(text, monday, monday.addDays(2)); };
    const QString plain = u"06-02 10:00 to 06-02 10:00 Plain"_s;
    // Moved out of the days shown, and into them from outside.
    EXPECT_THAT(rows(head + change("RECURRENCE-ID:20250603T100000Z\nDTSTART:20250610T100000Z\nSUMMARY:X\n")),
        ElementsAre(plain));
    EXPECT_THAT(rows(head + change("RECURRENCE-ID:20250604T100000Z\nDTSTART:20250603T120000Z\nSUMMARY:X\n")),
        ElementsAre(plain, u"06-03 10:00 to 06-03 10:00 Plain"_s, u"06-03 12:00 to 06-03 12:00 X"_s));
    // Without their series in the file they stand alone; of a cancelled series nothing is left.
    const auto alone = change("RECURRENCE-ID:20250603T100000Z\nDTSTART:20250603T110000Z\nSUMMARY:X\n");
    EXPECT_THAT(rows("BEGIN:VCALENDAR\n" + alone), ElementsAre(u"06-03 11:00 to 06-03 11:00 X"_s));
    EXPECT_THAT(
        rows("BEGIN:VCALENDAR\n" + alone + change("DTSTART:20250602T100000Z\nRRULE:FREQ=DAILY\nSTATUS:CANCELLED\n")),
        IsEmpty());
    // Of two versions the later one counts.
    EXPECT_THAT(rows(head + change("SEQUENCE:2\nDTSTART:20250602T110000Z\nSUMMARY:New\n")
                    + change("SEQUENCE:1\nDTSTART:20250602T120000Z\nSUMMARY:Old\n")),
        ElementsAre(u"06-02 11:00 to 06-02 11:00 New"_s));
}

TEST(CalendarVersionsTest, OfVersionsOfOneOccurrenceTheLastCounts)
{
    const QDateTime monday = dayIn("UTC", "2025-06-02");
    const auto rows = [&](const QList<QByteArray>& events) {
        QByteArray text("BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\nSUMMARY:Plain\nDTSTART:20250602T100000Z\n"
                        "RRULE:FREQ=DAILY;COUNT=2\nEND:VEVENT\n");
        for (const QByteArray& event : events)
            text += "BEGIN:VEVENT\nUID:a\nRECURRENCE-ID:20250603T100000Z\n" + event + "END:VEVENT\n";
        return eventRows(text, monday, monday.addDays(7)).mid(1);
    };
    const QByteArray eleven("DTSTART:20250603T110000Z\nSUMMARY:Eleven\n");
    const QByteArray noon("DTSTART:20250603T120000Z\nSUMMARY:Noon\n");
    const QStringList atEleven{u"06-03 11:00 to 06-03 11:00 Eleven"_s};
    const QStringList atNoon{u"06-03 12:00 to 06-03 12:00 Noon"_s};
    EXPECT_EQ(rows({"SEQUENCE:3\n" + eleven, "SEQUENCE:2\n" + noon}), atEleven);
    EXPECT_EQ(rows({eleven, noon}), atNoon);
    EXPECT_EQ(rows({noon, noon}), atNoon);
    EXPECT_EQ(rows({"LAST-MODIFIED:20250601T000000Z\n" + eleven, "LAST-MODIFIED:20250501T000000Z\n" + noon}), atEleven);
    EXPECT_EQ(rows({eleven, "SEQUENCE:1\nSTATUS:CANCELLED\n" + noon}), QStringList());
}

TEST(CalendarVersionsTest, EventsThatShareAnIdentifierAreVersionsOnlyIfTheySaySo)
{
    const QDateTime monday = dayIn("UTC", "2025-06-02");
    const auto rows = [&](const QByteArray& linesOfSecond) {
        return eventRows("BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\nSUMMARY:One\nLAST-MODIFIED:20250501T000000Z\n"
                         "DTSTART:20250602T100000Z\nEND:VEVENT\nBEGIN:VEVENT\nUID:a\n"
                + linesOfSecond + "END:VEVENT\n",
            monday, monday.addDays(7));
    };
    const QByteArray same("SUMMARY:One\nLAST-MODIFIED:20250501T000000Z\nDTSTART:20250602T100000Z\n");
    const QByteArray other("SUMMARY:Two\nDTSTART:20250603T100000Z\n");
    const QString one = u"06-02 10:00 to 06-02 10:00 One"_s;
    const QString two = u"06-03 10:00 to 06-03 10:00 Two"_s;
    EXPECT_EQ(rows("LAST-MODIFIED:20250501T000000Z\n" + other), QStringList({one, two}));
    EXPECT_EQ(rows("LAST-MODIFIED:20250502T000000Z\n" + other), QStringList(two));
    EXPECT_EQ(rows("SEQUENCE:1\n" + other), QStringList(two));
    EXPECT_EQ(rows(same), QStringList(one));
}

TEST(CalendarVersionsTest, AChangeMayHoldFromAnOccurrenceOn)
{
    const QDateTime monday = dayIn("Europe/Berlin", "2025-03-27");
    const auto rows = [&](const QByteArray& changes) {
        return eventRows(
            "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\nSUMMARY:Old\nDTSTART;TZID=Europe/Berlin:20250101T100000\n"
            "DTEND;TZID=Europe/Berlin:20250101T110000\nRRULE:FREQ=DAILY;UNTIL=20250331T080000Z\nEND:VEVENT\n"
                + changes,
            monday, monday.addDays(7));
    };
    const auto from = [](const char* day, const QByteArray& lines) {
        return "BEGIN:VEVENT\nUID:a\nRECURRENCE-ID;RANGE=THISANDFUTURE;TZID=Europe/Berlin:202503" + QByteArray(day)
            + "T100000\n" + lines + "END:VEVENT\n";
    };
    const QString thursday = u"03-27 09:00 to 03-27 10:00 Old"_s;
    // Two hours later and for half an hour, also where the clocks have changed.
    const QByteArray later = from(
        "28", "SUMMARY:New\nDTSTART;TZID=Europe/Berlin:20250328T120000\nDTEND;TZID=Europe/Berlin:20250328T123000\n");
    const QString friday = u"03-28 11:00 to 03-28 11:30 New"_s;
    const QString saturday = u"03-29 11:00 to 03-29 11:30 New"_s;
    EXPECT_EQ(rows(later),
        QStringList(
            {thursday, friday, saturday, u"03-30 10:00 to 03-30 10:30 New"_s, u"03-31 10:00 to 03-31 10:30 New"_s}));
    // Single changes and later ones go before it, and it may be the end.
    EXPECT_EQ(rows(later
                  + "BEGIN:VEVENT\nUID:a\nRECURRENCE-ID:20250329T090000Z\nSUMMARY:Once\n"
                    "DTSTART:20250329T070000Z\nEND:VEVENT\n"
                  + from("30", "STATUS:CANCELLED\nDTSTART;TZID=Europe/Berlin:20250330T100000\n")),
        QStringList({thursday, friday, u"03-29 07:00 to 03-29 07:00 Once"_s}));
    // Moved by weeks, out of the days shown and into them.
    EXPECT_EQ(rows(from("28", "SUMMARY:New\nDTSTART;TZID=Europe/Berlin:20250428T100000\n")), QStringList(thursday));
    EXPECT_EQ(rows(from("01", "SUMMARY:New\nDTSTART;VALUE=DATE:20250331\n")),
        QStringList({u"03-31 to 04-01 New"_s, u"04-01 to 04-02 New"_s, u"04-02 to 04-03 New"_s}));
}

TEST(CalendarVersionsTest, DeclinedInvitationsAreLeftOutWhereTheUserIsKnown)
{
    const QDateTime monday = dayIn("UTC", "2025-06-02");
    const auto guest = [](const QByteArray& status, const QByteArray& address) {
        return "ATTENDEE;CN=\"A: B\";PARTSTAT=" + status + ":mailto:" + address + "\n";
    };
    const auto rows = [&](const QByteArray& head, const QByteArray& lines, const QList<QByteArray>& owners = {}) {
        return eventRows("BEGIN:VCALENDAR\n" + head
                + "BEGIN:VEVENT\nUID:a\nSUMMARY:A\nDTSTART:20250602T100000Z\n"
                  "RRULE:FREQ=DAILY;COUNT=2\n"
                + lines
                + "END:VEVENT\nBEGIN:VEVENT\nUID:a\nSUMMARY:A\nRECURRENCE-ID:20250603T100000Z\n"
                  "DTSTART:20250603T110000Z\nEND:VEVENT\n",
            monday, monday.addDays(7), owners)
            .size();
    };
    const QByteArray mine = guest("DECLINED", "Me@Example.org") + guest("ACCEPTED", "you@example.org");
    const QByteArray yours = guest("ACCEPTED", "me@example.org") + guest("DECLINED", "you@example.org");
    EXPECT_EQ(rows({}, mine), 2);
    EXPECT_EQ(rows({}, mine, {"other@example.org", "me@example.org"}), 1); // the change was not declined
    EXPECT_EQ(rows({}, yours, {"me@example.org"}), 2);
    EXPECT_EQ(rows("X-WR-CALNAME:me@example.org\n", mine), 1);
    EXPECT_EQ(rows("X-WR-CALNAME:Office\n", mine), 2);
}

} // namespace
} // namespace ambrelle
