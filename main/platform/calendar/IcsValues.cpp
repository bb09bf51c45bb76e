// SPDX-License-Identifier: MIT

#include "platform/calendar/IcsValues.h"

#include <libical/ical.h>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr std::size_t longestValue = 512 * 1024; // bytes
constexpr std::size_t mostRules = 20;
constexpr int mostDays = 36600; // that something lasts

/// A component of these properties alone: descriptions, guests and attachments cost more than all the rest.
QByteArray excerpt(const IcsComponent& component, std::initializer_list<const char*> names)
{
    QByteArray text("BEGIN:VEVENT\r\n");
    for (const IcsLine& line : component.lines) {
        const bool wanted = std::ranges::any_of(names, [&line](const char* name) { return line.is(name); });
        if (wanted && line.raw.size() <= longestValue && line.raw.find('\0') == std::string_view::npos)
            text.append(line.raw.data(), static_cast<qsizetype>(line.raw.size()));
    }
    return text + "END:VEVENT\r\n";
}

icalcomponent* parse(const QByteArray& text)
{
    // Otherwise a damaged value may end the program.
    static const bool isSetUp = (icalerror_set_errors_are_fatal(0), true);
    return isSetUp ? icalparser_parse_string(text.constData()) : nullptr;
}

bool holds(icalproperty* property, icalvalue_kind kind)
{
    const icalvalue* value = icalproperty_get_value(property);
    return value && icalvalue_isa(value) == kind;
}

std::optional<CalendarMoment> plainMoment(const icaltimetype& time)
{
    using namespace std::chrono;
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

} // namespace

QByteArray unfolded(std::string_view value)
{
    QByteArray text;
    text.reserve(static_cast<qsizetype>(value.size()));
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '\r' && i + 1 < value.size() && value[i + 1] == '\n')
            continue;
        if (value[i] == '\n')
            ++i; // with the blank that marks the continuation
        else
            text.append(value[i]);
    }
    return text;
}

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

std::vector<QByteArray> ruleTexts(const IcsComponent& component)
{
    std::vector<QByteArray> texts;
    for (const IcsLine& line : component.lines) {
        if (line.is("RRULE") && line.raw.size() <= longestValue && texts.size() < mostRules)
            texts.push_back(unfolded(line.value()));
    }
    return texts;
}

IcsValues::IcsValues(const IcsComponent& component, std::initializer_list<const char*> names, FindZone findZone)
    : m_values(parse(excerpt(component, names)),
        [](icalcomponent* values) {
            if (values)
                icalcomponent_free(values);
        })
    , m_findZone(std::move(findZone))
{
}

icalproperty* IcsValues::first(const char* name) const
{
    return m_values ? icalcomponent_get_first_property(m_values.get(), icalproperty_string_to_kind(name)) : nullptr;
}

QString IcsValues::text(const char* name) const
{
    icalproperty* property = first(name);
    return property && holds(property, ICAL_TEXT_VALUE)
        ? QString::fromUtf8(icalvalue_get_text(icalproperty_get_value(property)))
        : QString();
}

std::optional<CalendarMoment> IcsValues::moment(const char* name) const
{
    icalproperty* property = first(name);
    return property ? momentOf(property) : std::nullopt;
}

std::optional<CalendarMoment> IcsValues::momentOf(icalproperty* property) const
{
    const icalvalue* value = icalproperty_get_value(property);
    std::optional<CalendarMoment> moment;
    if (holds(property, ICAL_DATETIME_VALUE))
        moment = plainMoment(icalvalue_get_datetime(value));
    else if (holds(property, ICAL_DATE_VALUE))
        moment = plainMoment(icalvalue_get_date(value));
    else if (holds(property, ICAL_DATETIMEPERIOD_VALUE))
        moment = plainMoment(icalvalue_get_datetimeperiod(value).time);
    else if (holds(property, ICAL_PERIOD_VALUE))
        moment = plainMoment(icalvalue_get_period(value).start);
    if (!moment || moment->zone || !m_findZone)
        return moment;
    icalparameter* parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    const char* zone = parameter ? icalparameter_get_tzid(parameter) : nullptr;
    if (zone && !moment->isDay)
        moment->zone = m_findZone(zone);
    return moment;
}

std::vector<CalendarMoment> IcsValues::dates(const char* name, std::size_t most) const
{
    std::vector<CalendarMoment> dates;
    const auto kind = icalproperty_string_to_kind(name);
    for (auto* property = first(name); property && dates.size() < most;
         property = icalcomponent_get_next_property(m_values.get(), kind)) {
        if (const auto date = momentOf(property))
            dates.push_back(*date);
    }
    return dates;
}

std::optional<CalendarLength> IcsValues::length(const char* name) const
{
    icalproperty* property = first(name);
    if (!property || !holds(property, ICAL_DURATION_VALUE))
        return std::nullopt;
    const auto duration = icalvalue_get_duration(icalproperty_get_value(property));
    if (icaldurationtype_is_bad_duration(duration) || duration.is_neg)
        return std::nullopt;
    using namespace std::chrono;
    const std::int64_t wholeDays = duration.days + 7 * static_cast<std::int64_t>(duration.weeks);
    const auto time = hours(duration.hours) + minutes(duration.minutes) + seconds(duration.seconds);
    return CalendarLength{static_cast<int>(std::min<std::int64_t>(wholeDays, mostDays)),
        std::min<seconds>(time, std::chrono::days(mostDays))};
}

std::optional<std::chrono::seconds> IcsValues::offset(const char* name) const
{
    icalproperty* property = first(name);
    if (!property || !holds(property, ICAL_UTCOFFSET_VALUE))
        return std::nullopt;
    const std::chrono::seconds offset(icalvalue_get_utcoffset(icalproperty_get_value(property)));
    return std::chrono::abs(offset) < std::chrono::days(1) ? std::optional(offset) : std::nullopt;
}

} // namespace ambrelle
