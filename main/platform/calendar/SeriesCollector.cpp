// SPDX-License-Identifier: MIT

#include "platform/calendar/SeriesCollector.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace ambrelle {

namespace {

/// Compares by whatever tells that one item is a later version of the other.
bool isOlder(const CalendarItem& one, const CalendarItem& other)
{
    return std::tie(one.sequence, one.modified) < std::tie(other.sequence, other.modified);
}

/// Of several changes of one occurrence the last version.
void settleChanges(std::vector<CalendarItem>& changes)
{
    using Occurrence = std::pair<std::chrono::sys_seconds, bool>;
    std::vector<std::pair<Occurrence, std::size_t>> order;
    order.reserve(changes.size());
    for (const CalendarItem& change : changes)
        order.push_back(
            {{change.recurrenceId->instant(*CalendarZone::utc()), change.recurrenceId->isDay}, order.size()});
    std::ranges::sort(order);
    std::vector<CalendarItem> settled;
    std::optional<Occurrence> last;
    for (const auto& [occurrence, index] : order) {
        if (last != occurrence)
            settled.push_back(std::move(changes[index]));
        else if (!isOlder(changes[index], settled.back()))
            settled.back() = std::move(changes[index]);
        last = occurrence;
    }
    changes = std::move(settled);
}

} // namespace

void SeriesCollector::add(CalendarItem item)
{
    const QByteArray key = (item.isReminder ? 'T' : 'E') + item.uid;
    auto place = m_places.constFind(key);
    if (place == m_places.constEnd()) {
        place = m_places.insert(key, m_series.size());
        m_series.emplace_back();
    }
    CalendarSeries& own = m_series[*place];
    if (item.recurrenceId)
        own.changes.push_back(std::move(item));
    else if (!own.master)
        own.master = std::move(item);
    else
        m_others.emplace_back(*place, std::move(item));
}

void SeriesCollector::settleMasters(std::size_t place, std::vector<CalendarItem> masters)
{
    const CalendarItem newest = *std::ranges::max_element(masters, isOlder);
    if (newest.isReminder) {
        // A tick has to find one and the same.
        std::ranges::reverse(masters);
        m_series[place].master = *std::ranges::max_element(masters, isOlder);
        return;
    }
    std::erase_if(masters, [&newest](const CalendarItem& item) { return isOlder(item, newest); });
    std::ranges::stable_sort(masters, [](const CalendarItem& one, const CalendarItem& other) {
        return std::tie(one.start->wallTime, one.title) < std::tie(other.start->wallTime, other.title);
    });
    masters.erase(std::ranges::unique(masters).begin(), masters.end());
    m_series[place].master = std::move(masters.front());
    for (auto master = std::next(masters.begin()); master != masters.end(); ++master) {
        m_series.emplace_back();
        m_series.back().master = std::move(*master);
    }
}

std::deque<CalendarSeries> SeriesCollector::taken()
{
    m_places.clear();
    std::ranges::stable_sort(m_others, {}, [](const auto& other) { return other.first; });
    while (!m_others.empty()) {
        const std::size_t place = m_others.front().first;
        std::vector<CalendarItem> masters;
        const auto next = std::ranges::upper_bound(m_others, place, {}, [](const auto& other) { return other.first; });
        masters.reserve(1 + static_cast<std::size_t>(next - m_others.begin()));
        masters.push_back(std::move(*m_series[place].master));
        for (; !m_others.empty() && m_others.front().first == place; m_others.pop_front())
            masters.push_back(std::move(m_others.front().second));
        settleMasters(place, std::move(masters));
    }
    for (CalendarSeries& series : m_series)
        settleChanges(series.changes);
    return std::move(m_series);
}

} // namespace ambrelle
