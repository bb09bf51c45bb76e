// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "faces/MoonPhase.h"
#include "foundation/Wording.h"

#include <QTimeZone>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// Day and month in the locale's order: its long date without weekday and year.
QString dayAndMonth(QDate date, const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(u"dddd"_s); // the weekday
    const bool monthFirst = format.indexOf(u'M') < format.indexOf(u'd');
    return locale.toString(date, monthFirst ? u"MMMM d"_s : u"d MMMM"_s);
}

/// "UTC+2", "UTC-3:30", "UTC"
QString zoneText(int seconds)
{
    const int minutes = std::abs(seconds) / 60;
    if (minutes == 0)
        return u"UTC"_s;
    QString text = (seconds < 0 ? u"UTC-%1"_s : u"UTC+%1"_s).arg(minutes / 60);
    if (minutes % 60 != 0)
        text += u":%1"_s.arg(minutes % 60, 2, 10, QChar(u'0'));
    return text;
}

QString offsetText(int seconds)
{
    if (seconds == 0)
        return Wording::tr("same time");
    const int minutes = std::abs(seconds) / 60;
    const QString span = minutes % 60 == 0 ? Wording::tr("%1 h").arg(minutes / 60)
                                           : Wording::tr("%1 h %2 min").arg(minutes / 60).arg(minutes % 60);
    return (seconds > 0 ? Wording::tr("%1 ahead") : Wording::tr("%1 behind")).arg(span);
}

void addSun(SkyReading& reading, const WeatherSnapshot& weather, const QDateTime& now, const QLocale& locale)
{
    constexpr double steps = 200; // half points of the arc: finer ones would only repaint
    constexpr qint64 day = 86400;
    const std::optional<QDateTime>& sunrise = weather.sunrise;
    const std::optional<QDateTime>& sunset = weather.sunset;
    const qint64 daylight = sunrise && sunset ? sunrise->secsTo(*sunset) : 0;
    if (sunrise && sunset && daylight <= 0)
        return; // the sun does not rise, or does not set
    if (sunrise)
        reading.sunrise = Units::time(*sunrise, locale);
    if (sunset)
        reading.sunset = Units::time(*sunset, locale);
    if (daylight == 0)
        return;
    // Also the times of a day gone by do: from one day to the next they move by minutes.
    const qint64 risen = ((sunrise->secsTo(now) % day) + day) % day;
    if (risen <= daylight)
        reading.sun = std::round(static_cast<double>(risen) / static_cast<double>(daylight) * steps) / steps;
}

} // namespace

ClockReading clockReading(const WidgetConfig& config, const QDateTime& now, const QLocale& locale, bool seconds)
{
    const QTimeZone zone = config.timeZone ? QTimeZone(config.timeZone->toUtf8()) : QTimeZone();
    const QDateTime there = zone.isValid() ? now.toTimeZone(zone) : now;
    const QDate date = there.date();
    const QTime time = there.time();
    ClockReading reading;
    reading.hour24 = time.hour();
    reading.minute = time.minute();
    if (Units::usesDayClock(locale)) {
        reading.hours = u"%1"_s.arg(time.hour(), 2, 10, QChar(u'0'));
    } else {
        reading.hours = QString::number(time.hour() % 12 == 0 ? 12 : time.hour() % 12);
        reading.meridiem = time.hour() < 12 ? locale.amText() : locale.pmText();
    }
    reading.minutes = u"%1"_s.arg(time.minute(), 2, 10, QChar(u'0'));
    if (seconds)
        reading.second = time.second();
    reading.weekday = locale.standaloneDayName(date.dayOfWeek());
    reading.weekdayShort = locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat);
    reading.date = dayAndMonth(date, locale);
    reading.isoDate = date.toString(Qt::ISODate);
    reading.month = locale.standaloneMonthName(date.month());
    reading.day = date.day();
    reading.weekdayNumber = date.dayOfWeek();
    reading.monthNumber = date.month();
    reading.dayOfYear = date.dayOfYear();
    reading.week = date.weekNumber();
    reading.zone = zoneText(there.offsetFromUtc());
    reading.utc = now.toUTC().toString(u"HH:mm"_s);
    if (config.city && !config.city->isEmpty()) {
        reading.city = *config.city;
        if (zone.isValid())
            reading.offset = offsetText(there.offsetFromUtc() - now.offsetFromUtc());
    }
    return reading;
}

CalendarReading calendarReading(QDate today, const QLocale& locale)
{
    CalendarReading reading;
    reading.month = locale.standaloneMonthName(today.month());
    reading.year = QString::number(today.year());
    const int first = locale.firstDayOfWeek();
    for (int day = 0; day < 7; ++day)
        reading.weekdays.append(locale.standaloneDayName((first - 1 + day) % 7 + 1, QLocale::NarrowFormat));
    const int dayOfFirst = QDate(today.year(), today.month(), 1).dayOfWeek();
    reading.firstColumn = (dayOfFirst - first + 7) % 7;
    reading.days = today.daysInMonth();
    reading.today = today.day();
    return reading;
}

CountdownReading countdownReading(const WidgetConfig& config, const QDateTime& now, const QLocale& locale)
{
    CountdownReading reading;
    if (!config.countdownDate) {
        reading.notice = {symbol(WidgetKind::countdown), Wording::tr("Pick a date")};
        return reading;
    }
    const QDateTime target = config.countdownDate->toTimeZone(now.timeZone());
    const qint64 days = now.date().daysTo(target.date());
    const auto count = static_cast<int>(std::abs(days));
    reading.days = QString::number(count);
    if (days == 0)
        reading.unit = Wording::tr("days: today");
    else
        reading.unit = days < 0 ? Wording::tr("days ago", nullptr, count) : Wording::tr("days", nullptr, count);
    reading.title = config.countdownTitle.value_or(QString());
    reading.date = locale.toString(target.date(), QLocale::ShortFormat);
    if (config.countdownStart && *config.countdownStart < *config.countdownDate) {
        const auto whole = static_cast<double>(config.countdownStart->msecsTo(*config.countdownDate));
        reading.progress = std::clamp(static_cast<double>(config.countdownStart->msecsTo(now)) / whole, 0.0, 1.0);
    } else {
        reading.progress = days <= 0 ? 1 : 0;
    }
    return reading;
}

SkyReading skyReading(const QDateTime& now, const std::optional<WeatherSnapshot>& weather, const QLocale& locale)
{
    SkyReading reading;
    reading.phase = MoonPhase::name(now);
    // A tenth of a percent of the lunation is 43 minutes: finer steps would only repaint.
    reading.fraction = std::round(MoonPhase::fraction(now) * 1000) / 1000;
    reading.illumination = Wording::tr("%1% lit").arg(Units::percent(MoonPhase::illumination(now)));
    const MoonPhase::Principal next = MoonPhase::next(now);
    const auto days = static_cast<int>(std::lround(next.days));
    reading.next = (days == 0 ? Wording::tr("%1 today") : Wording::tr("%1 in %n days", nullptr, days)).arg(next.name);
    if (weather)
        addSun(reading, *weather, now, locale);
    return reading;
}

} // namespace ambrelle
