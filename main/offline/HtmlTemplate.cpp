// SPDX-License-Identifier: MIT

#include "offline/HtmlTemplate.h"

#include <QJsonArray>

#include <utility>

namespace ambrelle::HtmlTemplate {

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QJsonValue& value)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 12) : value.toString();
}

QList<QJsonObject> entriesOf(const QJsonValue& value)
{
    QList<QJsonObject> entries;
    for (const QJsonValue& entry : value.toArray())
        entries.append(entry.toObject());
    if (value.isObject())
        entries.append(value.toObject());
    else if (value.toBool() || value.isDouble() || !value.toString().isEmpty())
        entries.append(QJsonObject());
    return entries;
}

class Filler {
public:
    Filler(const QString& page, const QJsonObject& values, const QHash<QString, QString>& parts)
        : m_page(page)
        , m_parts(parts)
        , m_scopes{values}
    {
    }

    Filled fill()
    {
        block({}, true);
        return {std::move(m_text), std::move(m_fault)};
    }

private:
    /// Up to the end of the section of that name, or of the page.
    void block(const QString& section, bool isShown);
    void section(const QString& name, bool isInverted, bool isShown);
    void part(const QString& name, bool isShown);
    void gap(const QString& name);
    QJsonValue find(const QString& name) const;
    QList<QJsonObject> entries(const QString& name) const;
    void complain(const QString& fault)
    {
        if (m_fault.isEmpty())
            m_fault = fault;
    }

    QString m_page;
    const QHash<QString, QString>& m_parts;
    QList<QJsonObject> m_scopes; // the innermost first
    qsizetype m_at = 0;
    QString m_text;
    QString m_fault;
};

void Filler::block(const QString& section, bool isShown)
{
    while (m_fault.isEmpty()) {
        const qsizetype start = m_page.indexOf("{{"_L1, m_at);
        if (isShown)
            m_text += QStringView(m_page).mid(m_at, start < 0 ? -1 : start - m_at);
        const qsizetype end = start < 0 ? -1 : m_page.indexOf("}}"_L1, start);
        if (end < 0) {
            if (start >= 0)
                complain(u"a gap is not closed"_s);
            else if (!section.isEmpty())
                complain(u"“%1” has no end"_s.arg(section));
            return;
        }
        m_at = end + 2;
        const QString tag = m_page.mid(start + 2, end - start - 2);
        const QString name = tag.mid(1);
        if (tag.startsWith(u'/')) {
            if (name != section)
                complain(u"“%1” ends where it has not begun"_s.arg(name));
            return;
        }
        if (tag.startsWith(u'#') || tag.startsWith(u'^'))
            this->section(name, tag.startsWith(u'^'), isShown);
        else if (tag.startsWith(u'>'))
            part(name, isShown);
        else if (isShown)
            gap(tag);
    }
}

void Filler::section(const QString& name, bool isInverted, bool isShown)
{
    QList<QJsonObject> scopes = isShown ? entries(name) : QList<QJsonObject>();
    if (isInverted && isShown)
        scopes = scopes.isEmpty() ? QList{QJsonObject()} : QList<QJsonObject>();
    if (scopes.isEmpty())
        return block(name, false);
    const qsizetype start = m_at;
    for (const QJsonObject& scope : std::as_const(scopes)) {
        m_at = start;
        m_scopes.prepend(scope);
        block(name, true);
        m_scopes.removeFirst();
    }
}

void Filler::part(const QString& name, bool isShown)
{
    const auto found = m_parts.find(name);
    if (found == m_parts.end())
        return complain(u"there is no part “%1”"_s.arg(name));
    // What stays the same while the part is read: it begins and ends its sections itself.
    const QString page = std::exchange(m_page, *found);
    const qsizetype at = std::exchange(m_at, 0);
    block({}, isShown);
    m_page = page;
    m_at = at;
}

void Filler::gap(const QString& name)
{
    const QJsonValue value = find(name);
    if (!value.isString() && !value.isDouble())
        return complain(u"nothing is known of “%1”"_s.arg(name));
    m_text += textOf(value).toHtmlEscaped();
}

QJsonValue Filler::find(const QString& name) const
{
    for (const QJsonObject& scope : m_scopes) {
        if (scope.contains(name))
            return scope.value(name);
    }
    return QJsonValue(QJsonValue::Undefined);
}

QList<QJsonObject> Filler::entries(const QString& name) const
{
    if (!name.endsWith(u'?'))
        return entriesOf(find(name));
    return entriesOf(find(name.chopped(1))).isEmpty() ? QList<QJsonObject>() : QList{QJsonObject()};
}

} // namespace

Filled fill(const QString& page, const QJsonObject& values, const QHash<QString, QString>& parts)
{
    return Filler(page, values, parts).fill();
}

} // namespace ambrelle::HtmlTemplate
