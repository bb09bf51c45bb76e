// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarItem.h"
#include "platform/calendar/IcsReader.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace ambrelle {

/// The values of a component's properties, as libical understands them one at a time. Nothing is given for what is
/// missing, damaged or of another type than it should be; of a property that comes twice the first counts.
class IcsValues {
public:
    /// Gets the name that a moment gives, perhaps empty.
    using FindZone = std::function<std::shared_ptr<const CalendarZone>(const QByteArray& name)>;

    /// The component must outlive the values.
    explicit IcsValues(const IcsComponent& component, FindZone findZone = {});

    /// Without folds and whatever kind of escapes; at most some kilobytes of it.
    QString text(std::string_view name) const;
    /// As `text`, but untranslated bytes, escapes and all.
    QByteArray raw(std::string_view name) const;
    bool says(std::string_view name, const char* value) const; ///< whatever the case
    std::optional<CalendarMoment> moment(std::string_view name) const;
    std::vector<CalendarMoment> dates(std::string_view name, std::size_t most) const; ///< of all properties so named
    std::optional<CalendarLength> length(std::string_view name) const; ///< not below zero
    std::optional<std::chrono::seconds> offset(std::string_view name) const; ///< from UTC, less than a day
    std::vector<QByteArray> rules() const; ///< texts of RRULE
    QByteArray parameter(std::string_view name, std::string_view parameter) const;

private:
    const IcsLine* first(std::string_view name) const;
    std::shared_ptr<const CalendarZone> zoneOf(const IcsLine& line) const;

    const IcsComponent& m_component;
    FindZone m_findZone;
};

/// The text that a line holds, however it is written.
QString textOf(const IcsLine& line);
/// Text without its backslashes; a line break becomes a blank.
QByteArray unescaped(const QByteArray& text);

} // namespace ambrelle
