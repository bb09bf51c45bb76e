// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarItem.h"
#include "platform/calendar/IcsReader.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <initializer_list>

struct icalcomponent_impl;
struct icalproperty_impl;

namespace ambrelle {

/// The values of some properties of a component, as libical understands them. Nothing is given for what is missing,
/// damaged or of another type than it should be.
class IcsValues {
public:
    using FindZone = std::function<std::shared_ptr<const CalendarZone>(const QByteArray& name)>;

    /// Only the properties with these names can be asked for.
    IcsValues(const IcsComponent& component, std::initializer_list<const char*> names, FindZone findZone = {});

    QString text(const char* name) const;
    std::optional<CalendarMoment> moment(const char* name) const;
    std::vector<CalendarMoment> dates(const char* name, std::size_t most) const; ///< of all properties of that name
    std::optional<CalendarLength> length(const char* name) const; ///< not below zero
    std::optional<std::chrono::seconds> offset(const char* name) const; ///< from UTC, less than a day

private:
    icalproperty_impl* first(const char* name) const;
    std::optional<CalendarMoment> momentOf(icalproperty_impl* property) const;

    std::unique_ptr<icalcomponent_impl, void (*)(icalcomponent_impl*)> m_values;
    FindZone m_findZone;
};

/// A value without the line breaks that were put into it for length.
QByteArray unfolded(std::string_view value);
/// Text without its backslashes; a line break becomes a blank.
QByteArray unescaped(const QByteArray& text);
/// The component's recurrence rules.
std::vector<QByteArray> ruleTexts(const IcsComponent& component);

} // namespace ambrelle
