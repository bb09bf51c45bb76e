// SPDX-License-Identifier: MIT

#include "platform/calendar/IcsReader.h"

#include <QByteArrayView>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr std::size_t mostProperties = 1000; // of the calendar itself

bool sameName(std::string_view one, std::string_view other)
{
    return QByteArrayView(one.data(), static_cast<qsizetype>(one.size()))
               .compare(QByteArrayView(other.data(), static_cast<qsizetype>(other.size())), Qt::CaseInsensitive)
        == 0;
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

std::string_view from(std::string_view begin, std::string_view end)
{
    return {begin.data(), static_cast<std::size_t>(end.data() + end.size() - begin.data())};
}

} // namespace

bool IcsLine::is(std::string_view wanted) const
{
    return sameName(name, wanted);
}

std::string_view IcsLine::value() const
{
    bool quoted = false;
    for (std::size_t i = name.size(); i < raw.size(); ++i) {
        if (raw[i] == '"')
            quoted = !quoted;
        else if (raw[i] == ':' && !quoted)
            return trimmed(raw.substr(i + 1));
    }
    return {};
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
}

std::optional<IcsComponent> IcsReader::next()
{
    while (const auto line = nextLine()) {
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
        do {
            end = m_text.find('\n', end);
            end = end == std::string_view::npos ? m_text.size() : end + 1;
        } while (end < m_text.size() && (m_text[end] == ' ' || m_text[end] == '\t'));
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
        m_open.front().parts.push_back(std::move(m_open.back()));
        m_open.pop_back();
    }
    return std::nullopt;
}

void IcsReader::keep(const IcsLine& line)
{
    if (m_skipped > 0)
        return;
    if (!m_open.empty())
        m_open.back().lines.push_back(line);
    else if (m_properties.size() < mostProperties)
        m_properties.push_back(line);
}

} // namespace ambrelle
