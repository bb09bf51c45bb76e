// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"
#include "services/WeatherSamples.h"

#include <QUrlQuery>

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
        return weatherReading(service, clock.now(), british);
    }
};

} // namespace

TEST_F(WeatherReadingTest, ShowsTheStatusUntilThereIsWeather)
{
    EXPECT_EQ(weatherReading(service, clock.now(), british).notice,
        (Notice{symbol(WidgetKind::weather), u"Finding your location…"_s}));
    EXPECT_FALSE(read(1, 0, 1, "", "", "").notice);
    Q_EMIT location.failed();
    EXPECT_FALSE(weatherReading(service, clock.now(), british).notice);
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
    EXPECT_EQ(reading.nowFraction, 0) << "colder than the day's low";
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

TEST_F(WeatherReadingTest, DaysEndByTheCalendarOfThePlace)
{
    struct Case {
        const char* what;
        int utcOffset;
        QDateTime now;
        QStringList days;
    };
    const Case cases[] = {{"its evening", -14400, utc(3, 3, 59), {u"2"_s, u"3"_s, u"4"_s}},
        {"its midnight", -14400, utc(3, 4, 0), {u"3"_s, u"4"_s}},
        {"east of here", 39600, utc(2, 13, 0), {u"3"_s, u"4"_s}}, {"long ago", -14400, utc(5, 4, 0), {}}};
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        Q_EMIT location.located({0, 0, u"Harbour"_s});
        answer(forecastWith({}, u"utc_offset_seconds"_s, each.utcOffset));
        const WeatherReading reading = weatherReading(service, each.now, british);
        QStringList days;
        for (const WeatherReading::Day& day : reading.days)
            days.append(day.date);
        EXPECT_EQ(days, each.days);
        EXPECT_EQ(reading.high, days.isEmpty() ? QString() : reading.days.first().high);
    }
}

/// A network and a server that can be switched off, asked by a widget that stands there for days.
struct LongDayOfWeatherTest : WeatherTest {
    LongDayOfWeatherTest() { settings.useFahrenheit.set(false); }

    WeatherReading read() const { return weatherReading(service, clock.now(), british); }
    /// What the forecast service would answer now: three days, the first of them today.
    QByteArray forecastOfNow() const
    {
        QJsonArray dates;
        for (int day = 0; day < 3; ++day)
            dates.append(clock.now().date().addDays(day).toString(Qt::ISODate));
        return forecastWith(u"daily"_s, u"time"_s, dates);
    }
    /// Answers whatever is asked until nothing is.
    void serve()
    {
        while (network.waiting() > 0) {
            if (!works)
                answer(HttpAnswer{{}, u"The server was not found."_s});
            else if (network.address().path() == "/v1/search"_L1)
                answer(places(QUrlQuery(network.address()).queryItemValue(u"name"_s)));
            else
                answer(forecastOfNow());
        }
    }
    static QByteArray places(const QString& name)
    {
        return R"({"results": [{"name": ")" + name.toUtf8() + R"(", "latitude": 60, "longitude": 5}]})";
    }
    void live(std::chrono::seconds time)
    {
        for (; time > 0s; time -= 10s) {
            clock.advance(10s);
            serve();
        }
    }

    bool works = false;
};

TEST_F(LongDayOfWeatherTest, TheWidgetIsRightSoonAfterItCanBe)
{
    settings.weatherCity.set(u"Oslo"_s);
    service.start();
    live(10min);
    EXPECT_EQ(read().notice.sentence, u"Weather unavailable: The server was not found."_s);
    works = true;
    Q_EMIT network.networkCame();
    live(1min);
    EXPECT_EQ(read().place, u"Oslo"_s);
    EXPECT_EQ(read().description, u"Partly Cloudy"_s);
    ASSERT_EQ(read().days.size(), 3);
    EXPECT_EQ(read().days.first().date, u"2"_s);

    // It sleeps until the next morning. The network is there some seconds after it woke up.
    works = false;
    clock.setNow(utc(3, 7, 0));
    EXPECT_EQ(read().days.first().date, u"3"_s) << "yesterday is no today";
    EXPECT_EQ(read().description, u"20 hours ago"_s);
    live(10s);
    works = true;
    Q_EMIT network.networkCame();
    live(1min);
    EXPECT_EQ(read().description, u"Partly Cloudy"_s);
    EXPECT_EQ(read().days.size(), 3);

    // Two other cities in quick succession, the first of which is answered last.
    settings.weatherCity.set(u"Rome"_s);
    settings.weatherCity.set(u"Bergen"_s);
    answer({places(u"Bergen"_s), {}}, 1);
    answer({forecastOfNow(), {}}, 1);
    answer(places(u"Rome"_s));
    live(1min);
    EXPECT_EQ(read().place, u"Bergen"_s);

    works = false;
    live(1h);
    EXPECT_EQ(read().place, u"Bergen"_s);
    EXPECT_EQ(read().description, u"Partly Cloudy"_s);
    works = true;
    live(5min);
    EXPECT_LE(service.asOf()->secsTo(clock.now()), 5 * 60);

    works = false;
    live(3h + 6min);
    EXPECT_EQ(read().description, u"3 hours ago"_s);
    live(70h);
    EXPECT_EQ(read().description, u"3 days ago"_s);
    EXPECT_TRUE(read().days.isEmpty());
    EXPECT_EQ(read().range(), QString());
    works = true;
    live(5min);
    EXPECT_EQ(read().days.size(), 3);
    EXPECT_EQ(read().description, u"Partly Cloudy"_s);
}

TEST_F(WeatherReadingTest, SurvivesStrangeNumbers)
{
    const WeatherReading none = read(1e300, 0, 1, "", "", "");
    EXPECT_EQ(none.temperature, u"999"_s);
    EXPECT_EQ(none.high, QString());
    EXPECT_EQ(none.range(), QString()) << "no lonely slash";
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

TEST(SkyReadingTest, WithoutEitherTimeThereIsTheMoonAlone)
{
    const QDateTime now = utc(2, 12, 0);
    const SkyReading moon = skyReading(now, std::nullopt, british);
    EXPECT_FALSE(moon.phase.isEmpty());
    WeatherSnapshot weather;
    EXPECT_EQ(skyReading(now, weather, british), moon);
    weather.sunset = weather.sunrise = utc(2, 0, 0); // as the poles have it
    EXPECT_EQ(skyReading(now, weather, british), moon);
    weather.sunrise.reset();
    SkyReading expected = moon;
    expected.sunset = u"0:00"_s;
    EXPECT_EQ(skyReading(now, weather, british), expected) << "one of them is missing";
    std::swap(weather.sunrise, weather.sunset);
    std::swap(expected.sunrise, expected.sunset);
    EXPECT_EQ(skyReading(now, weather, british), expected);
}

} // namespace ambrelle
