// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/Wording.h"
#include "model/WeatherCode.h"
#include "model/WidgetKind.h"
#include "services/WeatherService.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shownDays = 7;
constexpr qint64 hour = 3600; // seconds
constexpr qint64 oldAfter = 3 * hour;
constexpr qint64 countedInHours = 48 * hour;
constexpr double greatestTemperature = 999; // what a widget has room for, in any unit

QString number(double temperature)
{
    return QString::number(std::lround(std::clamp(temperature, -greatestTemperature, greatestTemperature)));
}

QString degrees(double temperature)
{
    return number(temperature) + u'°';
}

WeatherReading::Day dayReading(const WeatherDay& day, const QLocale& locale)
{
    const QDate date = day.date.date();
    return {.initial = locale.standaloneDayName(date.dayOfWeek(), QLocale::NarrowFormat),
        .name = locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat),
        .date = QString::number(date.day()),
        .sky = skyOf(day.code, true),
        .high = degrees(day.high),
        .low = degrees(day.low)};
}

/// Where each day's low and high stand between the coldest and the warmest of all.
void setFractions(QList<WeatherReading::Day>& shown, const QList<WeatherDay>& days)
{
    if (days.isEmpty())
        return;
    const double coldest = std::ranges::min_element(days, {}, &WeatherDay::low)->low;
    const double span = std::ranges::max_element(days, {}, &WeatherDay::high)->high - coldest;
    if (!(span > 0) || !std::isfinite(span))
        return;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        shown[i].highFraction = std::clamp((days.at(i).high - coldest) / span, 0.0, 1.0);
        shown[i].lowFraction = std::clamp((days.at(i).low - coldest) / span, 0.0, 1.0);
    }
}

/// How old figures of that age are; empty while that does not matter.
QString ageText(qint64 seconds)
{
    if (seconds <= oldAfter)
        return {};
    if (seconds <= countedInHours)
        return Wording::tr("%n hours ago", nullptr, static_cast<int>(seconds / hour));
    return Wording::tr("%n days ago", nullptr, static_cast<int>(seconds / (24 * hour)));
}

/// From today on, by the calendar of the place.
QList<WeatherDay> comingDays(const WeatherSnapshot& snapshot, const QDateTime& now)
{
    const QDate today = snapshot.utcOffset ? now.toUTC().addSecs(*snapshot.utcOffset).date() : now.date();
    const auto isPast = [today](const WeatherDay& day) { return day.date.date() < today; };
    QList<WeatherDay> days = snapshot.days;
    days.removeIf(isPast);
    days.resize(std::min(days.size(), shownDays));
    return days;
}

} // namespace

Sky skyOf(int code, bool isDay)
{
    using enum WeatherCode::Kind;
    switch (WeatherCode::kind(code)) {
    case clear: return isDay ? Sky::clear : Sky::clearNight;
    case mostlyClear:
    case partlyCloudy: return isDay ? Sky::partly : Sky::partlyNight;
    case overcast: return Sky::cloudy;
    case fog: return Sky::fog;
    case drizzle: return Sky::drizzle;
    case rain:
    case showers: return Sky::rain;
    case snow:
    case snowShowers: return Sky::snow;
    case thunderstorms: return Sky::thunder;
    case unknown: break;
    }
    return Sky::unknown;
}

WeatherReading weatherReading(const WeatherService& service, const QDateTime& now, const QLocale& locale)
{
    if (!service.snapshot())
        return {.notice = {symbol(WidgetKind::weather), service.status()}};
    const WeatherSnapshot& snapshot = *service.snapshot();
    WeatherReading reading{.place = snapshot.place,
        .temperature = number(snapshot.temperature),
        .description = ageText(service.asOf().value_or(now).secsTo(now)),
        .sky = skyOf(snapshot.code, snapshot.isDay)};
    if (reading.description.isEmpty())
        reading.description = WeatherCode::description(snapshot.code);
    const QList<WeatherDay> days = comingDays(snapshot, now);
    for (const WeatherDay& day : days)
        reading.days.append(dayReading(day, locale));
    setFractions(reading.days, days);
    if (!days.isEmpty()) {
        reading.high = reading.days.first().high;
        reading.low = reading.days.first().low;
        const double span = days.first().high - days.first().low;
        if (span > 0 && std::isfinite(span))
            reading.nowFraction = std::clamp((snapshot.temperature - days.first().low) / span, 0.0, 1.0);
    }
    return reading;
}

} // namespace ambrelle
