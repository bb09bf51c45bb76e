// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QTimeZone>

#include <chrono>
#include <memory>
#include <vector>

namespace ambrelle {

/// The offsets of a place from UTC, by the system's tables or as a calendar file tells them.
class CalendarZone {
public:
    using Seconds = std::chrono::seconds;
    using Instant = std::chrono::sys_seconds;
    using WallTime = std::chrono::local_seconds;

    struct Transition {
        Instant at;
        Seconds offset{}; ///< from UTC, from then on

        bool operator==(const Transition&) const = default;
    };

    explicit CalendarZone(const QTimeZone& zone);
    /// `before` holds until the first transition.
    CalendarZone(Seconds before, std::vector<Transition> transitions);

    static std::shared_ptr<const CalendarZone> utc();
    /// A zone of the system by its name, also one with a maker's prefix or by its name in other systems; null when
    /// nobody knows it.
    static std::shared_ptr<const CalendarZone> named(const QByteArray& name);
    /// A zone as time zone choosers describe it, "(UTC-05:00) Eastern Time (US & Canada)": by its cities, else with
    /// that offset all year; null when the text is none.
    static std::shared_ptr<const CalendarZone> described(const QByteArray& text);

    Seconds offsetAt(Instant instant) const;
    WallTime wallTime(Instant instant) const;
    /// Of a wall time that comes twice the first; one that is skipped counts with the offset before the gap.
    Instant instant(WallTime wallTime) const;

private:
    QTimeZone m_zone; // invalid: the transitions count
    Seconds m_before{};
    std::vector<Transition> m_transitions; // in order
};

} // namespace ambrelle
