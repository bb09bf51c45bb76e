// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

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
    /// A parameter's value in one piece, without quotes and backslashes; empty without the parameter.
    QByteArray parameter(std::string_view wanted) const;

private:
    std::string_view head() const; ///< name and parameters
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

    /// The next whole VEVENT, VTODO or VTIMEZONE. None, too, from a component on that has more lines than any needs.
    std::optional<IcsComponent> next();
    /// The lines of the calendar itself that were passed until now.
    const std::vector<IcsLine>& properties() const { return m_properties; }
    /// Whether the text starts as a calendar does.
    bool isCalendar() const { return m_isCalendar; }
    /// Whether the text was left at a component with too many lines.
    bool hasGivenUp() const { return m_lines > mostLines; }

private:
    static constexpr std::size_t mostLines = 100'000; // of one component: they take sixteen times their text

    std::optional<IcsLine> nextLine();
    void open(const IcsLine& line);
    std::optional<IcsComponent> close(const IcsLine& line);
    void keep(const IcsLine& line);

    std::string_view m_text;
    std::size_t m_position = 0;
    bool m_isCalendar = false;
    std::vector<IcsLine> m_properties;
    std::vector<IcsComponent> m_open; // the component and perhaps its part
    std::size_t m_lines = 0; // of what is open
    int m_skipped = 0; // levels of other components, or of too deep ones
};

/// A value without the line breaks that were put into it for length.
QByteArray unfolded(std::string_view value);

} // namespace ambrelle
