// SPDX-License-Identifier: MIT

#include "platform/calendar/IcsReader.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr std::size_t mostProperties = 1000; // of the calendar itself
constexpr std::size_t mostParts = 1000; // of one component
constexpr std::size_t longestHead = 4096; // bytes of name and parameters

char upper(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool sameName(std::string_view one, std::string_view other)
{
    return one.size() == other.size()
        && std::ranges::equal(one, other, [](char a, char b) { return upper(a) == upper(b); });
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isKnown(std::string_view component)
{
    return sameName(component, "VEVENT") || sameName(component, "VTODO") || sameName(component, "VTIMEZONE");
}

/// Where the head of a line ends at its colon. One in quotes does not count, nor does one in parentheses, as in
/// "(UTC+01:00) Berlin", unless there is no other.
std::size_t colonOf(std::string_view raw)
{
    bool quoted = false;
    int depth = 0;
    std::size_t inside = std::string_view::npos;
    for (std::size_t i = 0; i < std::min(raw.size(), longestHead); ++i) {
        if (raw[i] == '"')
            quoted = !quoted;
        else if (quoted)
            continue;
        else if (raw[i] == '(' || raw[i] == ')')
            depth += raw[i] == '(' ? 1 : -1;
        else if (raw[i] == ':' && depth <= 0)
            return i;
        else if (raw[i] == ':')
            inside = std::min(inside, i);
    }
    return inside;
}

/// Whether a line goes on after a break that an older form of calendars marks with "=". `begin` is where the line
/// begins in `text`, `last` where that of its parts does which ends at `end`: nothing else is looked at, however long
/// it grows.
bool breaksSoftly(std::string_view text, std::size_t begin, std::size_t last, std::size_t end)
{
    const auto part = text.substr(last, end - last);
    const auto mark = part.find_last_not_of("\r\n");
    if (mark == std::string_view::npos || part[mark] != '=')
        return false;
    constexpr std::string_view encoding = "QUOTED-PRINTABLE";
    const auto start = text.substr(begin, std::min<std::size_t>(end - begin, 256));
    const auto head = start.substr(0, start.find(':'));
    return !std::ranges::search(head, encoding, {}, upper).empty();
}

std::string_view from(std::string_view begin, std::string_view end)
{
    return {begin.data(), static_cast<std::size_t>(end.data() + end.size() - begin.data())};
}

} // namespace

bool IcsLine::is(std::string_view wanted) const
{
    return sameName(name, wanted);
}

std::string_view IcsLine::head() const
{
    const auto colon = colonOf(raw);
    return colon < raw.size() ? raw.substr(0, colon) : std::string_view();
}

std::string_view IcsLine::value() const
{
    const auto colon = name.size() < raw.size() && raw[name.size()] == ':' ? name.size() : colonOf(raw);
    return colon < raw.size() ? trimmed(raw.substr(colon + 1)) : std::string_view();
}

QByteArray IcsLine::parameter(std::string_view wanted) const
{
    if (name.size() == raw.size() || raw[name.size()] != ';')
        return {};
    const QByteArray text = unfolded(head());
    QByteArray value;
    bool quoted = false;
    bool isWanted = false;
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        const char letter = i < text.size() ? text[i] : ';';
        if (letter == '"' && i < text.size()) {
            quoted = !quoted;
        } else if (!quoted && letter == ';') {
            if (isWanted)
                return value;
            begin = i + 1;
        } else if (!quoted && letter == '=' && !isWanted) {
            isWanted = sameName({text.constData() + begin, static_cast<std::size_t>(i - begin)}, wanted);
        } else if (isWanted && letter != '\\') {
            value += letter;
        }
    }
    return {};
}

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

bool IcsComponent::is(std::string_view wanted) const
{
    return sameName(name, wanted);
}

IcsReader::IcsReader(std::string_view text)
    : m_text(text)
{
    if (m_text.starts_with("\xEF\xBB\xBF"))
        m_text.remove_prefix(3);
    const auto first = nextLine();
    m_isCalendar = first && first->is("BEGIN") && sameName(first->value(), "VCALENDAR");
    m_position = 0;
}

std::optional<IcsComponent> IcsReader::next()
{
    while (const auto line = hasGivenUp() ? std::nullopt : nextLine()) {
        if (line->is("BEGIN"))
            open(*line);
        else if (!line->is("END"))
            keep(*line);
        else if (auto whole = close(*line))
            return whole;
    }
    return std::nullopt;
}

std::optional<IcsLine> IcsReader::nextLine()
{
    std::size_t begin = m_position;
    while (begin < m_text.size()) {
        std::size_t end = begin;
        std::size_t last = begin;
        do {
            last = end;
            end = m_text.find('\n', end);
            end = end == std::string_view::npos ? m_text.size() : end + 1;
        } while (end < m_text.size()
            && (m_text[end] == ' ' || m_text[end] == '\t' || breaksSoftly(m_text, begin, last, end)));
        m_position = end;
        const auto raw = m_text.substr(begin, end - begin);
        if (!trimmed(raw).empty())
            return IcsLine{raw.substr(0, std::min(raw.find_first_of(":;\r\n"), raw.size())), raw};
        begin = end;
    }
    return std::nullopt;
}

void IcsReader::open(const IcsLine& line)
{
    const auto name = line.value();
    if (isKnown(name)) {
        m_open.clear(); // one that never ended
        m_skipped = 0;
        m_lines = 0;
        m_open.push_back({name, line.raw, {}, {}});
    } else if (m_open.size() == 1 && m_skipped == 0) {
        m_open.push_back({name, line.raw, {}, {}});
    } else if (!m_open.empty() || !sameName(name, "VCALENDAR")) {
        ++m_skipped;
    }
}

std::optional<IcsComponent> IcsReader::close(const IcsLine& line)
{
    const auto name = line.value();
    if (!m_open.empty() && m_open.front().is(name)) {
        auto whole = std::move(m_open.front());
        whole.raw = from(whole.raw, line.raw);
        m_open.clear();
        m_skipped = 0;
        return whole;
    }
    if (sameName(name, "VCALENDAR")) {
        m_open.clear();
        m_skipped = 0;
    } else if (m_skipped > 0) {
        --m_skipped;
    } else if (m_open.size() == 2 && m_open.back().is(name)) {
        m_open.back().raw = from(m_open.back().raw, line.raw);
        if (m_open.front().parts.size() < mostParts)
            m_open.front().parts.push_back(std::move(m_open.back()));
        m_open.pop_back();
    }
    return std::nullopt;
}

void IcsReader::keep(const IcsLine& line)
{
    if (m_skipped > 0)
        return;
    if (!m_open.empty()) {
        if (++m_lines <= mostLines)
            m_open.back().lines.push_back(line);
    } else if (m_properties.size() < mostProperties) {
        m_properties.push_back(line);
    }
}

} // namespace ambrelle
