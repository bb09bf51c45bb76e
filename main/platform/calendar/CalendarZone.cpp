// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarZone.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestZoneName = 64;
const QString tables = u"/usr/share/zoneinfo/"_s;

/// Links such as "US/Eastern" are missing in the toolkit's list, so the zone itself is asked. But the toolkit also
/// takes any single word for a zone at UTC: such a name must be that of a table.
bool isZoneName(const QByteArray& name)
{
    static const QRegularExpression form(u"^[A-Z][A-Za-z0-9_+-]*(/[A-Z][A-Za-z0-9_+-]*)*$"_s);
    if (name.size() > longestZoneName)
        return false;
    if (QTimeZone::isTimeZoneIdAvailable(name))
        return true;
    if (!form.match(QString::fromLatin1(name)).hasMatch())
        return false;
    const bool isWord = !name.contains('/');
    return (!isWord || QFileInfo::exists(tables + QString::fromLatin1(name))) && QTimeZone(name).isValid();
}

/// Any moment at which the northern half has its standard time; the southern half tells it by itself.
QDateTime someWinter()
{
    return {QDate(2025, 1, 1), QTime(0, 0), Qt::UTC};
}

} // namespace

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
        if (end.contains('/') && isZoneName(end))
            return std::make_shared<const CalendarZone>(QTimeZone(end));
        if (!end.contains('/'))
            break;
    }
    for (const QByteArray& id : {QTimeZone::windowsIdToDefaultIanaId(name), name}) {
        if (isZoneName(id))
            return std::make_shared<const CalendarZone>(QTimeZone(id));
    }
    return nullptr;
}

std::shared_ptr<const CalendarZone> CalendarZone::described(const QByteArray& text)
{
    static const QRegularExpression form(u"^\\((?:UTC|GMT)(?:([+-])(\\d\\d):(\\d\\d))?\\) *(.*)$"_s);
    const auto parts = form.match(QString::fromUtf8(text));
    if (!parts.hasMatch())
        return nullptr;
    const Seconds ahead =
        std::chrono::hours(parts.capturedView(2).toInt()) + std::chrono::minutes(parts.capturedView(3).toInt());
    const Seconds offset = parts.capturedView(1) == "-"_L1 ? -ahead : ahead;
    QString places = parts.captured(4);
    const auto fits = [offset](const QByteArray& id) {
        return isZoneName(id) && QTimeZone(id).standardTimeOffset(someWinter()) == offset.count();
    };
    const QByteArray american = places.replace("Time (US & Canada)"_L1, "Standard Time"_L1).toLatin1();
    if (const QByteArray id = QTimeZone::windowsIdToDefaultIanaId(american); fits(id))
        return std::make_shared<const CalendarZone>(QTimeZone(id));
    const auto known = QTimeZone::availableTimeZoneIds();
    for (const QString& place : places.split(QRegularExpression(u"[,:]"_s), Qt::SkipEmptyParts)) {
        const QByteArray city = '/' + place.trimmed().replace(u' ', u'_').toLatin1();
        const auto zone =
            std::ranges::find_if(known, [&](const QByteArray& id) { return id.endsWith(city) && fits(id); });
        if (zone != known.end())
            return std::make_shared<const CalendarZone>(QTimeZone(*zone));
    }
    return std::make_shared<const CalendarZone>(offset, std::vector<Transition>());
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
