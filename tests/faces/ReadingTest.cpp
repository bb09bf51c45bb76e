// SPDX-License-Identifier: MIT

#include "faces/ReadingFeed.h"
#include "faces/ReadingFunctions.h"
#include "platform/recording/RecordingSources.h"
#include "services/ServiceTest.h"
#include "services/SystemMonitor.h"
#include "support/QuietServices.h"

namespace ambrelle {
namespace {

QDateTime moment(int year, int month, int day, int hour, int minute)
{
    return {QDate(year, month, day), QTime(hour, minute), Qt::UTC};
}

} // namespace

TEST(ClockReading, ShowsTheCityAcrossMidnightAndItsOffset)
{
    WidgetConfig config(WidgetKind::clock, Skin::glass);
    config.city = u"Auckland"_s;
    config.timeZone = u"Pacific/Auckland"_s;
    const ClockReading there = clockReading(config, moment(2026, 1, 31, 23, 5), british, false);
    EXPECT_EQ(there.time(), u"12:05"_s);
    EXPECT_EQ(there.dateLine(), u"Sunday 1 February"_s);
    EXPECT_EQ(there.tag(), u"Auckland · 13 h ahead"_s);
    EXPECT_FALSE(there.second.has_value());

    config.timeZone = u"Asia/Kolkata"_s;
    EXPECT_EQ(clockReading(config, moment(2026, 1, 31, 0, 0), british, false).offset, u"5 h 30 min ahead"_s);
    config.timeZone = u"Nowhere/Atlantis"_s;
    const ClockReading unknown = clockReading(config, moment(2026, 1, 31, 0, 7), british, false);
    EXPECT_EQ(unknown.time(), u"00:07"_s) << "an unknown zone shows the machine's time";
    EXPECT_EQ(unknown.tag(), u"Auckland"_s);
}

TEST(ClockReading, TwelveHourClocksShowTwelveAtNoonAndMidnight)
{
    const WidgetConfig config(WidgetKind::clock, Skin::glass);
    const std::pair<int, const char*> cases[] = {{0, "12:30 AM"}, {9, "9:30 AM"}, {12, "12:30 PM"}, {23, "11:30 PM"}};
    for (const auto& [hour, text] : cases) {
        const ClockReading reading = clockReading(config, moment(2026, 5, 1, hour, 30), american, false);
        EXPECT_EQ((reading.time() + u' ' + reading.meridiem).toStdString(), text);
        EXPECT_EQ(reading.date, u"May 1"_s);
    }
}

TEST(ClockReading, CountsTheDayAndNamesTheZoneOfTheCity)
{
    struct Case {
        const char* zone;
        QDateTime now;
        QString zoneText;
        int weekday;
        int dayOfYear;
        int week;
    };
    const Case cases[] = {
        {"UTC", moment(2026, 1, 1, 7, 41), u"UTC"_s, 4, 1, 1},
        {"Europe/Berlin", moment(2026, 7, 5, 7, 41), u"UTC+2"_s, 7, 186, 27},
        {"America/St_Johns", moment(2024, 12, 31, 7, 41), u"UTC-3:30"_s, 2, 366, 1},
        {"Pacific/Auckland", moment(2026, 1, 31, 23, 5), u"UTC+13"_s, 7, 32, 5},
    };
    for (const Case& c : cases) {
        WidgetConfig config(WidgetKind::clock, Skin::glass);
        config.timeZone = QString::fromLatin1(c.zone);
        const ClockReading reading = clockReading(config, c.now, british, false);
        EXPECT_EQ(reading.zone, c.zoneText);
        EXPECT_EQ(reading.utc, c.now.toString(u"HH:mm"_s)) << c.zone;
        EXPECT_EQ(reading.weekdayNumber, c.weekday) << c.zone;
        EXPECT_EQ(reading.dayOfYear, c.dayOfYear) << c.zone;
        EXPECT_EQ(reading.week, c.week) << c.zone;
    }
}

TEST(CalendarReading, StartsWeeksAsTheLocaleDoes)
{
    const CalendarReading monday = calendarReading(QDate(2026, 11, 21), british);
    EXPECT_EQ(monday.firstColumn, 6); // the first of November 2026 is a Sunday
    EXPECT_EQ(monday.weekdays.first(), u"M"_s);
    const CalendarReading sunday = calendarReading(QDate(2026, 11, 21), american);
    EXPECT_EQ(sunday.firstColumn, 0);
    EXPECT_EQ(sunday.days, 30);
    EXPECT_EQ(sunday.today, 21);
}

TEST(CountdownReading, CountsDaysByTheCalendar)
{
    WidgetConfig config(WidgetKind::countdown, Skin::glass);
    const QDateTime now = moment(2026, 11, 21, 23, 0);
    EXPECT_TRUE(countdownReading(config, now, british).notice);
    struct Case {
        QDateTime date;
        const char* days;
        const char* unit;
    };
    const Case cases[] = {{now.addSecs(2 * 3600), "1", "day"}, {now.addSecs(-3600), "0", "days: today"},
        {now.addDays(-1), "1", "day ago"}, {now.addDays(-40), "40", "days ago"}, {now.addDays(42), "42", "days"}};
    for (const Case& c : cases) {
        config.countdownDate = c.date;
        const CountdownReading reading = countdownReading(config, now, british);
        EXPECT_EQ(reading.days.toStdString(), c.days);
        EXPECT_EQ(reading.unit.toStdString(), c.unit);
    }
    config.countdownDate = now.addDays(3);
    config.countdownStart = now.addDays(-1);
    EXPECT_DOUBLE_EQ(countdownReading(config, now, british).progress, 0.25);
    config.countdownStart = now.addDays(9); // a start after the date says nothing
    EXPECT_DOUBLE_EQ(countdownReading(config, now, british).progress, 0);
}

TEST(QuoteReading, ShowsASayingOrAWordAsTheWidgetIsSet)
{
    WidgetConfig config(WidgetKind::quote, Skin::glass);
    const QDate day(2026, 11, 21);
    const QuoteReading saying = quoteReading(config, day);
    EXPECT_EQ(saying.text, u"Imagination is more important than knowledge."_s);
    EXPECT_FALSE(saying.word);
    EXPECT_TRUE(saying.note.isEmpty());
    config.quoteWords = true;
    const QuoteReading word = quoteReading(config, day);
    EXPECT_EQ(word.source, u"Saudade"_s);
    EXPECT_TRUE(word.word);
    EXPECT_FALSE(word.note.isEmpty());
    EXPECT_NE(quoteReading(config, day.addDays(1)), word);
}

struct FeedTest : ServiceTest {
    FeedTest()
        : ServiceTest(moment(2026, 11, 21, 10, 0))
    {
    }

