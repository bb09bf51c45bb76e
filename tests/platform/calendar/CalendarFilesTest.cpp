// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarRows.h"

#include <gmock/gmock.h>

#include <random>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

QStringList weekOf(const QByteArray& lines, const char* zone = "Europe/Berlin")
{
    const QDateTime monday = dayIn(zone, "2025-06-02");
    return eventRows(calendarWith("VEVENT", lines), monday, monday.addDays(7));
}

// The expected rows of these files come from python-dateutil and from the system's time zone tables.
TEST(CalendarFilesTest, AWeekOfAWebCalendarAcrossTheChangeOfTheClocks)
{
    const auto text = testData("calendars/web-calendar.ics");
    const QDateTime from = dayIn("Europe/Berlin", "2025-03-26");
    const QStringList expected{u"03-26 21:00 to 03-26 22:30 Call with Boston"_s,
        u"03-27 20:00 to 03-27 21:30 Concert"_s, u"03-28 13:00 to 03-28 13:30 Stand-up, later"_s,
        u"03-29 to 04-01 Trade fair"_s, u"03-30 00:30 to 03-30 01:30 Night shift"_s,
        u"04-02 07:00 to 04-02 07:15 Stand-up"_s};
    EXPECT_EQ(eventRows(text, from, from.addDays(10)), expected);
    // Days move with the user. What has no zone stays where the calendar is, or moves where the calendar does not say.
    const QDateTime there = dayIn("America/New_York", "2025-03-30");
    EXPECT_EQ(eventRows(text, there, there.addDays(1)), QStringList({u"03-29 to 04-01 Trade fair"_s}));
    EXPECT_EQ(eventRows(QByteArray(text).replace("X-WR-TIMEZONE", "X-OTHER"), there, there.addDays(1)),
        QStringList({u"03-29 to 04-01 Trade fair"_s, u"03-30 05:30 to 03-30 07:30 Night shift"_s}));

    const IcsFile file = IcsParser::parsed(view(text));
    EXPECT_EQ(file.name, u"Work, mostly"_s);
    EXPECT_EQ(file.color, QColor(0x1B, 0xAD, 0xF8));
}

TEST(CalendarFilesTest, ZonesAreFoundByAnyOfTheirNamesOrTheirRules)
{
    const QDateTime from = dayIn("UTC", "2025-03-30");
    const QStringList expected{u"03-31 06:00 to 03-31 06:30 No zone definition"_s,
        u"03-31 07:00 to 03-31 08:00 Fortnightly review"_s, u"03-31 to 04-02 Books closed"_s,
        u"04-01 00:00 to 04-01 01:00 Tokyo"_s, u"04-02 to 04-03 Founders' day"_s, u"04-03 00:00 to 04-03 01:00 Tokyo"_s,
        u"04-04 01:00 to 04-04 02:00 Tokyo"_s};
    EXPECT_EQ(eventRows(testData("calendars/office-suite.ics"), from, from.addDays(7)), expected);
    const QDateTime winter = dayIn("UTC", "2025-03-16");
    EXPECT_THAT(eventRows(testData("calendars/office-suite.ics"), winter, winter.addDays(7)),
        ElementsAre(u"03-17 08:00 to 03-17 09:00 Fortnightly review"_s));
}

