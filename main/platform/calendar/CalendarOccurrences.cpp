// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarOccurrences.h"

#include <algorithm>
#include <ranges>

namespace ambrelle {

using namespace std::chrono;

namespace {

using Instant = sys_seconds;
using WallTime = local_seconds;

constexpr std::size_t mostOccurrences = 10'000; // of one series
constexpr auto longestGap = hours(2); // by which a wall time may be skipped
constexpr auto horizon = years(50); // to find the next occurrence in

/// Finds out which occurrences of an item are named in a list of moments: of a timed item by the moment or, when only
/// a day is given, all of that day.
class NamedOccurrences {
public:
    NamedOccurrences(const CalendarItem& item, const CalendarZone& local)
        : m_isAllDay(item.start->isDay)
        , m_zone(item.start->zoneOr(local))
        , m_local(local)
    {
    }
    void add(const CalendarMoment& moment)
    {
        if (m_isAllDay || moment.isDay)
            m_days.push_back(moment.day());
        else
            m_instants.push_back(moment.instant(m_local));
    }
    void settle()
    {
        std::ranges::sort(m_days);
        std::ranges::sort(m_instants);
    }
    bool contains(WallTime start) const
    {
        return std::ranges::binary_search(m_days, floor<days>(start))
            || (!m_instants.empty() && std::ranges::binary_search(m_instants, m_zone.instant(start)));
    }

private:
    bool m_isAllDay;
    const CalendarZone& m_zone;
    const CalendarZone& m_local;
    std::vector<local_days> m_days;
    std::vector<Instant> m_instants;
};

/// Whether a moment of any zone may be one between `from` and `to` in another.
bool isNear(const CalendarMoment& moment, WallTime from, WallTime to)
{
    constexpr days zones(2); // no two are further apart
    return moment.wallTime > from - zones && moment.wallTime < to + zones;
}

NamedOccurrences exceptionsOf(const CalendarItem& item, WallTime from, WallTime to, const CalendarZone& local)
{
    NamedOccurrences exceptions(item, local);
    for (const CalendarMoment& moment : item.exceptions) {
        if (isNear(moment, from, to))
            exceptions.add(moment);
    }
    exceptions.settle();
    return exceptions;
}

template <typename Wanted>
NamedOccurrences changesOf(const CalendarSeries& series, const CalendarZone& local, Wanted wanted)
{
    NamedOccurrences changes(*series.master, local);
    for (const CalendarItem& change : series.changes) {
        if (wanted(change))
            changes.add(*change.recurrenceId);
    }
    changes.settle();
    return changes;
}

/// All starts of the item, exceptions left out, in order.
std::vector<WallTime> starts(
    const CalendarItem& item, WallTime from, WallTime to, std::size_t most, const CalendarZone& local, Effort& effort)
{
    const WallTime first = item.start->wallTime;
    std::vector<WallTime> found;
    for (const RecurrenceRule& rule : item.rules) {
        const auto more = rule.between(first, CalendarOccurrences::lastOf(rule, item, local), from, to, most, effort);
        found.insert(found.end(), more.begin(), more.end());
    }
    const auto listed = (item.additions.size() + item.exceptions.size()) / 16;
    if (!effort.take(static_cast<int>(1 + listed)))
        return {};
    const CalendarZone& zone = item.start->zoneOr(local);
    const auto add = [&](WallTime start) {
        if (start >= from && start < to && start >= first)
            found.push_back(start);
    };
    add(first); // also when the rule would not give it
    for (const CalendarMoment& moment : item.additions) {
        if (moment.isDay)
            add(moment.wallTime + (item.start->wallTime - item.start->day()));
        else if (isNear(moment, from, to))
            add(zone.wallTime(moment.instant(local)));
    }
    if (item.start->isDay)
        std::ranges::transform(found, found.begin(), [](WallTime start) { return floor<days>(start); });
    std::ranges::sort(found);
    found.erase(std::ranges::unique(found).begin(), found.end());
    if (!found.empty() && !item.exceptions.empty()) {
        const auto exceptions = exceptionsOf(item, from, to, local);
        std::erase_if(found, [&exceptions](WallTime start) { return exceptions.contains(start); });
    }
    return found;
}

CalendarLength calendarLength(const CalendarItem& item, const CalendarZone& local)
{
    const CalendarMoment& start = *item.start;
    if (start.isDay) {
        int whole = 1;
        if (item.end)
            whole = static_cast<int>((item.end->day() - start.day()).count());
        else if (item.length)
            whole = item.length->days + static_cast<int>(ceil<days>(item.length->time).count());
        return {std::max(whole, 1), seconds(0)};
    }
    if (item.end)
        return {0, std::max(item.end->instant(local) - start.instant(local), seconds(0))};
    return item.length.value_or(CalendarLength());
}

Instant endOf(const CalendarItem& item, WallTime start, const CalendarLength& length, const CalendarZone& local)
{
    return item.start->zoneOr(local).instant(start + days(length.days)) + length.time;
}

bool isOff(const CalendarItem& event)
{
    return event.isCancelled || event.isDeclined;
}

/// What one series may take of a file's effort: one that asks for too much leaves something to the others.
struct Share {
    explicit Share(Effort& whole)
        : effort{whole.steps / 4}
        , m_whole(whole)
        , m_given(effort.steps)
    {
    }
    ~Share()
    {
        m_whole.steps -= m_given - effort.steps;
        m_whole.hasRunOut = m_whole.hasRunOut || effort.hasRunOut;
    }
    Share(const Share&) = delete;
    Share& operator=(const Share&) = delete;

