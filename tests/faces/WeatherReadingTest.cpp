// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"
#include "services/WeatherSamples.h"

namespace ambrelle {
namespace {

struct WeatherReadingTest : WeatherTest {
    WeatherReadingTest()
    {
        location.setAuthorization(LocationAuthorization::authorized);
        service.start();
    }

    /// The reading after an answer with these lists of the days' codes, highs and lows.
    WeatherReading read(double temperature, int code, int isDay, const char* codes, const char* highs, const char* lows)
    {
        const QString body = uR"({"current": {"temperature_2m": %1, "apparent_temperature": 0, "weather_code": %2,
            "is_day": %3}, "daily": {"time": ["2025-06-02", "2025-06-03", "2025-06-04"], "weather_code": [%4],
            "temperature_2m_max": [%5], "temperature_2m_min": [%6]}})"_s.arg(temperature)
                                 .arg(code)
                                 .arg(isDay)
                                 .arg(QLatin1StringView(codes), QLatin1StringView(highs), QLatin1StringView(lows));
        Q_EMIT location.located({0, 0, u"Harbour"_s});
        answer(body.toUtf8());
        return weatherReading(service, british);
    }
};

} // namespace

TEST_F(WeatherReadingTest, ShowsTheStatusUntilThereIsWeather)
{
    EXPECT_EQ(
        weatherReading(service, british).notice, (Notice{symbol(WidgetKind::weather), u"Finding your location…"_s}));
    EXPECT_FALSE(read(1, 0, 1, "", "", "").notice);
    Q_EMIT location.failed();
    EXPECT_FALSE(weatherReading(service, british).notice);
}

TEST_F(WeatherReadingTest, RoundsAndComparesTheDays)
{
    const WeatherReading reading = read(-0.4, 1, 0, "0, 85, 4", "19.5, 12, 20", "10, -2.5, 0");
    EXPECT_EQ(reading.place, u"Harbour"_s);
    EXPECT_EQ(reading.temperature, u"0"_s) << "no minus before nothing";
    EXPECT_EQ(reading.description, u"Mostly Clear"_s);
    EXPECT_EQ(reading.sky, Sky::partlyNight);
    EXPECT_EQ(reading.high, u"20°"_s);
    EXPECT_EQ(reading.low, u"10°"_s);
    ASSERT_EQ(reading.days.size(), 3);
    const WeatherReading::Day second{.initial = u"T"_s,
        .name = u"Tue"_s,
        .date = u"3"_s,
        .sky = Sky::snow,
        .high = u"12°"_s,
        .low = u"-3°"_s,
        .highFraction = 14.5 / 22.5,
        .lowFraction = 0};
    EXPECT_EQ(reading.days.at(1), second);
    EXPECT_EQ(reading.days.at(0).sky, Sky::clear) << "a day's picture is that of the day";
    EXPECT_EQ(reading.days.at(2).sky, Sky::unknown);
    EXPECT_EQ(reading.days.at(2).highFraction, 1);
}

TEST_F(WeatherReadingTest, SurvivesStrangeNumbers)
{
    const WeatherReading none = read(1e300, 0, 1, "", "", "");
    EXPECT_EQ(none.temperature, u"999"_s);
    EXPECT_EQ(none.high, QString());
    for (const auto& [highs, lows] : {std::pair("5", "5"), std::pair("1e308", "-1e308"), std::pair("1", "9")}) {
        const WeatherReading::Day day = read(0, 0, 1, "0", highs, lows).days.first();
        EXPECT_EQ(day.highFraction, 1) << highs;
        EXPECT_EQ(day.lowFraction, 0) << lows;
    }
}

TEST(SkyReadingTest, ShowsTheSunOnItsWay)
{
    // A place four hours behind: the sun is up from 09:27 to 00:21 UTC.
    WeatherSnapshot weather;
    weather.sunrise = QDateTime(QDate(2025, 6, 2), QTime(5, 27), Qt::OffsetFromUTC, -14400);
    weather.sunset = QDateTime(QDate(2025, 6, 2), QTime(20, 21), Qt::OffsetFromUTC, -14400);
    struct Case {
        const char* what;
        QDateTime now;
        std::optional<double> sun;
    };
    const Case cases[] = {{"before sunrise", utc(2, 9, 26), {}}, {"at sunrise", utc(2, 9, 27), 0.0},
        {"at noon", utc(2, 16, 54), 0.5}, {"at sunset", utc(3, 0, 21), 1.0}, {"after sunset", utc(3, 0, 22), {}},
        {"a day later, without news", utc(3, 16, 54), 0.5}, {"the day before", utc(1, 16, 54), 0.5}};
    for (const Case& each : cases) {
        const SkyReading reading = skyReading(each.now, weather, british);
        EXPECT_EQ(reading.sun, each.sun) << each.what;
        EXPECT_EQ(reading.sunrise, u"5:27"_s);
        EXPECT_EQ(reading.sunset, u"20:21"_s);
    }
    EXPECT_EQ(skyReading(utc(2, 12, 0), weather, american).sunset, u"8:21"_s);
    EXPECT_EQ(skyReading(utc(2, 13, 0), weather, british), skyReading(utc(2, 13, 1), weather, british))
        << "a minute is no reason to paint";
}

TEST(SkyReadingTest, WithoutBothTimesThereIsTheMoonAlone)
{
    const QDateTime now = utc(2, 12, 0);
    const SkyReading moon = skyReading(now, std::nullopt, british);
    EXPECT_FALSE(moon.phase.isEmpty());
    WeatherSnapshot weather;
    EXPECT_EQ(skyReading(now, weather, british), moon);
    weather.sunrise = utc(2, 0, 0);
    EXPECT_EQ(skyReading(now, weather, british), moon);
    weather.sunset = weather.sunrise; // as the poles have it
    EXPECT_EQ(skyReading(now, weather, british), moon);
}

} // namespace ambrelle
