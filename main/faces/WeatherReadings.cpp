// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "model/WeatherCode.h"
#include "model/WidgetKind.h"
#include "services/WeatherService.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shownDays = 7;
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

WeatherReading weatherReading(const WeatherService& service, const QLocale& locale)
{
    if (!service.snapshot())
        return {.notice = {symbol(WidgetKind::weather), service.status()}};
    const WeatherSnapshot& snapshot = *service.snapshot();
    WeatherReading reading{.place = snapshot.place,
        .temperature = number(snapshot.temperature),
        .description = WeatherCode::description(snapshot.code),
        .sky = skyOf(snapshot.code, snapshot.isDay)};
    const QList<WeatherDay> days = snapshot.days.first(std::min(snapshot.days.size(), shownDays));
    for (const WeatherDay& day : days)
        reading.days.append(dayReading(day, locale));
    setFractions(reading.days, days);
    if (!days.isEmpty()) {
        reading.high = reading.days.first().high;
        reading.low = reading.days.first().low;
    }
    return reading;
}

} // namespace ambrelle