    Effort effort;

private:
    Effort& m_whole;
    int m_given;
};

/// The series' own item and the changes that hold from an occurrence on, each for its time.
class Versions {
public:
    Versions(const CalendarSeries& series, const CalendarZone& local)
        : m_local(local)
    {
        m_versions.push_back(
            {series.master.operator->(), Instant::min(), seconds(0), calendarLength(*series.master, local)});
        for (const CalendarItem& change : series.changes) {
            if (!change.appliesOn)
                continue;
            const Instant original = change.recurrenceId->isDay
                ? series.master->start->zoneOr(local).instant(change.recurrenceId->wallTime)
                : change.recurrenceId->instant(local);
            const auto shift = change.start->wallTime - change.start->zoneOr(local).wallTime(original);
            m_versions.push_back({&change, original, shift, calendarLength(change, local)});
        }
        std::ranges::stable_sort(m_versions, {}, &Version::from);
    }

    /// How long before a time an occurrence that touches it may have had its original start.
    seconds longestBefore() const
    {
        const auto before = [](const Version& version) {
            return version.shift + days(version.length.days) + version.length.time;
        };
        return std::max(seconds(0), std::ranges::max(m_versions | std::views::transform(before)));
    }
    /// How long after a time.
    seconds longestAfter() const
    {
        return std::max(seconds(0), -std::ranges::min(m_versions, {}, &Version::shift).shift);
    }
    /// The occurrence that the series would start at `original`, by its own clocks `start`; none when it is off.
    std::optional<EventOccurrence> at(WallTime start, Instant original) const
    {
        const auto next = std::ranges::upper_bound(m_versions, original, {}, &Version::from);
        const Version& version = *std::prev(next);
        const CalendarItem& item = *version.item;
        if (isOff(item))
            return std::nullopt;
        if (version.from == Instant::min())
            return EventOccurrence{&item, original, endOf(item, start, version.length, m_local)};
        const CalendarZone& zone = item.start->zoneOr(m_local);
        WallTime moved = zone.wallTime(original) + version.shift;
        if (item.start->isDay)
            moved = floor<days>(moved);
        return EventOccurrence{&item, zone.instant(moved), endOf(item, moved, version.length, m_local)};
    }

private:
    struct Version {
        const CalendarItem* item;
        Instant from; // original start of its first occurrence
        seconds shift; // of their starts, in its own wall time
        CalendarLength length;
    };

