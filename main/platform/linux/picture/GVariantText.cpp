// SPDX-License-Identifier: MIT

#include "platform/linux/picture/GVariantText.h"

#include <QHash>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QHash<QChar, QChar> controls{
    {u'a', u'\a'}, {u'b', u'\b'}, {u'f', u'\f'}, {u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}, {u'v', u'\v'}};

/// The character that the escape at `position` (behind the backslash) stands for; moves on to its last letter.
std::optional<QString> unescaped(const QString& text, qsizetype& position)
{
    const QChar kind = text.at(position);
    if (kind != u'u' && kind != u'U')
        return QString(controls.value(kind, kind));
    const qsizetype digits = kind == u'u' ? 4 : 8;
    bool ok = false;
    const char32_t code = QStringView(text).mid(position + 1, digits).toUInt(&ok, 16);
    if (!ok || position + digits >= text.size() || code > 0x10FFFF)
        return std::nullopt;
    position += digits;
    return QString::fromUcs4(&code, 1);
}

} // namespace

QString GVariantText::quoted(const QString& string)
{
    QString text = string;
    text.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s);
    text.replace(u'\n', u"\\n"_s);
    return u'\'' + text + u'\'';
}

std::optional<QString> GVariantText::unquoted(const QString& text)
{
    const QChar mark = text.isEmpty() ? QChar() : text.front();
    if (text.size() < 2 || (mark != u'\'' && mark != u'"') || text.back() != mark)
        return std::nullopt;
    QString string;
    const qsizetype end = text.size() - 1;
    for (qsizetype position = 1; position < end; ++position) {
        if (text.at(position) != u'\\') {
            string += text.at(position);
            continue;
        }
        if (++position == end)
            return std::nullopt; // the closing mark was part of the string
        const std::optional<QString> character = unescaped(text, position);
        if (!character || position >= end)
            return std::nullopt;
        string += *character;
    }
    return string;
}

} // namespace ambrelle
