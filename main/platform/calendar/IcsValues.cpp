// SPDX-License-Identifier: MIT

#include "platform/calendar/IcsValues.h"

#include <libical/ical.h>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr std::size_t longestText = 8192; // bytes, folds and escapes included
constexpr std::size_t longestValue = 16384; // of anything else but lists
constexpr std::size_t longestList = 1024 * 1024; // of dates, per line
constexpr int longestMoment = 64;
constexpr std::size_t mostRules = 20;
constexpr int mostDays = 3'660'000; // that something lasts: all years there are

/// Otherwise a damaged value may end the program.
void keepErrorsHarmless()
{
    static const bool isSetUp = (icalerror_set_errors_are_fatal(0), true);
    static_cast<void>(isSetUp);
}

bool hasZero(std::string_view text)
{
    return text.find('\0') != std::string_view::npos;
}

std::string_view boundedValue(const IcsLine& line, std::size_t longest)
{
    const auto value = line.value().substr(0, longest);
    return hasZero(value) ? std::string_view() : value;
}

/// Of a period its start.
std::optional<CalendarMoment> plainMoment(QByteArray value)
{
    using namespace std::chrono;
    if (const auto slash = value.indexOf('/'); slash >= 0)
        value.truncate(slash);
    const icaltimetype time = icaltime_from_string(value.left(longestMoment).trimmed().constData());
    if (icaltime_is_null_time(time) || time.year < 1 || time.year > 9999 || time.hour > 24 || time.minute > 59)
        return std::nullopt;
    const auto date = year(time.year) / time.month / time.day;
    if (!date.ok())
        return std::nullopt;
    CalendarMoment moment;
    moment.wallTime = local_days(date);
    moment.isDay = time.is_date;
    if (!moment.isDay)
        moment.wallTime += hours(time.hour) + minutes(time.minute) + seconds(time.second);
    if (icaltime_is_utc(time))
        moment.zone = CalendarZone::utc();
    return moment;
}

/// Of the form that vCalendar had before iCalendar: "=C3=A4", broken by "=" at the end of a line.
QByteArray unquoted(std::string_view value)
{
    QByteArray text(value.data(), static_cast<qsizetype>(value.size()));
    text.replace("=\r\n", "").replace("=\n", "");
    return QByteArray::fromPercentEncoding(text, '=');
}

} // namespace

QByteArray unescaped(const QByteArray& text)
{
    QByteArray plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size())
            plain.append(text[i]);
        else if (const char next = text[++i]; next == 'n' || next == 'N')
            plain.append(' ');
        else
            plain.append(next);
    }
    return plain;
}

QString textOf(const IcsLine& line)
{
    const auto value = boundedValue(line, longestText);
    const bool isQuoted = line.parameter("ENCODING").compare("QUOTED-PRINTABLE", Qt::CaseInsensitive) == 0;
    const QByteArray text = unescaped(isQuoted ? unquoted(value) : unfolded(value));
    const bool isLatin = line.parameter("CHARSET").compare("ISO-8859-1", Qt::CaseInsensitive) == 0;
    return isLatin ? QString::fromLatin1(text) : QString::fromUtf8(text);
}

IcsValues::IcsValues(const IcsComponent& component, FindZone findZone)
    : m_component(component)
    , m_findZone(std::move(findZone))
{
    keepErrorsHarmless();
}

const IcsLine* IcsValues::first(std::string_view name) const
{
    const auto line = std::ranges::find_if(m_component.lines, [name](const IcsLine& each) { return each.is(name); });
    return line == m_component.lines.end() ? nullptr : &*line;
}

QString IcsValues::text(std::string_view name) const
{
    const IcsLine* line = first(name);
    return line ? textOf(*line) : QString();
}

QByteArray IcsValues::raw(std::string_view name) const
{
    const IcsLine* line = first(name);
    return line ? unfolded(boundedValue(*line, longestText)) : QByteArray();
}

bool IcsValues::says(std::string_view name, const char* value) const
{
    const IcsLine* line = first(name);
    return line && unfolded(boundedValue(*line, longestText)).compare(value, Qt::CaseInsensitive) == 0;
}

QByteArray IcsValues::parameter(std::string_view name, std::string_view parameter) const
{
    const IcsLine* line = first(name);
    return line ? line->parameter(parameter) : QByteArray();
}

std::vector<QByteArray> IcsValues::rules() const
{
    std::vector<QByteArray> texts;
    for (const IcsLine& line : m_component.lines) {
        if (line.is("RRULE") && texts.size() < mostRules)
            texts.push_back(unfolded(boundedValue(line, longestValue)));
    }
    return texts;
}

std::optional<CalendarMoment> IcsValues::moment(std::string_view name) const
{
    const IcsLine* line = first(name);
    auto moment = line ? plainMoment(unfolded(boundedValue(*line, longestMoment))) : std::nullopt;
    if (moment && !moment->zone && !moment->isDay)
        moment->zone = zoneOf(*line);
    return moment;
}

std::shared_ptr<const CalendarZone> IcsValues::zoneOf(const IcsLine& line) const
{
    return m_findZone ? m_findZone(line.parameter("TZID")) : nullptr;
}

std::vector<CalendarMoment> IcsValues::dates(std::string_view name, std::size_t most) const
{
    std::vector<CalendarMoment> dates;
    for (const IcsLine& line : m_component.lines) {
        if (!line.is(name))
            continue;
        const auto zone = zoneOf(line);
        const QByteArray list = unfolded(boundedValue(line, longestList));
        for (qsizetype begin = 0; begin < list.size() && dates.size() < most;) {
            const qsizetype comma = list.indexOf(',', begin);
            const qsizetype end = comma < 0 ? list.size() : comma;
            if (auto date = plainMoment(list.mid(begin, end - begin))) {
                if (!date->zone && !date->isDay)
                    date->zone = zone;
                dates.push_back(*date);
            }
            begin = end + 1;
        }
    }
    return dates;
}

std::optional<CalendarLength> IcsValues::length(std::string_view name) const
{
    const IcsLine* line = first(name);
    if (!line)
        return std::nullopt;
    const auto duration = icaldurationtype_from_string(unfolded(boundedValue(*line, longestMoment)).constData());
    if (icaldurationtype_is_bad_duration(duration) || duration.is_neg)
        return std::nullopt;
    using namespace std::chrono;
    const std::int64_t wholeDays = duration.days + 7 * static_cast<std::int64_t>(duration.weeks);
    const auto time = hours(duration.hours) + minutes(duration.minutes) + seconds(duration.seconds);
    return CalendarLength{static_cast<int>(std::min<std::int64_t>(wholeDays, mostDays)),
        std::min<seconds>(time, std::chrono::days(mostDays))};
}

std::optional<std::chrono::seconds> IcsValues::offset(std::string_view name) const
{
    const IcsLine* line = first(name);
    if (!line)
        return std::nullopt;
    icalvalue* value =
        icalvalue_new_from_string(ICAL_UTCOFFSET_VALUE, unfolded(boundedValue(*line, longestMoment)).constData());
    if (!value)
        return std::nullopt;
    const std::chrono::seconds offset(icalvalue_get_utcoffset(value));
    icalvalue_free(value);
    return std::chrono::abs(offset) < std::chrono::days(1) ? std::optional(offset) : std::nullopt;
}

} // namespace ambrelle
