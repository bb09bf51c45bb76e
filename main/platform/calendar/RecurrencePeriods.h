// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/RecurrenceRule.h"

#include <cstdint>

namespace ambrelle {

/// The years, months, weeks … that a rule steps through, and the moments it picks in each.
class RecurrencePeriods {
public:
    using WallTime = std::chrono::local_seconds;

    /// At the period of `start`, which also says what the rule leaves open.
    RecurrencePeriods(const RecurrenceRule& rule, WallTime start);

    /// Goes on to the last period that is not after `moment`, if that is ahead.
    void skipTo(WallTime moment);
    void advance() { ++m_index; }

    WallTime begin() const; ///< not after any of its moments
    int cost() const; ///< about how many candidates are looked at
    std::vector<WallTime> moments() const; ///< in order

private:
    using Days = std::chrono::local_days;
    using Seconds = std::chrono::seconds;
    struct Range {
        Days first;
        Days end;
    };
    /// What the rule says, completed by what the start says in its place.
    void complete(const RecurrenceRule& rule, WallTime start);
    Range days() const;
    bool picksDay(Days day) const; ///< in a month that is picked
    bool picksWeekday(Days day, const std::chrono::year_month_day& date) const;
    bool picksWeekNumber(Days day) const;
    std::vector<Seconds> timesOfDay() const;
    void pickPositions(std::vector<WallTime>& moments) const;

    RecurrenceRule m_rule;
    Days m_startDay;
    Seconds m_startTime{};
    std::int64_t m_index = 0; // of the period, counted in intervals from that of the start
};

} // namespace ambrelle
