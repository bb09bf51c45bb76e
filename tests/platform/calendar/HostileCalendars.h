// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>
#include <vector>

namespace ambrelle {

/// Calendar files of a given size that ask for as much time or memory as they can, one for each way to do so.
struct HostileCalendar {
    const char* what;
    std::function<QByteArray(qsizetype bytes)> text;
};

/// Repeats what `part` gives for 0, 1, 2 … between the two texts.
template <typename Part>
QByteArray repeated(const QByteArray& head, const Part& part, const QByteArray& tail, qsizetype bytes)
{
    QByteArray text = head;
    text.reserve(bytes + 1000);
    for (int number = 0; text.size() + tail.size() < bytes; ++number)
        text += part(number);
    return text + tail;
}

namespace hostile {

inline const QByteArray begin("BEGIN:VEVENT\nUID:a\nDTSTART:20250602T100000Z\nRRULE:FREQ=DAILY\n");
inline const QByteArray end("END:VEVENT\n");
inline const QByteArray often("BYHOUR=0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23");

/// A calendar of `line` as often as it fits between the two texts.
inline auto one(const QByteArray& head, const QByteArray& line, const QByteArray& tail)
{
    return [=](qsizetype bytes) {
        const auto part = [&](int) { return line; };
        return repeated("BEGIN:VCALENDAR\n" + head, part, tail + "END:VCALENDAR\n", bytes);
    };
}

/// A calendar of as many components as fit.
inline auto many(const std::function<QByteArray(const QByteArray& number)>& component)
{
    return [=](qsizetype bytes) {
        const auto part = [&](int number) { return component(QByteArray::number(number)); };
        return repeated("BEGIN:VCALENDAR\n", part, "END:VCALENDAR\n", bytes);
    };
}

inline QByteArray event(const QByteArray& uid, const QByteArray& lines)
{
    return "BEGIN:VEVENT\nUID:" + uid + "\n" + lines + "END:VEVENT\n";
}

inline auto events(const QByteArray& lines)
{
    return many([=](const QByteArray& number) { return event(number, lines); });
}

inline QByteArray half(const QByteArray& rule)
{
    return "BEGIN:STANDARD\nDTSTART:16010101T000000\nTZOFFSETFROM:+0000\nTZOFFSETTO:+0100\nRRULE:" + rule
        + "\nEND:STANDARD\n";
}

/// Each number has another one.
inline QByteArray moment(int number)
{
    const auto two = [](int value) { return QByteArray::number(value).rightJustified(2, '0'); };
    return QByteArray::number(1900 + number / 8064) + two(1 + number % 12) + two(1 + number / 12 % 28) + 'T'
        + two(number / 336 % 24) + "0000Z";
}

inline std::vector<HostileCalendar> ofItems()
{
    return {
        {"events as small as can be", one({}, "BEGIN:VEVENT\nDTSTART:20250602\nEND:VEVENT\n", {})},
        {"small events with names", events("DTSTART:20250603T100000Z\n")},
        {"events of one identifier", many([=](const QByteArray& number) {
             return event("a", "DTSTART:20250603T100000Z\nSUMMARY:" + number + "\n");
         })},
        {"changes of one occurrence each", many([=](const QByteArray& number) {
             return event("a", "RECURRENCE-ID:20250603T10000" + number.right(1) + "Z\nDTSTART:20250603T100000Z\n");
         })},
        {"changes from each occurrence on", many([=](const QByteArray& number) {
             return event("a",
                 number == "0"
                     ? QByteArray("DTSTART:19000101T100000Z\nRRULE:FREQ=HOURLY\n")
                     : "RECURRENCE-ID;RANGE=THISANDFUTURE:" + moment(number.toInt()) + "\nDTSTART:21250603T100000Z\n");
         })},
        {"reminders that never come", many([](const QByteArray& number) {
             return "BEGIN:VTODO\nUID:" + number
                 + "\nDTSTART:19010101T000000Z\nRRULE:FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30\nEND:VTODO\n";
         })},
        {"reminders as small as can be", one({}, "BEGIN:VTODO\nEND:VTODO\n", {})},
    };
}

inline std::vector<HostileCalendar> ofRules()
{
    return {
        {"rules that never give anything",
            events("DTSTART:19010101T000000Z\nRRULE:FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30\n")},
        {"rules by the second", events("DTSTART:19010101T000000Z\nRRULE:FREQ=SECONDLY\n")},
        {"rules by the hour over centuries, counted",
            events("DTSTART:00010101T000000Z\nRRULE:FREQ=HOURLY;COUNT=2000000000\n")},
        {"years of days since the year 1, counted",
            events("DTSTART:00010101T000000Z\nDURATION:P99999999W\nRRULE:FREQ=YEARLY;" + often
                + ";BYMINUTE=0,1,2,3,4,5,6,7,8,9;COUNT=2000000000\n")},
        {"lasting since the year 1", events("DTSTART:00010101T000000Z\nDURATION:P99999999W\nRRULE:FREQ=DAILY\n")},
        {"twenty rules each",
            events("DTSTART:20250602T100000Z\n" + QByteArray("RRULE:FREQ=YEARLY;" + often + "\n").repeated(20))},
        {"long lists of days in rules",
            events("DTSTART:20250602T100000Z\nRRULE:FREQ=YEARLY;BYYEARDAY=" + QByteArray("1,").repeated(380) + "1\n")},
        {"every list of a rule at once",
            events("DTSTART:00010602T100000Z\nRRULE:FREQ=YEARLY;COUNT=2000000000;" + often
                + ";BYMINUTE=0,1,2;BYMONTHDAY=" + QByteArray("1,").repeated(29) + "-31;BYYEARDAY="
                + QByteArray("2,").repeated(380) + "1;BYWEEKNO=" + QByteArray("3,").repeated(50) + "1;BYDAY="
                + QByteArray("MO,").repeated(380) + "TU;BYSETPOS=" + QByteArray("7,").repeated(380) + "1\n")},
        {"positions in long lists of moments",
            events("DTSTART:00010602T100000Z\nRRULE:FREQ=YEARLY;BYDAY=MO,TU,WE,TH,FR,SA,SU;COUNT=2000000000;" + often
                + ";BYMINUTE=0,1,2,3,4,5,6,7,8,9;BYSETPOS=" + QByteArray("300,").repeated(380) + "1\n")},
    };
}

inline std::vector<HostileCalendar> ofLines()
{
    return {
        {"exceptions", one(begin, "EXDATE:20250603T100000Z,20250604,20250605,20250606,20250607,20250608\n", end)},
        {"exceptions in a line", one(begin + "EXDATE:20250603T100000Z", ",20250604", "\n" + end)},
        {"additions and exceptions of many",
            events("DTSTART:20250602T100000Z\nRDATE:20250603" + QByteArray(",20250603").repeated(1000)
                + "\nEXDATE:20250603" + QByteArray(",20250603").repeated(1000) + "\n")},
        {"lines of two bytes", one(begin, "A\n", end)},
        {"lines of two bytes, many events", events(QByteArray("A\n").repeated(90'000))},
        {"lines of two bytes in zones", many([](const QByteArray& number) {
             return "BEGIN:VTIMEZONE\nTZID:" + number + "\nBEGIN:STANDARD\n" + QByteArray("A\n").repeated(90'000)
                 + "END:STANDARD\nEND:VTIMEZONE\nBEGIN:VEVENT\nDTSTART;TZID=" + number
                 + ":20250602T100000\nEND:VEVENT\n";
         })},
        {"lines of two bytes in the calendar", one({}, "A\n", {})},
        {"empty parts", one(begin, "BEGIN:A\nEND:A\n", end)},
        {"parts that never end", one(begin, "BEGIN:A\n", end)},
        {"folded at every letter", one(begin + "SUMMARY:\n", " a\n", end)},
        {"folded at nothing", one(begin + "SUMMARY:\n", " \n", end)},
        {"soft breaks without a value", one(begin + "SUMMARY;ENCODING=QUOTED-PRINTABLE=\n", "=\n", end)},
        {"blank lines after a soft break", one(begin + "SUMMARY;ENCODING=QUOTED-PRINTABLE:=\n", "\n", end)},
        {"soft breaks at every letter", one(begin + "SUMMARY;ENCODING=QUOTED-PRINTABLE:", "=\n", end)},
        {"an identifier of one huge line", one(begin + "UID:", "aaaaaaaa", "\n" + end)},
        {"an identifier first of one huge line",
            one("BEGIN:VEVENT\nRRULE:FREQ=HOURLY\nDTSTART:20250601T100000Z\nUID:", "aaaaaaaa", "\n" + end)},
        {"a name of one huge line", one("X-WR-CALNAME:", "\\,\\,\\,\\,", "\n" + begin + end)},
        {"a parameter of one huge line", one("BEGIN:VEVENT\nDTSTART;TZID=", "aaaaaaaa", ":20250602T100000\n" + end)},
        {"a rule of one huge line", one(begin + "RRULE:FREQ=DAILY;BYDAY=", "MO,TU,", "FR\n" + end)},
        {"guests", one(begin, "ATTENDEE;PARTSTAT=DECLINED:mailto:nobody@example.org\n", end)},
    };
}

inline std::vector<HostileCalendar> ofZones()
{
    return {
        {"zones that nobody knows", many([=](const QByteArray& number) {
             return "BEGIN:VEVENT\nDTSTART;TZID=Europe/X" + number + ":20250602T100000\nEND:VEVENT\n";
         })},
        {"zones that change every day", many([=](const QByteArray& number) {
             return "BEGIN:VTIMEZONE\nTZID:" + number + "\n" + half("FREQ=DAILY") + half("FREQ=DAILY;INTERVAL=2")
                 + "END:VTIMEZONE\nBEGIN:VEVENT\nDTSTART;TZID=" + number + ":20250602T100000\nEND:VEVENT\n";
         })},
        {"a zone of many parts",
            one("BEGIN:VTIMEZONE\nTZID:Z\n", half("FREQ=YEARLY"),
                "END:VTIMEZONE\nBEGIN:VEVENT\nDTSTART;TZID=Z:20250602T100000\nEND:VEVENT\n")},
        {"empty zones",
            many([](const QByteArray& number) { return "BEGIN:VTIMEZONE\nTZID:" + number + "\nEND:VTIMEZONE\n"; })},
    };
}

} // namespace hostile

inline std::vector<HostileCalendar> hostileCalendars()
{
    std::vector<HostileCalendar> all;
    for (const auto& some : {hostile::ofItems(), hostile::ofRules(), hostile::ofLines(), hostile::ofZones()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

} // namespace ambrelle