TEST(CalendarFilesTest, HowLongAndHowOften)
{
    struct Case {
        const char* what;
        QByteArray lines;
        QStringList rows;
    };
    const Case cases[] = {
        {"without an end: a moment", "DTSTART:20250602T100000Z\r\n", {u"06-02 10:00 to 06-02 10:00 One"_s}},
        {"a day without an end", "DTSTART;VALUE=DATE:20250602\r\n", {u"06-02 to 06-03 One"_s}},
        {"a day ending on itself", "DTSTART;VALUE=DATE:20250602\r\nDTEND;VALUE=DATE:20250602\r\n",
            {u"06-02 to 06-03 One"_s}},
        {"a date without VALUE", "DTSTART:20250602\r\n", {u"06-02 to 06-03 One"_s}},
        {"ends before it starts", "DTSTART:20250602T100000Z\r\nDTEND:20250602T090000Z\r\n",
            {u"06-02 10:00 to 06-02 10:00 One"_s}},
        {"ends in another zone",
            "DTSTART;TZID=Europe/London:20250602T100000\r\nDTEND;TZID=Europe/Paris:20250602T120000\r\n",
            {u"06-02 09:00 to 06-02 10:00 One"_s}},
        {"began last week", "DTSTART:20250530T100000Z\r\nDURATION:P1W\r\n", {u"05-30 10:00 to 06-06 10:00 One"_s}},
        {"ended as the week began", "DTSTART;VALUE=DATE:20250601\r\n", {}},
        {"begins as the week ends", "DTSTART;VALUE=DATE:20250609\r\n", {}},
        {"an exception by day",
            "DTSTART:20250602T100000Z\r\nRRULE:FREQ=DAILY;COUNT=3\r\nEXDATE;VALUE=DATE:20250603\r\n",
            {u"06-02 10:00 to 06-02 10:00 One"_s, u"06-04 10:00 to 06-04 10:00 One"_s}},
        {"exceptions in another zone, in one line",
            "DTSTART;TZID=Europe/Berlin:20250602T100000\r\nRRULE:FREQ=DAILY;COUNT=4\r\n"
            "EXDATE:20250603T080000Z,20250604T080000Z\r\n",
            {u"06-02 08:00 to 06-02 08:00 One"_s, u"06-05 08:00 to 06-05 08:00 One"_s}},
        {"until a day, that day included", "DTSTART:20250602T220000Z\r\nRRULE:FREQ=DAILY;UNTIL=20250603\r\n",
            {u"06-02 22:00 to 06-02 22:00 One"_s, u"06-03 22:00 to 06-03 22:00 One"_s}},
        {"days until a moment", "DTSTART;VALUE=DATE:20250602\r\nRRULE:FREQ=DAILY;UNTIL=20250603T000000Z\r\n",
            {u"06-02 to 06-03 One"_s, u"06-03 to 06-04 One"_s}},
        {"a start that the rule would not give", "DTSTART:20250602T100000Z\r\nRRULE:FREQ=WEEKLY;BYDAY=TU\r\n",
            {u"06-02 10:00 to 06-02 10:00 One"_s, u"06-03 10:00 to 06-03 10:00 One"_s}},
        {"a damaged rule leaves the start", "DTSTART:20250602T100000Z\r\nRRULE:FREQ=OFTEN\r\n",
            {u"06-02 10:00 to 06-02 10:00 One"_s}},
        {"began a hundred and fifty years ago", "DTSTART:18750602T100000Z\r\nDURATION:P8000W\r\n",
            {u"06-02 10:00 to 09-27 10:00 One"_s}},
        {"days do not know hours",
            "DTSTART;VALUE=DATE:20250602\r\nRRULE:FREQ=WEEKLY;BYDAY=MO,TU;BYHOUR=9,17;BYMINUTE=30;BYSECOND=1\r\n",
            {u"06-02 to 06-03 One"_s, u"06-03 to 06-04 One"_s}},
        {"days by the hour", "DTSTART;VALUE=DATE:20250602\r\nRRULE:FREQ=HOURLY;INTERVAL=6;COUNT=8\r\n",
            {u"06-02 to 06-03 One"_s, u"06-03 to 06-04 One"_s}},
        {"an addition that is a period", "DTSTART:20250601T100000Z\r\nRDATE;VALUE=PERIOD:20250604T100000Z/PT1H\r\n",
            {u"06-04 10:00 to 06-04 10:00 One"_s}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        EXPECT_EQ(weekOf(each.lines), each.rows);
    }
}

TEST(CalendarFilesTest, ZonesByAllTheirNames)
{
    struct Case {
        const char* name; ///< as the parameter has it
        const char* hour; ///< in UTC, of eight in June
    };
    const Case cases[] = {{"US/Eastern", "12"}, {"EST5EDT", "12"}, {"CET", "06"}, {"Europe/Kiev", "05"},
        {"Asia/Calcutta", "02:30"}, {"/freeassociation.example/Tzfile/Asia/Calcutta", "02:30"},
        {"Eastern Standard Time", "12"}, {"\"UTC+02:00\"", "06"}, {"\"(UTC-05:00) Eastern Time (US & Canada)\"", "12"},
        {"(UTC-05:00) Eastern Time (US & Canada)", "12"}, {"\"(UTC+07:00) Bangkok, Hanoi, Jakarta\"", "01"},
        {"\"(GMT+01:00) Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna\"", "06"},
        {"\"(UTC-06:00) Central America\"", "14"}, {"\"(UTC) Nowhere\"", "08"},
        // The user's own.
        {"Eastern", "23"}, {"Nowhere/Land", "23"}, {"../../../etc/passwd", "23"}, {"GMT+2", "23"}, {"", "23"}};
    const QDateTime from = dayIn("Asia/Tokyo", "2025-06-01");
    for (const Case& each : cases) {
        const auto rows =
            eventRows(calendarWith("VEVENT", QByteArray("DTSTART;TZID=") + each.name + ":20250602T080000\r\n"), from,
                from.addDays(3));
        ASSERT_EQ(rows.size(), 1) << each.name;
        EXPECT_TRUE(rows.first().sliced(6).startsWith(QLatin1StringView(each.hour)))
            << each.name << ' ' << qPrintable(rows.first());
    }
}

TEST(CalendarFilesTest, AZoneIsFoundWhateverWayItsNameIsWritten)
{
    const QDateTime from = dayIn("UTC", "2025-06-01");
    const QByteArray zone(
        "BEGIN:VTIMEZONE\nTZID:Ours (UTC+07:00) Bangkok\\, Hanoi\\, Jak\n arta\nBEGIN:STANDARD\n"
        "DTSTART:16010101T000000\nTZOFFSETFROM:+0330\nTZOFFSETTO:+0330\nEND:STANDARD\nEND:VTIMEZONE\n");
    for (const char* name : {"\"Ours (UTC+07:00) Bangkok, Hanoi, Jakarta\"",
             "Ours (UTC+07:00) Bangkok\\, Hanoi\\, Jakarta", "\"Ours (UTC+07:00) Bang\n kok\\, Hanoi\\, Jakarta\""}) {
        const QByteArray event = QByteArray("BEGIN:VEVENT\nDTSTART;TZID=") + name + ":20250602T080000\nEND:VEVENT\n";
        for (const QByteArray& text : {zone + event, event + zone})
            EXPECT_EQ(eventRows("BEGIN:VCALENDAR\n" + text, from, from.addDays(7)),
                QStringList(u"06-02 04:30 to 06-02 04:30 "_s))
                << name;
    }
}

TEST(CalendarFilesTest, TitlesInAnyWriting)
{
    const std::pair<QByteArray, const char16_t*> cases[] = {
        {"SUMMARY:Lunch\\, then\\nthe \\;rest", u"Lunch, then the ;rest"},
        {"summary;language=de:K\xC3\r\n \xA4se", u"Käse"},
        {"SUMMARY;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:K=C3=A4se =\r\nund Brot=0D=0Amit =3D",
            u"Käse und Brot mit ="},
        {"SUMMARY;CHARSET=ISO-8859-1;ENCODING=quoted-printable:K=E4se", u"Käse"}, {"SUMMARY:", u""},
        {"SUMMARY;ALTREP=\"http://a.example/:x\":100=25", u"100=25"}};
    const QDateTime from = dayIn("UTC", "2025-06-01");
    for (const auto& [line, title] : cases)
        EXPECT_EQ(
            eventRows("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\n" + line + "\r\nDTSTART:20250602T080000Z\r\nEND:VEVENT\r\n",
                from, from.addDays(7)),
            QStringList(u"06-02 08:00 to 06-02 08:00 "_s + QString::fromUtf16(title)))
            << line.constData();
}

TEST(CalendarFilesTest, WallTimesThatComeTwiceOrNever)
{
    const auto berlin = CalendarZone::named("Europe/Berlin");
    const CalendarZone byRules(std::chrono::hours(1),
        {{std::chrono::sys_days(std::chrono::year(2025) / 3 / 30) + std::chrono::hours(1), std::chrono::hours(2)},
            {std::chrono::sys_days(std::chrono::year(2025) / 10 / 26) + std::chrono::hours(1), std::chrono::hours(1)}});
    struct Case {
        const char* wallTime;
        const char* utc;
    };
    for (const Case& each : {Case{"2025-03-30T01:59:59", "2025-03-30T00:59:59"},
             Case{"2025-03-30T02:30:00", "2025-03-30T01:30:00"}, Case{"2025-03-30T03:00:00", "2025-03-30T01:00:00"},
             Case{"2025-10-26T02:30:00", "2025-10-26T00:30:00"}, Case{"2025-10-26T03:00:00", "2025-10-26T02:00:00"}}) {
        const auto at = [](const char* text) {
            auto moment = QDateTime::fromString(QLatin1StringView(text), Qt::ISODate);
            moment.setTimeSpec(Qt::UTC);
            return instantOf(moment);
        };
        const std::chrono::local_seconds wallTime(at(each.wallTime).time_since_epoch());
        EXPECT_EQ(berlin->instant(wallTime), at(each.utc)) << each.wallTime;
        EXPECT_EQ(byRules.instant(wallTime), at(each.utc)) << each.wallTime;
    }
}

TEST(CalendarFilesTest, ColoursInAllTheirForms)
{
    const std::pair<const char*, QColor> cases[] = {{"#FF0000", QColor(255, 0, 0)}, {"#00ff0080", QColor(0, 255, 0)},
        {" turquoise\n", QColor(0x40, 0xE0, 0xD0)}, {"#12", {}}, {"no colour", {}}, {"", {}}};
    for (const auto& [text, color] : cases)
        EXPECT_EQ(calendarColor(QString::fromLatin1(text)), color) << text;
}

TEST(CalendarFilesTest, WhatIsDamagedIsLeftOutAndTheRestRead)
{
    const QByteArray good("BEGIN:VEVENT\nUID:good\nSUMMARY:Good\nDTSTART:20250602T100000Z\nEND:VEVENT\n");
    const QStringList goodRow{u"06-02 10:00 to 06-02 10:00 Good"_s};
    QByteArray nested;
    for (int i = 0; i < 100'000; ++i)
        nested += "BEGIN:VALARM\n";
    struct Case {
        const char* what;
        QByteArray text;
        QStringList rows;
    };
    const Case cases[] = {
        {"nothing", "", {}},
        {"no calendar", "<html>BEGIN:VCALENDAR\n" + good, {}},
        {"a byte order mark and blank lines", "\xEF\xBB\xBF\r\n\r\nBEGIN:VCALENDAR\n" + good, goodRow},
        {"cut off in an event", "BEGIN:VCALENDAR\n" + good + "BEGIN:VEVENT\nUID:x\nDTSTART:20250602", goodRow},
        {"an event that never ends", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20250602T100000Z\n" + good, goodRow},
        {"an alarm that never ends",
            "BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20250602T090000Z\nBEGIN:VALARM\nTRIGGER:-PT1H\nEND:VEVENT\n" + good,
            {u"06-02 09:00 to 06-02 09:00 "_s, goodRow.first()}},
        {"ends of nothing", "BEGIN:VCALENDAR\nEND:VEVENT\nEND:VALARM\nEND:VCALENDAR\nBEGIN:VCALENDAR\n" + good,
            goodRow},
        {"bottomless nesting", "BEGIN:VCALENDAR\nBEGIN:VEVENT\n" + nested + good, goodRow},
        {"an event inside something unknown",
            "BEGIN:VCALENDAR\nBEGIN:VJOURNAL\nBEGIN:X-Y\n" + good + "END:X-Y\nEND:VJOURNAL\n", goodRow},
        {"no start, a start that is text, the 31st of June",
            "BEGIN:VCALENDAR\nBEGIN:VEVENT\nEND:VEVENT\nBEGIN:VEVENT\nDTSTART;VALUE=TEXT:soon\nEND:VEVENT\n"
            "BEGIN:VEVENT\nDTSTART:20250631T250000Z\nEND:VEVENT\n"
                + good,
            goodRow},
        {"bytes that are no text",
            QByteArray("BEGIN:VCALENDAR\n") + '\0' + "\xFF\xFE\nBEGIN:VEVENT\nSUMMARY:a" + '\0'
                + "b\nDTSTART:20250602T090000Z\nEND:VEVENT\n" + good,
            {u"06-02 09:00 to 06-02 09:00 "_s, goodRow.first()}},
        {"a zone that changes every second, and one that does not say how",
            "BEGIN:VCALENDAR\nBEGIN:VTIMEZONE\nTZID:Odd\nBEGIN:STANDARD\nDTSTART:19700101T000000\nTZOFFSETFROM:+0000\n"
            "TZOFFSETTO:+0100\nRRULE:FREQ=SECONDLY\nEND:STANDARD\nEND:VTIMEZONE\nBEGIN:VTIMEZONE\nTZID:Mute\n"
            "END:VTIMEZONE\nBEGIN:VEVENT\nUID:z\nSUMMARY:Z\nDTSTART;TZID=Odd:20250602T100000\nEND:VEVENT\n"
            "BEGIN:VEVENT\nUID:y\nSUMMARY:Y\nDTSTART;TZID=Mute:20250602T100000\nEND:VEVENT\n",
            {u"06-02 09:00 to 06-02 09:00 Z"_s, u"06-02 10:00 to 06-02 10:00 Y"_s}},
    };
    const QDateTime monday = dayIn("UTC", "2025-06-02");
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        EXPECT_EQ(eventRows(each.text, monday, monday.addDays(7)).join(u'\n').toStdString(),
            each.rows.join(u'\n').toStdString());
    }
}

TEST(CalendarFilesTest, EndlessRecurrencesKeepToTheWindowAndToTheEffort)
{
    struct Case {
        const char* rule;
        qsizetype most; ///< rows of the week, the start among them
    };
    const Case cases[] = {
        {"FREQ=DAILY", 7},
        {"FREQ=DAILY;COUNT=2147483647", 7},
        {"FREQ=SECONDLY", 2800},
        {"FREQ=SECONDLY;COUNT=2000000000", 0},
        {"FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30", 0},
        {"FREQ=HOURLY;INTERVAL=32767;BYMONTH=2;BYMONTHDAY=30", 0},
        {"FREQ=YEARLY;INTERVAL=32767;COUNT=99", 0},
        {"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", 0},
        {"FREQ=MONTHLY;INTERVAL=30000", 0},
        {"RSCALE=CHINESE;FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30", 0},
    };
    for (const Case& each : cases) {
        const auto rows = weekOf(QByteArray("DTSTART:19010101T000000Z\r\nRRULE:") + each.rule + "\r\n", "UTC");
        EXPECT_EQ(rows.size(), each.most) << each.rule;
    }
    EXPECT_EQ(weekOf("DTSTART:00010101T000000Z\r\nDURATION:P99999999W\r\nRRULE:FREQ=DAILY\r\n", "UTC").size(), 10'000);
}

TEST(CalendarFilesTest, AnyMutationOfAFileIsRead)
{
    std::mt19937 random(20250602);
    const auto number = [&random](qsizetype below) {
        return static_cast<qsizetype>(random() % static_cast<std::size_t>(below));
    };
    const QDateTime from = dayIn("Europe/Berlin", "2025-03-24");
    const CalendarZone local(from.timeZone());
    int occurrences = 0;
    int reminders = 0;
    for (const char* name : {"calendars/web-calendar.ics", "calendars/office-suite.ics", "calendars/tasks.ics"}) {
        const auto original = testData(name);
        const auto lines = original.split('\n');
        for (int round = 0; round < 300; ++round) {
            QByteArray text = original;
            for (int change = 0; change < 4; ++change) {
                const auto at = number(text.size());
                switch (number(4)) {
                case 0: text[at] = static_cast<char>(number(256)); break;
                case 1: text.remove(at, number(40)); break;
                case 2: text.insert(at, lines[number(lines.size())] + "\n"); break;
                default: text.insert(at, QByteArray::number(random())); break;
                }
            }
            Effort effort;
            const IcsFile file = IcsParser::parsed(view(text));
            for (const auto& series : file.series) {
                if (series.isReminder()) {
                    reminders += static_cast<int>(CalendarOccurrences::reminders(series, local, effort).size());
                    continue;
                }
                for (const auto& event :
                    CalendarOccurrences::events(series, instantOf(from), instantOf(from.addDays(7)), local, effort)) {
                    ++occurrences;
                    ASSERT_LE(event.start, event.end);
                    ASSERT_LT(event.start, instantOf(from.addDays(7)));
                    ASSERT_GE(event.end, instantOf(from));
                }
            }
        }
    }
    EXPECT_GT(reminders, 1000);
    EXPECT_GT(occurrences, 1000);
}

} // namespace
} // namespace ambrelle
