// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarItem.h"
#include "platform/calendar/IcsReader.h"

#include <QHash>
#include <QList>

#include <cstdint>
#include <deque>

namespace ambrelle {

/// The content of one calendar file.
struct IcsFile {
    bool isCalendar = false; ///< not: whatever this is, it says nothing
    bool isTooMuch = false; ///< it would take more memory or time than one file may, so it is left out
    std::int64_t bytes = 0; ///< of memory, about
    QString name; ///< that the file itself gives, often none
    QColor color;
    std::deque<CalendarSeries> series;
};

/// Understands calendar files. Nothing here fails: what cannot be understood is left out. What is understood of one
/// file takes no more than `mostBytes` and a certain effort.
class IcsParser {
public:
    static constexpr int mostItems = 100'000; ///< of one file
    static constexpr std::int64_t mostBytes = 80LL * 1024 * 1024; ///< of memory

    /// The text must outlive the parser. Whoever has one of the addresses `owners`, in small letters, owns the
    /// calendar; so does the one whose address is its name.
    explicit IcsParser(std::string_view text, QList<QByteArray> owners = {});

    static IcsFile parsed(std::string_view text, const QList<QByteArray>& owners = {});
    /// The event or reminder in the component; none when it has no place in time where it needs one.
    std::optional<CalendarItem> item(const IcsComponent& component);

private:
    std::shared_ptr<const CalendarZone> zone(const QByteArray& name);
    std::shared_ptr<const CalendarZone> newZone(const QByteArray& name);
    void readDefinitions();
    void learn(const std::vector<IcsLine>& properties);
    bool isDeclined(const IcsComponent& component) const;
    bool take(std::int64_t bytes);
    bool isSpent() const { return m_bytes >= mostBytes || m_effort.isSpent(); }

    std::string_view m_text;
    QList<QByteArray> m_owners;
    QByteArray m_usualZone; // of what names none
    std::optional<QHash<QByteArray, std::string_view>> m_definitions; // of zones
    QHash<QByteArray, std::shared_ptr<const CalendarZone>> m_zones;
    std::int64_t m_bytes = 0; // taken
    Effort m_effort{20'000'000};
};

/// A colour as calendars write it: "#RRGGBB", with an opacity behind it that is ignored, or a name of CSS.
QColor calendarColor(const QString& text);

} // namespace ambrelle
