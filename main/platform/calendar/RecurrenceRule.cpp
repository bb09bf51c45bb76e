// SPDX-License-Identifier: MIT

#include "platform/calendar/RecurrenceRule.h"

#include "platform/calendar/RecurrencePeriods.h"

#include <libical/ical.h>

#include <algorithm>
#include <span>

namespace ambrelle {

namespace {

using Frequency = RecurrenceRule::Frequency;

constexpr std::size_t mostTimesOfDay = 24 * 60;

std::optional<Frequency> frequencyOf(icalrecurrencetype_frequency frequency)
{
    switch (frequency) {
    case ICAL_SECONDLY_RECURRENCE: return Frequency::secondly;
    case ICAL_MINUTELY_RECURRENCE: return Frequency::minutely;
    case ICAL_HOURLY_RECURRENCE: return Frequency::hourly;
    case ICAL_DAILY_RECURRENCE: return Frequency::daily;
    case ICAL_WEEKLY_RECURRENCE: return Frequency::weekly;
    case ICAL_MONTHLY_RECURRENCE: return Frequency::monthly;
    case ICAL_YEARLY_RECURRENCE: return Frequency::yearly;
    default: return std::nullopt;
    }
}

std::span<const short> used(std::span<const short> values)
{
    const auto end = std::ranges::find(values, short(ICAL_RECURRENCE_ARRAY_MAX));
    return values.first(static_cast<std::size_t>(end - values.begin()));
}

std::vector<int> numbers(std::span<const short> values)
{
    const auto filled = used(values);
    return {filled.begin(), filled.end()};
}

std::chrono::weekday weekdayOf(icalrecurrencetype_weekday day)
{
    return std::chrono::weekday(static_cast<unsigned>(day) - ICAL_SUNDAY_WEEKDAY);
}

std::vector<RecurrenceRule::Day> daysOf(std::span<const short> values)
{
    std::vector<RecurrenceRule::Day> days;
    for (const short value : used(values)) {
        const auto weekday = icalrecurrencetype_day_day_of_week(value);
        if (weekday != ICAL_NO_WEEKDAY)
            days.push_back({weekdayOf(weekday), icalrecurrencetype_day_position(value)});
    }
    return days;
}

std::optional<RecurrenceRule::Until> untilOf(const icaltimetype& time)
{
    if (icaltime_is_null_time(time))
        return std::nullopt;
    const auto date = std::chrono::year_month_day(std::chrono::year(time.year),
        std::chrono::month(static_cast<unsigned>(time.month)), std::chrono::day(static_cast<unsigned>(time.day)));
    if (!date.ok())
        return std::nullopt;
    const auto midnight = std::chrono::local_days(date);
    if (time.is_date)
        return RecurrenceRule::Until{midnight, false, true};
    const auto ofDay =
        std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) + std::chrono::seconds(time.second);
    return RecurrenceRule::Until{midnight + ofDay, static_cast<bool>(icaltime_is_utc(time)), false};
}

} // namespace

std::optional<RecurrenceRule> RecurrenceRule::parsed(const QByteArray& text)
{
    icalrecurrencetype raw = icalrecurrencetype_from_string(text.constData());
    const bool isForeign = raw.rscale && qstricmp(raw.rscale, "GREGORIAN") != 0;
    icalmemory_free_buffer(raw.rscale);
    const auto frequency = frequencyOf(raw.freq);
    if (!frequency || isForeign)
        return std::nullopt;
    RecurrenceRule rule;
    rule.frequency = *frequency;
    rule.interval = std::max<int>(raw.interval, 1);
    rule.count = std::max(raw.count, 0);
    rule.until = untilOf(raw.until);
    if (raw.week_start != ICAL_NO_WEEKDAY)
        rule.weekStart = weekdayOf(raw.week_start);
    rule.seconds = numbers(raw.by_second);
    rule.minutes = numbers(raw.by_minute);
    rule.hours = numbers(raw.by_hour);
    rule.days = daysOf(raw.by_day);
    rule.monthDays = numbers(raw.by_month_day);
    rule.yearDays = numbers(raw.by_year_day);
    rule.weekNumbers = numbers(raw.by_week_no);
    rule.months = numbers(raw.by_month);
    rule.positions = numbers(raw.by_set_pos);
    if (rule.hours.size() * rule.minutes.size() * rule.seconds.size() > mostTimesOfDay)
        return std::nullopt;
    return rule;
}

void RecurrenceRule::forgetTimes()
{
    hours.clear();
    minutes.clear();
    seconds.clear();
}

std::vector<RecurrenceRule::WallTime> RecurrenceRule::between(
    WallTime start, WallTime last, WallTime from, WallTime to, std::size_t most, Effort& effort) const
{
    std::vector<WallTime> found;
    RecurrencePeriods periods(*this, start);
    if (count == 0)
        periods.skipTo(from);
    int counted = 0;
    for (; periods.begin() < to && periods.begin() <= last && effort.take(periods.cost()); periods.advance()) {
        for (const WallTime moment : periods.moments()) {
            if (moment < start)
                continue;
            if (moment >= to || moment > last || (count > 0 && ++counted > count))
                return found;
            if (moment >= from)
                found.push_back(moment);
            if (found.size() >= most)
                return found;
        }
    }
    return found;
}

} // namespace ambrelle
