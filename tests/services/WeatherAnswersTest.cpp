// SPDX-License-Identifier: MIT

#include "services/WeatherSamples.h"

#include <limits>

namespace ambrelle {
namespace {

TEST(WeatherAnswersTest, DecodesAForecastWhole)
{
    const auto forecast = WeatherAnswers::forecast(bytes(forecastObject()), u"New York"_s);
    const WeatherSnapshot expected{.place = u"New York"_s,
        .temperature = 17.4,
        .apparent = 16,
        .code = 2,
        .isDay = true,
        .days = {dayAt(2, 2, 19.5, 10.5), dayAt(3, 61, 17, 8), dayAt(4, 0, 22, -1.5)},
        .utcOffset = -14400,
        .sunrise = utc(2, 9, 27),
        .sunset = utc(3, 0, 21)};
    ASSERT_TRUE(forecast);
    EXPECT_EQ(*forecast, expected);
    EXPECT_EQ(forecast->sunrise->time(), QTime(5, 27)) << "on the clock of the place";
}

TEST(WeatherAnswersTest, ForgivesWhatMayBeMissing)
{
    struct Case {
        const char* what;
        QByteArray body;
        QList<int> days;
        std::optional<QDateTime> sunrise;
    };
    const QJsonValue undefined = QJsonValue::Undefined;
    const auto early = utc(2, 9, 27);
    const Case cases[] = {
        {"no offset: the clock of UTC", forecastWith({}, u"utc_offset_seconds"_s, undefined), {2, 3, 4}, utc(2, 5, 27)},
        {"no sunrise", forecastWith(u"daily"_s, u"sunrise"_s, undefined), {2, 3, 4}, {}},
        {"an empty list of sunrises", forecastWith(u"daily"_s, u"sunrise"_s, QJsonArray()), {2, 3, 4}, {}},
        {"a sunrise of another form", forecastWith(u"daily"_s, u"sunrise"_s, QJsonArray{u"05:27"_s}), {2, 3, 4}, {}},
        {"fewer codes", forecastWith(u"daily"_s, u"weather_code"_s, QJsonArray{2, 61}), {2, 3}, early},
        {"no highs", forecastWith(u"daily"_s, u"temperature_2m_max"_s, QJsonArray()), {}, early},
        {"a low that is not known", forecastWith(u"daily"_s, u"temperature_2m_min"_s, QJsonArray{1, QJsonValue(), 3}),
            {2, 4}, early},
        {"dates that are none",
            forecastWith(u"daily"_s, u"time"_s, QJsonArray{u"2025-02-30"_s, u"3 June"_s, u"2025-06-04"_s}), {4}, early},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const auto forecast = WeatherAnswers::forecast(each.body, {});
        ASSERT_TRUE(forecast);
        QList<int> days;
        for (const WeatherDay& day : forecast->days)
            days.append(day.date.date().day());
        EXPECT_EQ(days, each.days);
        EXPECT_EQ(forecast->sunrise, each.sunrise);
    }
}

TEST(WeatherAnswersTest, RefusesOtherTypes)
{
    const QJsonValue text = u"17"_s;
    const QJsonValue undefined = QJsonValue::Undefined;
    const QByteArray bodies[] = {"", "null", "[]", "{}", "<html>", bytes(forecastObject()).chopped(1),
        forecastWith({}, u"current"_s, undefined), forecastWith({}, u"daily"_s, QJsonArray()),
        forecastWith({}, u"utc_offset_seconds"_s, 0.5), forecastWith({}, u"utc_offset_seconds"_s, text),
        forecastWith(u"current"_s, u"temperature_2m"_s, text),
        forecastWith(u"current"_s, u"temperature_2m"_s, QJsonValue::Null),
        forecastWith(u"current"_s, u"apparent_temperature"_s, undefined),
        forecastWith(u"current"_s, u"weather_code"_s, 2.5), forecastWith(u"current"_s, u"is_day"_s, true),
        forecastWith(u"daily"_s, u"time"_s, u"2025-06-02"_s), forecastWith(u"daily"_s, u"time"_s, QJsonArray{7}),
        forecastWith(u"daily"_s, u"weather_code"_s, undefined),
        forecastWith(u"daily"_s, u"weather_code"_s, QJsonArray{2, 3, 4, text}),
        forecastWith(u"daily"_s, u"temperature_2m_max"_s, QJsonArray{text}),
        forecastWith(u"daily"_s, u"temperature_2m_min"_s, QJsonObject()),
        forecastWith(u"daily"_s, u"sunset"_s, QJsonArray{1}), forecastWith(u"daily"_s, u"sunrise"_s, text)};
    for (const QByteArray& body : bodies)
        EXPECT_FALSE(WeatherAnswers::forecast(body, {})) << body.toStdString();
    for (const char* body : {"", "[]", R"({"results": 1})", R"({"results": [1]})", R"({"results": [{"name": "A"}]})",
             R"({"results": [{"name": 1, "latitude": 1, "longitude": 1}]})"})
        EXPECT_FALSE(WeatherAnswers::places(body)) << body;
}

TEST(WeatherAnswersTest, NoNumberIsTooLarge)
{
    const int most = std::numeric_limits<int>::max();
    QJsonArray dates;
    QJsonArray numbers;
    for (int i = 0; i < 10'000; ++i) {
        dates.append(u"2025-06-02"_s);
        numbers.append(1);
    }
    const auto offset = WeatherAnswers::forecast(forecastWith({}, u"utc_offset_seconds"_s, most), {});
    ASSERT_TRUE(offset);
    EXPECT_EQ(offset->sunrise, utc(2, 5, 27).addSecs(-qint64{most}));
    QJsonObject root = forecastObject();
    root.insert(u"daily"_s,
        QJsonObject{{u"time"_s, dates}, {u"weather_code"_s, numbers}, {u"temperature_2m_max"_s, numbers},
            {u"temperature_2m_min"_s, numbers}});
    const auto many = WeatherAnswers::forecast(bytes(root), {});
    ASSERT_TRUE(many);
    EXPECT_LE(many->days.size(), 16) << "no forecast is longer";
}

} // namespace
} // namespace ambrelle
