// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarZone.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace ambrelle {

CalendarZone::CalendarZone(const QTimeZone& zone)
    : m_zone(zone)
{
}

CalendarZone::CalendarZone(Seconds before, std::vector<Transition> transitions)
    : m_before(before)
    , m_transitions(std::move(transitions))
{
    std::ranges::stable_sort(m_transitions, {}, &Transition::at);
}

std::shared_ptr<const CalendarZone> CalendarZone::utc()
{
    static const auto zone = std::make_shared<const CalendarZone>(Seconds::zero(), std::vector<Transition>());
    return zone;
}

std::shared_ptr<const CalendarZone> CalendarZone::named(const QByteArray& name)
{
    if (name == "UTC" || name == "Z" || name == "GMT")
        return utc();
    // "/example.org/20011030_5/America/New_York": the longest end that is a name.
    for (QByteArray end = name; !end.isEmpty(); end = end.mid(end.indexOf('/') + 1)) {
        if (end.contains('/') && !end.startsWith('/') && QTimeZone::isTimeZoneIdAvailable(end))
            return std::make_shared<const CalendarZone>(QTimeZone(end));
        if (!end.contains('/'))
            break;
    }
    for (const QByteArray& id : {QTimeZone::windowsIdToDefaultIanaId(name), name}) {
        if (!id.isEmpty() && QTimeZone::isTimeZoneIdAvailable(id))
            return std::make_shared<const CalendarZone>(QTimeZone(id));
    }
    return nullptr;
}

CalendarZone::Seconds CalendarZone::offsetAt(Instant instant) const
{
    if (m_zone.isValid()) {
        const auto moment = QDateTime::fromSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC);
        return Seconds(m_zone.offsetFromUtc(moment));
    }
    const auto next = std::ranges::upper_bound(m_transitions, instant, {}, &Transition::at);
    return next == m_transitions.begin() ? m_before : std::prev(next)->offset;
}

CalendarZone::WallTime CalendarZone::wallTime(Instant instant) const
{
    return WallTime(instant.time_since_epoch() + offsetAt(instant));
}

CalendarZone::Instant CalendarZone::instant(WallTime wallTime) const
{
    // Offsets stay within a day, and no zone changes twice within two.
    const Instant asIfUtc(wallTime.time_since_epoch());
    const Seconds before = offsetAt(asIfUtc - std::chrono::days(1));
    const Seconds after = offsetAt(asIfUtc + std::chrono::days(1));
    const bool alreadyAfter = offsetAt(asIfUtc - before) != before && offsetAt(asIfUtc - after) == after;
    return asIfUtc - (alreadyAfter ? after : before);
}

} // namespace ambrelle
