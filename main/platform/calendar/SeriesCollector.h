// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarItem.h"

#include <QHash>

#include <deque>
#include <utility>

namespace ambrelle {

/// Puts the items of one file together that share an identifier, and of several versions of the same keeps the last:
/// that with the highest sequence number, then that modified last, then that which stands last.
class SeriesCollector {
public:
    void add(CalendarItem item);
    /// Everything added. Two events that only share their identifier, neither a version of the other, are two series.
    std::deque<CalendarSeries> taken();

private:
    void settleMasters(std::size_t place, std::vector<CalendarItem> masters);

    std::deque<CalendarSeries> m_series;
    QHash<QByteArray, std::size_t> m_places; // in the series, by identifier
    std::deque<std::pair<std::size_t, CalendarItem>> m_others; // that came after the first of their place
};

} // namespace ambrelle
