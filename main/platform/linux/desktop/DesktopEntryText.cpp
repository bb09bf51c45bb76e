// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/DesktopEntryText.h"

#include "foundation/PlainFile.h"

#include <QFile>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr qint64 longestEntry = 256 * 1024; // bytes; what is longer was not made by anything that starts programs

} // namespace

DesktopEntryText::DesktopEntryText(const QByteArray& text)
    : m_lines(text.split('\n'))
{
    const auto isGroup = [](const QByteArray& line) { return line.startsWith('['); };
    const auto isMain = [](const QByteArray& line) { return line.trimmed() == "[Desktop Entry]"; };
    const auto begin = std::ranges::find_if(m_lines, isMain);
    if (begin == m_lines.end())
        return;
    m_begin = begin - m_lines.begin();
    m_end = std::find_if(begin + 1, m_lines.end(), isGroup) - m_lines.begin();
}

std::optional<QByteArray> DesktopEntryText::contentOf(const QString& path)
{
    return readPlainFile(path, longestEntry);
}

qsizetype DesktopEntryText::lineOf(const QByteArray& key) const
{
    for (qsizetype line = m_begin + 1; line < m_end; ++line) {
        const qsizetype equals = m_lines[line].indexOf('=');
        if (equals > 0 && m_lines[line].first(equals).trimmed() == key)
            return line;
    }
    return -1;
}

std::optional<QByteArray> DesktopEntryText::value(const QByteArray& key) const
{
    const qsizetype line = lineOf(key);
    if (line < 0)
        return std::nullopt;
    return m_lines[line].mid(m_lines[line].indexOf('=') + 1).trimmed();
}

QStringList DesktopEntryText::list(const QByteArray& key) const
{
    return QString::fromUtf8(value(key).value_or(QByteArray())).split(u';', Qt::SkipEmptyParts);
}

void DesktopEntryText::set(const QByteArray& key, const QByteArray& value)
{
    const QByteArray text = key + '=' + value;
    if (const qsizetype line = lineOf(key); line >= 0) {
        m_lines[line] = text;
        return;
    }
    m_lines.insert(m_begin + 1, text);
    ++m_end;
}

void DesktopEntryText::remove(const QByteArray& key)
{
    for (qsizetype line = lineOf(key); line >= 0; line = lineOf(key)) {
        m_lines.removeAt(line);
        --m_end;
    }
}

QByteArray DesktopEntryText::exec(const QString& program)
{
    // First the rules of quoted arguments, then those of every text value.
    QByteArray quoted;
    for (const char letter : QFile::encodeName(program)) {
        if (QByteArrayView("\"`$\\").contains(letter))
            quoted += '\\';
        quoted += letter;
        if (letter == '%') // would begin a field code
            quoted += letter;
    }
    quoted.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r").replace('\t', "\\t");
    return '"' + quoted + '"';
}

} // namespace ambrelle
