// SPDX-License-Identifier: MIT

#include "platform/calendar/RecurrencePeriods.h"

#include <algorithm>

namespace ambrelle {

using namespace std::chrono;
using Frequency = RecurrenceRule::Frequency;

namespace {

using Days = local_days;

bool has(const std::vector<int>& values, int value)
{
    return std::ranges::find(values, value) != values.end();
}

bool allows(const std::vector<int>& values, int value)
{
    return values.empty() || has(values, value);
}

/// Counted from the front or, below zero, from the end.
bool allowsEither(const std::vector<int>& values, int number, int length)
{
    return values.empty() || has(values, number) || has(values, number - length - 1);
}

int dayOfYear(Days day, year year)
{
    return static_cast<int>((day - Days(year / January / 1)).count()) + 1;
}

int daysIn(year year)
{
    return year.is_leap() ? 366 : 365;
}

int daysIn(year_month month)
{
    return static_cast<int>(static_cast<unsigned>((month / last).day()));
}

Days beginOfWeek(Days day, weekday weekStart)
{
    return day - (weekday(day) - weekStart);
}

/// So many years on, but not beyond what dates can hold.
year later(year start, std::int64_t years)
{
    constexpr std::int64_t latest = 20000;
    return year(static_cast<int>(std::min(static_cast<int>(start) + years, latest)));
}

year_month later(year_month start, std::int64_t months)
{
    const std::int64_t sinceJanuary = static_cast<int>(static_cast<unsigned>(start.month())) - 1 + months;
    return later(start.year(), sinceJanuary / 12) / month(static_cast<unsigned>(sinceJanuary % 12) + 1);
}

} // namespace

RecurrencePeriods::RecurrencePeriods(const RecurrenceRule& rule, WallTime start)
    : m_startDay(floor<std::chrono::days>(start))
    , m_startTime(start - m_startDay)
{
    complete(rule, start);
}

void RecurrencePeriods::complete(const RecurrenceRule& rule, WallTime start)
{
    m_rule = rule;
    const year_month_day date{m_startDay};
    const hh_mm_ss time{start - m_startDay};
    const bool anyDay =
        rule.frequency <= Frequency::daily || !rule.days.empty() || !rule.monthDays.empty() || !rule.yearDays.empty();
    if (!anyDay && (rule.frequency == Frequency::weekly || !rule.weekNumbers.empty()))
        m_rule.days = {{weekday(m_startDay), 0}};
    else if (!anyDay)
        m_rule.monthDays = {static_cast<int>(static_cast<unsigned>(date.day()))};
    if (!anyDay && rule.frequency == Frequency::yearly && rule.months.empty() && rule.weekNumbers.empty())
        m_rule.months = {static_cast<int>(static_cast<unsigned>(date.month()))};
    if (rule.frequency > Frequency::hourly && rule.hours.empty())
        m_rule.hours = {static_cast<int>(time.hours().count())};
    if (rule.frequency > Frequency::minutely && rule.minutes.empty())
        m_rule.minutes = {static_cast<int>(time.minutes().count())};
    if (rule.frequency > Frequency::secondly && rule.seconds.empty())
        m_rule.seconds = {static_cast<int>(time.seconds().count())};
    for (auto* values : {&m_rule.hours, &m_rule.minutes, &m_rule.seconds}) {
        std::ranges::sort(*values);
        values->erase(std::ranges::unique(*values).begin(), values->end());
    }
}

void RecurrencePeriods::skipTo(WallTime moment)
{
    const auto day = floor<std::chrono::days>(moment);
    const WallTime start = m_startDay + m_startTime;
    const year_month_day from{m_startDay};
    const year_month_day to{day};
    const int years = static_cast<int>(to.year()) - static_cast<int>(from.year());
    std::int64_t ahead = 0;
    switch (m_rule.frequency) {
    case Frequency::yearly: ahead = years; break;
    case Frequency::monthly:
        ahead = years * 12 + static_cast<int>(static_cast<unsigned>(to.month()))
            - static_cast<int>(static_cast<unsigned>(from.month()));
        break;
    case Frequency::weekly: ahead = (day - beginOfWeek(m_startDay, m_rule.weekStart)) / weeks(1); break;
    case Frequency::daily: ahead = (day - m_startDay).count(); break;
    case Frequency::hourly: ahead = (moment - floor<hours>(start)) / hours(1); break;
    case Frequency::minutely: ahead = (moment - floor<minutes>(start)) / minutes(1); break;
    case Frequency::secondly: ahead = (moment - start).count(); break;
    }
    m_index = std::max(m_index, ahead / m_rule.interval);
}

RecurrencePeriods::Range RecurrencePeriods::days() const
{
    const std::int64_t step = m_index * m_rule.interval;
    const year_month_day start{m_startDay};
    switch (m_rule.frequency) {
    case Frequency::yearly: {
        const year year = later(start.year(), step);
        return {Days(year / January / 1), Days((year + years(1)) / January / 1)};
    }
    case Frequency::monthly: {
        const year_month month = later(start.year() / start.month(), step);
        return {Days(month / 1), Days((month + months(1)) / 1)};
    }
    case Frequency::weekly: {
        const Days week = beginOfWeek(m_startDay, m_rule.weekStart) + std::chrono::days(7 * step);
        return {week, week + std::chrono::days(7)};
    }
    default: {
        const Days day = floor<std::chrono::days>(begin());
        return {day, day + std::chrono::days(1)};
    }
    }
}

RecurrencePeriods::WallTime RecurrencePeriods::begin() const
{
    const std::int64_t step = m_index * m_rule.interval;
    const WallTime start = m_startDay + m_startTime;
    switch (m_rule.frequency) {
    case Frequency::daily: return m_startDay + std::chrono::days(step);
    case Frequency::hourly: return floor<hours>(start) + hours(step);
    case Frequency::minutely: return floor<minutes>(start) + minutes(step);
    case Frequency::secondly: return start + seconds(step);
    default: return days().first;
    }
}

int RecurrencePeriods::cost() const
{
    constexpr std::int64_t ofPeriod = 5;
    constexpr std::int64_t most = 1'000'000'000;
    const auto size = [](const auto& values) { return static_cast<std::int64_t>(values.size()); };
    const Range range = days();
    const std::int64_t length = (range.end - range.first).count();
    const std::int64_t ofMonths = m_rule.months.empty() ? length : 31 * size(m_rule.months);
    const std::int64_t looked = std::min(length, ofMonths);
    const std::int64_t times = std::max<std::int64_t>(size(m_rule.hours), 1)
        * std::max<std::int64_t>(size(m_rule.minutes), 1) * std::max<std::int64_t>(size(m_rule.seconds), 1);
    // Lists are searched for each day, positions for each moment.
    const std::int64_t lists =
        size(m_rule.days) + size(m_rule.monthDays) + size(m_rule.yearDays) + size(m_rule.weekNumbers);
    const std::int64_t positions = times * size(m_rule.positions);
    return static_cast<int>(std::min(ofPeriod + looked * (1 + times / 8 + lists / 16 + positions / 16), most));
}

bool RecurrencePeriods::picksDay(Days day) const
{
    const year_month_day date{day};
    return allowsEither(m_rule.monthDays, static_cast<int>(static_cast<unsigned>(date.day())),
               daysIn(date.year() / date.month()))
        && allowsEither(m_rule.yearDays, dayOfYear(day, date.year()), daysIn(date.year())) && picksWeekNumber(day)
        && picksWeekday(day, date);
}

bool RecurrencePeriods::picksWeekday(Days day, const year_month_day& date) const
{
    if (m_rule.days.empty())
        return true;
    const bool ofMonth =
        m_rule.frequency == Frequency::monthly || (m_rule.frequency == Frequency::yearly && !m_rule.months.empty());
    const bool ofYear = m_rule.frequency == Frequency::yearly && !ofMonth && m_rule.weekNumbers.empty();
    const int number = ofMonth ? static_cast<int>(static_cast<unsigned>(date.day())) : dayOfYear(day, date.year());
    const int length = ofMonth ? daysIn(date.year() / date.month()) : daysIn(date.year());
    return std::ranges::any_of(m_rule.days, [&](const RecurrenceRule::Day& wanted) {
        if (wanted.weekday != weekday(day))
            return false;
        if (wanted.position == 0 || (!ofMonth && !ofYear))
            return true;
        return wanted.position == (number - 1) / 7 + 1 || wanted.position == -((length - number) / 7 + 1);
    });
}

bool RecurrencePeriods::picksWeekNumber(Days day) const
{
    if (m_rule.weekNumbers.empty())
        return true;
    // A week belongs to the year that has most of its days, so to that of its fourth.
    const auto fourthDay = [this](Days any) { return beginOfWeek(any, m_rule.weekStart) + std::chrono::days(3); };
    const auto number = [&](Days any) {
        const Days fourth = fourthDay(any);
        return (dayOfYear(fourth, year_month_day(fourth).year()) - 1) / 7 + 1;
    };
    const year year = year_month_day(fourthDay(day)).year();
    return allowsEither(m_rule.weekNumbers, number(day), number(Days(year / December / 28)));
}

std::vector<RecurrencePeriods::Seconds> RecurrencePeriods::timesOfDay() const
{
    const hh_mm_ss time{begin() - floor<std::chrono::days>(begin())};
    const auto parts = [](const std::vector<int>& values, bool isFixed, int fixed) {
        if (!isFixed)
            return values;
        return allows(values, fixed) ? std::vector<int>{fixed} : std::vector<int>();
    };
    const auto wantedHours =
        parts(m_rule.hours, m_rule.frequency <= Frequency::hourly, static_cast<int>(time.hours().count()));
    const auto wantedMinutes =
        parts(m_rule.minutes, m_rule.frequency <= Frequency::minutely, static_cast<int>(time.minutes().count()));
    const auto wantedSeconds =
        parts(m_rule.seconds, m_rule.frequency == Frequency::secondly, static_cast<int>(time.seconds().count()));
    std::vector<Seconds> times;
    for (const int hour : wantedHours) {
        for (const int minute : wantedMinutes) {
            for (const int second : wantedSeconds)
                times.push_back(hours(hour) + minutes(minute) + seconds(std::min(second, 59)));
        }
    }
    return times;
}

std::vector<RecurrencePeriods::WallTime> RecurrencePeriods::moments() const
{
    std::vector<WallTime> moments;
    const auto [first, end] = days();
    const auto times = timesOfDay();
    if (times.empty())
        return moments;
    for (Days day = first; day < end;) {
        const year_month_day date{day};
        if (!allows(m_rule.months, static_cast<int>(static_cast<unsigned>(date.month())))) {
            day = Days((date.year() / date.month() + std::chrono::months(1)) / 1);
            continue;
        }
        if (picksDay(day)) {
            for (const Seconds time : times)
                moments.push_back(day + time);
        }
        day += std::chrono::days(1);
    }
    pickPositions(moments);
    return moments;
}

void RecurrencePeriods::pickPositions(std::vector<WallTime>& moments) const
{
    if (m_rule.positions.empty())
        return;
    std::vector<WallTime> picked;
    const int length = static_cast<int>(moments.size());
    for (int number = 1; number <= length; ++number) {
        if (allowsEither(m_rule.positions, number, length))
            picked.push_back(moments[static_cast<std::size_t>(number - 1)]);
    }
    moments = std::move(picked);
}

} // namespace ambrelle