    RecordingSources machine;
    SystemMonitor monitor{machine.sources(), clock};
    QuietServices services{settings, defaults, clock};
    ReadingFeed feed{{monitor, services.live, settings}, clock, british};

    Reading read(WidgetKind kind) const { return feed.readingFor(WidgetConfig(kind, Skin::glass)); }
};

TEST_F(FeedTest, EveryKindHasAReadingOfItsOwnShape)
{
    for (const WidgetKind kind : allCases<WidgetKind>())
        EXPECT_EQ(read(kind).index(), static_cast<std::size_t>(kind)) << rawValue(kind).data();
}

TEST_F(FeedTest, TellsWhichKindsMayHaveChanged)
{
    WidgetKinds told;
    QObject::connect(&feed, &ReadingFeed::changed, &feed, [&](const WidgetKinds& kinds) { told |= kinds; });
    monitor.start(2);
    EXPECT_EQ(told,
        kindSet({WidgetKind::cpu, WidgetKind::memory, WidgetKind::disk, WidgetKind::battery, WidgetKind::network,
            WidgetKind::downloads}));
    told.reset();
    clock.advance(std::chrono::minutes(1));
    EXPECT_TRUE(told.test(static_cast<std::size_t>(WidgetKind::clock)));
    EXPECT_TRUE(told.test(static_cast<std::size_t>(WidgetKind::weather))) << "its days go by";
    EXPECT_FALSE(told.test(static_cast<std::size_t>(WidgetKind::devices)));
}

TEST_F(FeedTest, WakesUpAsOftenAsSomebodySeesAChange)
{
    const WidgetKinds track = kindSet({WidgetKind::nowPlaying});
    const WidgetKinds clocks = kindSet({WidgetKind::clock});
    struct Case {
        const char* what;
        ReadingFeed::Audience audience;
        bool plays;
        int wakes; ///< in a minute
    };
    const Case cases[] = {
        {"minutes only", {.kinds = clocks | track}, false, 1},
        {"a clock shows seconds", {.kinds = clocks, .seconds = true}, false, 61},
        {"nobody looks at that clock", {.looks = false, .kinds = clocks, .seconds = true}, false, 0},
        {"a track plays", {.kinds = track}, true, 61},
        {"a track plays that no widget shows", {.kinds = clocks}, true, 1},
        {"both, in one go", {.kinds = clocks | track, .seconds = true}, true, 61},
        {"nobody looks at either", {.looks = false, .kinds = clocks | track, .seconds = true}, true, 0},
    };
    feed.setAudience({.looks = false});
    for (const Case& c : cases) {
        QuietServices quiet(settings, defaults, clock);
        ReadingFeed watched({monitor, quiet.live, settings}, clock, british);
        watched.setAudience(c.audience);
        if (c.plays)
            quiet.live.player.loadPreviewData({});
        clock.wakes = 0;
        clock.advance(1min);
        EXPECT_EQ(clock.wakes, c.wakes) << c.what;
    }
}

TEST_F(FeedTest, TellsTheStartOfEverySecondAndAllThatWasMissed)
{
    QStringList told;
    QObject::connect(&feed, &ReadingFeed::changed, &feed, [&](const WidgetKinds& kinds) {
        const bool clocks = kinds == kindSet({WidgetKind::clock});
        told += clock.now().toString(u"ss.zzz "_s) + (kinds.all() ? u"all"_s : clocks ? u"clocks"_s : u"others"_s);
    });
    clock.advance(300ms);
    feed.setAudience({.kinds = kindSet({WidgetKind::clock}), .seconds = true});
    clock.advance(1s);
    feed.setAudience({.looks = false, .kinds = kindSet({WidgetKind::clock}), .seconds = true});
    clock.advance(5min + 1s);
    settings.downloadResetMinutes.set(7);
    EXPECT_EQ(told, QStringList{u"01.000 clocks"_s});
    told.clear();
    feed.setAudience({});
    EXPECT_EQ(told, QStringList{u"02.300 all"_s});
}

TEST_F(FeedTest, AMachineWithoutABatteryOrVolumesSaysSo)
{
    monitor.start(2);
    EXPECT_EQ(noticeOf(read(WidgetKind::battery)).sentence, u"No battery"_s);
    EXPECT_EQ(noticeOf(read(WidgetKind::disk)).sentence, u"No volumes"_s);
    EXPECT_EQ(noticeOf(read(WidgetKind::processes)).sentence, u"Measuring…"_s);
}

TEST(SystemReadingTest, ABatterySaysInOneLineWhatIsKnown)
{
    struct Case {
        BatteryInfo battery;
        QString line;
        QString about;
        QString symbol;
    };
    const auto info = [](bool charging, bool onMains, std::optional<int> minutes) {
        BatteryInfo battery;
        battery.percent = 0.5;
        battery.isCharging = charging;
        battery.onAC = onMains;
        battery.minutesRemaining = minutes;
        return battery;
    };
    const Case cases[] = {
        {info(false, false, 220), u"3:40 left"_s, u"about 3 h 40 min left"_s, {}},
        {info(true, true, 35), u"0:35 to full"_s, u"about 35 min to full"_s, u"bolt.fill"_s},
        {info(false, true, std::nullopt), u"Plugged in"_s, {}, u"powerplug.fill"_s},
        {info(false, false, std::nullopt), u"On battery"_s, {}, {}},
    };
    for (const Case& c : cases) {
        SystemSample sample;
        sample.battery = c.battery;
        const BatteryReading reading = batteryReading(sample);
        EXPECT_EQ(reading.line(), c.line);
        EXPECT_EQ(reading.about, c.about);
        EXPECT_EQ(reading.symbol, c.symbol);
    }
}

TEST(SystemReadingTest, TheSamplesReadAsTheyWereMade)
{
    const SystemSample sample = previewSample();
    EXPECT_EQ(batteryReading(sample).percent, 73);
    EXPECT_FALSE(batteryReading(sample).low);
    const ProcessesReading processes = processesReading(sample);
    ASSERT_EQ(processes.rows.size(), 8);
    EXPECT_EQ(processes.rows.first().percent, u"13.2%"_s);
    EXPECT_DOUBLE_EQ(processes.rows.first().fraction, 1);
    const NetworkReading network = networkReading(sample);
    EXPECT_GE(network.peak, *std::ranges::max_element(network.upHistory));
    EXPECT_EQ(memoryReading(sample).parts.size(), 3);
}

} // namespace ambrelle
