// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarItem.h"
#include "platform/calendar/IcsReader.h"

#include <QHash>

namespace ambrelle {

/// The content of one calendar file.
struct IcsFile {
    bool isCalendar = false; ///< not: whatever this is, it says nothing
    QString name; ///< that the file itself gives, often none
    QColor color;
    std::vector<CalendarSeries> series;
};

/// Understands calendar files. Nothing here fails: what cannot be understood is left out.
class IcsParser {
public:
    static constexpr int mostItems = 100'000; ///< of one file

    /// Learns the time zones of the text, which must outlive the parser.
    explicit IcsParser(std::string_view text);

    static IcsFile parsed(std::string_view text);
    /// The event or reminder in the component; none when it has no place in time where it needs one.
    std::optional<CalendarItem> item(const IcsComponent& component);

private:
    std::shared_ptr<const CalendarZone> zone(const QByteArray& name);

    QHash<QByteArray, IcsComponent> m_definitions; // of zones
    QHash<QByteArray, std::shared_ptr<const CalendarZone>> m_zones;
};

/// A colour as calendars write it: "#RRGGBB", with an opacity behind it that is ignored, or a name of CSS.
QColor calendarColor(const QString& text);

} // namespace ambrelle
