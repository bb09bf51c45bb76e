// SPDX-License-Identifier: MIT

#include "platform/calendar/RecurrenceRule.h"

#include <QDateTime>
#include <QStringList>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

std::chrono::local_seconds at(const QString& text)
{
    auto moment = QDateTime::fromString(text, Qt::ISODate);
    moment.setTimeSpec(Qt::UTC);
    return std::chrono::local_seconds(std::chrono::seconds(moment.toSecsSinceEpoch()));
}

QString textOf(std::chrono::local_seconds wallTime)
{
    return QDateTime::fromSecsSinceEpoch(wallTime.time_since_epoch().count(), Qt::UTC).toString(u"yyyy-MM-dd HH:mm"_s);
}

// The expected moments come from python-dateutil, but for the last of week 52, which follows ISO 8601.
TEST(RecurrenceRuleTest, FirstMomentsFromADay)
{
    struct Case {
        const char* rule;
        const char* start;
        const char* from;
        QStringList moments;
    };
    const Case cases[] = {
        {"FREQ=DAILY;INTERVAL=10", "2024-01-01T09:00", "2024-02-28T00:00",
            {u"2024-03-01 09:00"_s, u"2024-03-11 09:00"_s, u"2024-03-21 09:00"_s}},
        {"FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,SU;WKST=MO", "1997-08-05T09:00", "1997-08-06T00:00",
            {u"1997-08-10 09:00"_s, u"1997-08-19 09:00"_s, u"1997-08-24 09:00"_s}},
        {"FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,SU;WKST=SU", "1997-08-05T09:00", "1997-08-06T00:00",
            {u"1997-08-17 09:00"_s, u"1997-08-19 09:00"_s, u"1997-08-31 09:00"_s}},
        {"FREQ=MONTHLY", "2025-01-31T08:00", "2025-02-01T00:00",
            {u"2025-03-31 08:00"_s, u"2025-05-31 08:00"_s, u"2025-07-31 08:00"_s}},
        {"FREQ=MONTHLY;BYDAY=-1FR", "2024-01-26T17:00", "2024-02-01T00:00",
            {u"2024-02-23 17:00"_s, u"2024-03-29 17:00"_s, u"2024-04-26 17:00"_s}},
        {"FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-2", "1997-09-29T09:00", "1997-10-01T00:00",
            {u"1997-10-30 09:00"_s, u"1997-11-27 09:00"_s, u"1997-12-30 09:00"_s}},
        {"FREQ=MONTHLY;BYDAY=FR;BYMONTHDAY=13", "1997-09-02T09:00", "1998-01-01T00:00",
            {u"1998-02-13 09:00"_s, u"1998-03-13 09:00"_s, u"1998-11-13 09:00"_s}},
        {"FREQ=YEARLY", "2020-02-29T00:00", "2021-01-01T00:00",
            {u"2024-02-29 00:00"_s, u"2028-02-29 00:00"_s, u"2032-02-29 00:00"_s}},
        {"FREQ=YEARLY;INTERVAL=4;BYMONTH=11;BYDAY=TU;BYMONTHDAY=2,3,4,5,6,7,8", "1996-11-05T09:00", "1997-01-01T00:00",
            {u"2000-11-07 09:00"_s, u"2004-11-02 09:00"_s, u"2008-11-04 09:00"_s}},
        {"FREQ=YEARLY;BYDAY=20MO", "1997-05-19T09:00", "1998-01-01T00:00",
            {u"1998-05-18 09:00"_s, u"1999-05-17 09:00"_s, u"2000-05-15 09:00"_s}},
        {"FREQ=YEARLY;BYYEARDAY=1,-1", "2023-01-01T09:00", "2023-12-01T00:00",
            {u"2023-12-31 09:00"_s, u"2024-01-01 09:00"_s, u"2024-12-31 09:00"_s}},
        {"FREQ=YEARLY;BYWEEKNO=52;BYDAY=SA", "2019-12-28T09:00", "2020-01-01T00:00",
            {u"2020-12-26 09:00"_s, u"2022-01-01 09:00"_s, u"2022-12-31 09:00"_s}},
        {"FREQ=DAILY;BYHOUR=9,12;BYMINUTE=0,30", "2025-06-02T09:00", "2025-06-02T10:00",
            {u"2025-06-02 12:00"_s, u"2025-06-02 12:30"_s, u"2025-06-03 09:00"_s}},
        {"FREQ=HOURLY;INTERVAL=5;BYHOUR=8,9,10", "2025-06-02T08:00", "2025-06-02T09:00",
            {u"2025-06-03 09:00"_s, u"2025-06-04 10:00"_s, u"2025-06-07 08:00"_s}},
        {"FREQ=MINUTELY;INTERVAL=90", "2025-06-02T08:00", "2025-06-05T12:00",
            {u"2025-06-05 12:30"_s, u"2025-06-05 14:00"_s, u"2025-06-05 15:30"_s}},
        {"FREQ=WEEKLY;BYDAY=MO,WE;COUNT=4", "2025-06-02T08:00", "2025-06-09T00:00",
            {u"2025-06-09 08:00"_s, u"2025-06-11 08:00"_s}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.rule);
        const auto rule = RecurrenceRule::parsed(each.rule);
        ASSERT_TRUE(rule);
        Effort effort;
        const auto from = at(QLatin1StringView(each.from));
        QStringList moments;
        for (const auto moment : rule->between(at(QLatin1StringView(each.start)), std::chrono::local_seconds::max(),
                 from, from + std::chrono::years(30), 3, effort))
            moments.append(textOf(moment));
        EXPECT_EQ(moments, each.moments);
    }
}

TEST(RecurrenceRuleTest, WhatIsNoRule)
{
    const QByteArray twelve("0,1,2,3,4,5,6,7,8,9,10,11");
    const QByteArray nearlyAlways = "FREQ=YEARLY;BYHOUR=" + twelve + ";BYMINUTE=" + twelve + ";BYSECOND=" + twelve;
    for (const QByteArray& text : {QByteArray(), QByteArray("nonsense"), QByteArray("INTERVAL=2"),
             QByteArray("FREQ=DAILY;INTERVAL=0"), QByteArray("RSCALE=HEBREW;FREQ=YEARLY"), nearlyAlways})
        EXPECT_FALSE(RecurrenceRule::parsed(text)) << text.constData();
}

TEST(RecurrenceRuleTest, EffortIsSharedAndRunsOut)
{
    const auto rule = RecurrenceRule::parsed("FREQ=DAILY;COUNT=1000000");
    Effort effort{1000};
    const auto start = at(u"2000-01-01T00:00"_s);
    const auto far = start + std::chrono::years(1000);
    EXPECT_LT(rule->between(start, far, start, far, 1'000'000, effort).size(), 1000U);
    EXPECT_TRUE(rule->between(start, far, start, far, 1'000'000, effort).empty());
}

} // namespace
} // namespace ambrelle
