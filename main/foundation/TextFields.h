// SPDX-License-Identifier: MIT

#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace ambrelle {

/// Takes everything up to the next `separator` (or the end) off the front of `text`.
inline std::string_view takeUntil(std::string_view& text, char separator)
{
    const auto end = text.find(separator);
    const auto taken = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return taken;
}

inline std::string_view takeLine(std::string_view& text)
{
    return takeUntil(text, '\n');
}

inline std::string_view withoutLeadingBlanks(std::string_view text)
{
    const auto begin = text.find_first_not_of(" \t");
    return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
}

/// Takes the next word between blanks off the front of `line`; empty at the end.
inline std::string_view takeField(std::string_view& line)
{
    line = withoutLeadingBlanks(line);
    const auto end = line.find_first_of(" \t");
    const auto field = line.substr(0, end);
    line.remove_prefix(field.size());
    return field;
}

/// The number that `text` is; nothing if anything else stands in it or it does not fit.
template <class Number> std::optional<Number> toNumber(std::string_view text)
{
    Number number{};
    const auto* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stopped != end)
        return std::nullopt;
    return number;
}

/// The number in the next field of `line`.
template <class Number> std::optional<Number> takeNumber(std::string_view& line)
{
    return toNumber<Number>(takeField(line));
}

} // namespace ambrelle
