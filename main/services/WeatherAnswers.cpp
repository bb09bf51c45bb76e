// SPDX-License-Identifier: MIT

#include "services/WeatherAnswers.h"

#include "foundation/ForeignText.h"
#include "foundation/Json.h"

#include <QJsonDocument>
#include <QTimeZone>

#include <algorithm>

namespace ambrelle::WeatherAnswers {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostDays = 16; // the longest forecast there is

/// A list whose elements are values or null.
template <typename T> using Sparse = QList<std::optional<T>>;

template <typename T> Sparse<T> list(JsonReader& reader, QLatin1StringView key, const QJsonArray& elements)
{
    Sparse<T> values;
    values.reserve(elements.size());
    for (const QJsonValue& element : elements) {
        values.append(JsonForm<T>::read(element));
        if (!values.last() && !element.isNull())
            reader.fail(key, u"expected "_s + QLatin1StringView(JsonForm<T>::expected));
    }
    return values;
}

template <typename T> Sparse<T> requiredList(JsonReader& reader, QLatin1StringView key)
{
    return list<T>(reader, key, reader.required<QJsonArray>(key));
}

template <typename T> std::optional<T> element(const Sparse<T>& values, qsizetype index)
{
    return index < values.size() ? values.at(index) : std::nullopt;
}

QList<WeatherDay> days(JsonReader& daily)
{
    const auto dates = requiredList<QString>(daily, "time"_L1);
    const auto codes = requiredList<int>(daily, "weather_code"_L1);
    const auto highs = requiredList<double>(daily, "temperature_2m_max"_L1);
    const auto lows = requiredList<double>(daily, "temperature_2m_min"_L1);
    QList<WeatherDay> days;
    for (qsizetype i = 0; i < std::min(dates.size(), mostDays); ++i) {
        const QDate date = QDate::fromString(dates.at(i).value_or(QString()), u"yyyy-MM-dd"_s);
        const auto code = element(codes, i);
        const auto high = element(highs, i);
        const auto low = element(lows, i);
        if (date.isValid() && code && high && low)
            days.append({date.startOfDay(), *code, *high, *low});
    }
    return days;
}

/// The first of a list of wall-clock times of a place so many seconds ahead of UTC.
std::optional<QDateTime> firstTime(JsonReader& daily, QLatin1StringView key, int offset)
{
    const auto times = list<QString>(daily, key, daily.valueOr(key, QJsonArray()));
    const QString text = element(times, 0).value_or(QString());
    const QDateTime wall = QDateTime::fromString(text, u"yyyy-MM-dd'T'HH:mm"_s);
    if (!wall.isValid())
        return std::nullopt;
    return QDateTime(wall.date(), wall.time(), Qt::OffsetFromUTC, offset);
}

} // namespace

std::optional<WeatherSnapshot> forecast(const QByteArray& body, const QString& place)
{
    JsonReader root(QJsonDocument::fromJson(body).object());
    JsonReader current(root.raw("current"_L1), u"current"_s);
    JsonReader daily(root.raw("daily"_L1), u"daily"_s);
    const auto offset = root.optional<int>("utc_offset_seconds"_L1);
    WeatherSnapshot snapshot{.place = place,
        .temperature = current.required<double>("temperature_2m"_L1),
        .apparent = current.required<double>("apparent_temperature"_L1),
        .code = current.required<int>("weather_code"_L1),
        .isDay = current.required<int>("is_day"_L1) == 1,
        .days = days(daily),
        .utcOffset = offset,
        .sunrise = firstTime(daily, "sunrise"_L1, offset.value_or(0)),
        .sunset = firstTime(daily, "sunset"_L1, offset.value_or(0))};
    return root.ok() && current.ok() && daily.ok() ? std::optional(snapshot) : std::nullopt;
}

std::optional<Places> places(const QByteArray& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    JsonReader root(document.isObject() ? QJsonValue(document.object()) : QJsonValue());
    Places found;
    if (const auto results = root.optional<QJsonArray>("results"_L1)) {
        found.results.emplace();
        for (const QJsonValue& result : *results) {
            JsonReader reader(result);
            found.results->append({foreignText(reader.required<QString>("name"_L1)),
                reader.required<double>("latitude"_L1), reader.required<double>("longitude"_L1)});
            root.adopt(reader);
        }
    }
    return root.ok() ? std::optional(found) : std::nullopt;
}

} // namespace ambrelle::WeatherAnswers
