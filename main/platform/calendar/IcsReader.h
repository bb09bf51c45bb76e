// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ambrelle {

/// One content line of a calendar file, with its line ends and the lines that continue it. The views are valid as long
/// as the text.
struct IcsLine {
    std::string_view name; ///< as written
    std::string_view raw;

    /// Property and component names do not tell case.
    bool is(std::string_view wanted) const;
    /// What follows the colon after name and parameters, still folded and without the line end.
    std::string_view value() const;
};

/// An event, reminder or time zone of a calendar file.
struct IcsComponent {
    std::string_view name;
    std::string_view raw; ///< from BEGIN to END, with both
    std::vector<IcsLine> lines; ///< its own, without BEGIN and END
    std::vector<IcsComponent> parts; ///< alarms, or the two halves of a time zone

    bool is(std::string_view wanted) const;
};

/// Cuts the text of a calendar file into the components the program understands, one at a time and without looking into
/// any property. What is damaged or cut off is left out; what stands after it is still found.
class IcsReader {
public:
    /// The text must outlive the reader.
    explicit IcsReader(std::string_view text);

    /// The next whole VEVENT, VTODO or VTIMEZONE.
    std::optional<IcsComponent> next();
    /// The lines of the calendar itself that were passed until now.
    const std::vector<IcsLine>& properties() const { return m_properties; }
    /// Whether the text starts as a calendar does.
    bool isCalendar() const { return m_isCalendar; }

private:
    std::optional<IcsLine> nextLine();
    void open(const IcsLine& line);
    std::optional<IcsComponent> close(const IcsLine& line);
    void keep(const IcsLine& line);

    std::string_view m_text;
    std::size_t m_position = 0;
    bool m_isCalendar = false;
    std::vector<IcsLine> m_properties;
    std::vector<IcsComponent> m_open; // the component and perhaps its part
    int m_skipped = 0; // levels of other components, or of too deep ones
};

} // namespace ambrelle