    const CalendarZone& m_local;
    std::vector<Version> m_versions; // by time
};

bool touches(const EventOccurrence& event, Instant from, Instant to)
{
    return event.start < to && (event.end > from || (event.end == event.start && event.start >= from));
}

EventOccurrence single(const CalendarItem& item, const CalendarZone& local)
{
    return {&item, item.start->instant(local), endOf(item, item.start->wallTime, calendarLength(item, local), local)};
}

std::optional<CalendarMoment> dueOf(const CalendarItem& item, WallTime start)
{
    if (!item.start)
        return std::nullopt;
    CalendarMoment due = *item.start;
    due.wallTime = start;
    if (item.end) {
        due = *item.end;
        due.wallTime += start - item.start->wallTime;
    } else if (item.length) {
        due.wallTime += days(item.length->days) + item.length->time;
    } else if (!item.isRecurring()) {
        return std::nullopt; // a start is not yet a due date
    }
    return due;
}

OpenReminder plain(const CalendarItem& item)
{
    return {&item, item.start ? dueOf(item, item.start->wallTime) : std::nullopt, std::nullopt};
}

bool isDone(const CalendarItem& item)
{
    return item.isCompleted || item.isCancelled;
}

} // namespace

WallTime CalendarOccurrences::lastOf(const RecurrenceRule& rule, const CalendarItem& item, const CalendarZone& local)
{
    if (!rule.until)
        return WallTime::max();
    const auto& until = *rule.until;
    if (until.isDay || item.start->isDay)
        return floor<days>(until.moment) + days(1) - seconds(1);
    if (until.isUtc)
        return item.start->zoneOr(local).wallTime(Instant(until.moment.time_since_epoch()));
    return until.moment;
}

std::vector<EventOccurrence> CalendarOccurrences::events(
    const CalendarSeries& series, Instant from, Instant to, const CalendarZone& local, Effort& effort)
{
    std::vector<EventOccurrence> found;
    if (series.master && series.master->isCancelled)
        return found;
    const auto add = [&](const EventOccurrence& event) {
        if (touches(event, from, to))
            found.push_back(event);
    };
    Share share(effort);
    if (!share.effort.take(static_cast<int>(5 + 5 * series.changes.size())))
        return found;
    for (const CalendarItem& change : series.changes) {
        if (!isOff(change))
            add(single(change, local));
    }
    if (!series.master || !series.master->start)
        return found;
    const Versions versions(series, local);
    const CalendarZone& zone = series.master->start->zoneOr(local);
    const WallTime earliest = zone.wallTime(from) - versions.longestBefore() - longestGap;
    const WallTime latest = zone.wallTime(to) + versions.longestAfter() + longestGap;
    const auto changed = changesOf(series, local, [](const CalendarItem&) { return true; });
    const auto all = starts(*series.master, earliest, latest, mostOccurrences, local, share.effort);
    share.effort.hasRunOut = share.effort.hasRunOut || all.size() >= mostOccurrences;
    for (const WallTime start : all) {
        if (changed.contains(start))
            continue;
        if (const auto event = versions.at(start, zone.instant(start)))
            add(*event);
    }
    return found;
}

std::optional<WallTime> CalendarOccurrences::nextStart(
    const CalendarSeries& series, WallTime from, const CalendarZone& local, Effort& effort)
{
    const CalendarItem& master = *series.master;
    const auto done = changesOf(series, local, isDone);
    const std::size_t most = 1 + master.exceptions.size() + series.changes.size();
    const auto day = floor<days>(from);
    const WallTime to = local_days((year_month_day(day).year() + horizon) / January / 1);
    for (const WallTime start : starts(master, from, to, most, local, effort)) {
        if (!done.contains(start))
            return start;
    }
    return std::nullopt;
}

std::vector<OpenReminder> CalendarOccurrences::reminders(
    const CalendarSeries& series, const CalendarZone& local, Effort& effort)
{
    std::vector<OpenReminder> open;
    Share share(effort);
    if (!share.effort.take(static_cast<int>(5 + 5 * series.changes.size())))
        return open;
    if (!series.master) {
        for (const CalendarItem& change : series.changes) {
            if (!isDone(change))
                open.push_back(plain(change));
        }
        return open;
    }
    const CalendarItem& master = *series.master;
    if (isDone(master))
        return open;
    if (!master.isRecurring() || !master.start)
        return {plain(master)};
    const auto start = nextStart(series, master.start->wallTime, local, share.effort);
    if (!start)
        return open;
    for (const CalendarItem& change : series.changes) {
        NamedOccurrences own(master, local);
        own.add(*change.recurrenceId);
        if (own.contains(*start))
            return {plain(change)};
    }
    return {{&master, dueOf(master, *start), start}};
}

} // namespace ambrelle
