// SPDX-License-Identifier: MIT

#include "platform/calendar/ComponentEdit.h"

#include <algorithm>

namespace ambrelle {

namespace {

constexpr qsizetype foldedLine = 75; // bytes, of one line of the text

/// Broken into lines as the format wants it.
QByteArray folded(QByteArray content, const QByteArray& lineEnd)
{
    // Only ASCII is written here, so a break never falls into a letter that was not broken before.
    QByteArray text;
    while (content.size() > foldedLine) {
        text += content.first(foldedLine) + lineEnd + ' ';
        content.remove(0, foldedLine);
    }
    return text + content + lineEnd;
}

} // namespace

ComponentEdit::ComponentEdit(const IcsComponent& component)
    : m_component(component)
    , m_lineEnd(component.raw.substr(0, component.raw.find('\n')).ends_with('\r') ? "\r\n" : "\n")
{
    for (const IcsLine& line : component.lines)
        m_lines.push_back({line, {}, true});
}

bool ComponentEdit::has(const char* name) const
{
    return std::ranges::any_of(m_component.lines, [name](const IcsLine& line) { return line.is(name); });
}

QByteArray ComponentEdit::value(const char* name) const
{
    const auto line = std::ranges::find_if(m_component.lines, [name](const IcsLine& each) { return each.is(name); });
    return line == m_component.lines.end() ? QByteArray() : unfolded(line->value());
}

void ComponentEdit::set(const char* name, const QByteArray& value)
{
    bool isSet = false;
    for (Line& line : m_lines) {
        if (!line.original.is(name))
            continue;
        line.isKept = false;
        line.text = isSet ? QByteArray() : folded(QByteArray(name) + ':' + value, m_lineEnd);
        isSet = true;
    }
    if (!isSet)
        m_added += folded(QByteArray(name) + ':' + value, m_lineEnd);
}

void ComponentEdit::setValue(const char* name, const QByteArray& value)
{
    rewriteValues(name, [&value](const QByteArray&) { return value; });
}

void ComponentEdit::rewriteValues(const char* name, const std::function<QByteArray(const QByteArray& value)>& rewritten)
{
    for (Line& line : m_lines) {
        if (!line.original.is(name))
            continue;
        const std::string_view raw = line.original.raw;
        const std::string_view old = line.original.value();
        const QByteArray value = rewritten(unfolded(old));
        if (old.empty() || value == unfolded(old))
            continue;
        line.isKept = false;
        const auto head = static_cast<std::size_t>(old.data() - raw.data());
        line.text = folded(unfolded(raw.substr(0, head)) + value, m_lineEnd);
    }
}

void ComponentEdit::remove(const char* name)
{
    for (Line& line : m_lines) {
        if (line.original.is(name)) {
            line.isKept = false;
            line.text.clear();
        }
    }
}

QByteArray ComponentEdit::text() const
{
    const std::string_view raw = m_component.raw;
    const auto bytes = [](std::string_view part) {
        return QByteArray(part.data(), static_cast<qsizetype>(part.size()));
    };
    // Properties stand before alarms.
    std::size_t addAt = raw.find('\n') + 1;
    if (!m_lines.empty())
        addAt = static_cast<std::size_t>(
            m_lines.back().original.raw.data() + m_lines.back().original.raw.size() - raw.data());
    if (!m_component.parts.empty())
        addAt = std::min(addAt, static_cast<std::size_t>(m_component.parts.front().raw.data() - raw.data()));
    QByteArray text;
    std::size_t copied = 0;
    bool isAdded = false;
    const auto copyTo = [&](std::size_t end) {
        if (!isAdded && addAt <= end) {
            text += bytes(raw.substr(copied, addAt - copied)) + m_added;
            copied = addAt;
            isAdded = true;
        }
        text += bytes(raw.substr(copied, end - copied));
        copied = end;
    };
    for (const Line& line : m_lines) {
        const auto begin = static_cast<std::size_t>(line.original.raw.data() - raw.data());
        copyTo(begin);
        if (!line.isKept) {
            text += line.text;
            copied = begin + line.original.raw.size();
        }
    }
    copyTo(raw.size());
    return text;
}

} // namespace ambrelle
