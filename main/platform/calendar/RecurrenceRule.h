// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <chrono>
#include <optional>
#include <vector>

namespace ambrelle {

/// How much work may still be done: a hostile calendar can ask for any amount. One step is about one candidate looked
/// at.
struct Effort {
    int steps = 5'000'000;
    bool hasRunOut = false; ///< more was asked for than there was

    bool take(int count)
    {
        hasRunOut = hasRunOut || steps <= count;
        steps = steps > count ? steps - count : 0;
        return steps > 0;
    }
    bool isSpent() const { return steps <= 0; }
};

/// A recurrence rule of RFC 5545, in the wall time of its event.
///
/// libical reads the rule but does not expand it: where a rule has no occurrences, a single step of its iterator
/// (3.0.16) searches for minutes, and nothing can stop it; FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30 took 351 s. Here every
/// candidate costs effort, and the effort ends.
struct RecurrenceRule {
    using WallTime = std::chrono::local_seconds;

    enum class Frequency { secondly, minutely, hourly, daily, weekly, monthly, yearly };
    struct Until {
        WallTime moment;
        bool isUtc = false;
        bool isDay = false;

        bool operator==(const Until&) const = default;
    };
    struct Day {
        std::chrono::weekday weekday;
        int position = 0; ///< first, second … or, below zero, from the end; 0: every one

        bool operator==(const Day&) const = default;
    };

    Frequency frequency = Frequency::daily;
    int interval = 1;
    int count = 0; ///< 0: without end
    std::optional<Until> until;
    std::chrono::weekday weekStart = std::chrono::Monday;
    std::vector<int> seconds;
    std::vector<int> minutes;
    std::vector<int> hours;
    std::vector<Day> days;
    std::vector<int> monthDays;
    std::vector<int> yearDays;
    std::vector<int> weekNumbers;
    std::vector<int> months;
    std::vector<int> positions;

    bool operator==(const RecurrenceRule&) const = default;

    /// None when the text is no rule, one of another calendar system, or one that means nearly every moment.
    static std::optional<RecurrenceRule> parsed(const QByteArray& text);

    /// For what lasts whole days: times within a day mean nothing to it.
    void forgetTimes();
    /// The occurrences from `from` until before `to`, in order, at most `most` of them, and none after `last`. Ends
    /// early, too, when the effort is used up. `start` is the first moment the rule may give, and completes it.
    std::vector<WallTime> between(
        WallTime start, WallTime last, WallTime from, WallTime to, std::size_t most, Effort& effort) const;
};

} // namespace ambrelle
