// SPDX-License-Identifier: MIT

#include "model/ThemeStore.h"

#include "foundation/Json.h"
#include "foundation/UserDefaults.h"

#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString savedThemesKey = u"savedThemes.v1"_s;
const QString unreadableThemesKey = u"savedThemes.unreadable"_s;
// The settings are read as a whole, up to a limit, and themes must not fill it up. A theme takes a few thousand.
constexpr qsizetype mostThemeBytes = 8 * 1024 * 1024;

std::optional<SavedTheme> themeIn(const QJsonValue& entry)
{
    JsonReader reader(entry);
    return SavedTheme::decode(reader);
}

QJsonObject withMember(const QJsonValue& entry, const QString& key, const QJsonValue& value)
{
    QJsonObject object = entry.toObject();
    object.insert(key, value);
    return object;
}

} // namespace

ThemeStore::ThemeStore(UserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
{
    const QByteArray stored = m_defaults.data(savedThemesKey).value_or("[]");
    const QJsonDocument document = QJsonDocument::fromJson(stored);
    m_keepsStored = !document.isArray() && !stored.isEmpty();
    read(document.array());
}

bool ThemeStore::insert(SavedTheme theme, qsizetype index)
{
    if (theme.id.isNull() || find(theme.id) >= 0)
        theme.id = QUuid::createUuid();
    return insert(theme.encode(), index);
}

bool ThemeStore::insert(const QJsonObject& entry, qsizetype index)
{
    const bool isInside = index < m_places.size();
    QJsonArray entries = m_entries;
    entries.insert(isInside ? m_places[std::max<qsizetype>(index, 0)] : entries.size(), entry);
    const QByteArray json = QJsonDocument(entries).toJson(QJsonDocument::Compact);
    if (!themeIn(entry) || json.size() > mostThemeBytes)
        return false;
    replace(entries);
    return true;
}

std::optional<ThemeStore::Taken> ThemeStore::remove(const QUuid& id)
{
    const qsizetype index = find(id);
    if (index < 0) {
        store(m_entries);
        return std::nullopt;
    }
    QJsonArray entries = m_entries;
    const QJsonValue entry = entries.takeAt(m_places[index]);
    replace(entries);
    return Taken{entry.toObject(), index};
}

bool ThemeStore::putBack(const Taken& theme)
{
    const std::optional<QUuid> id = JsonForm<QUuid>::read(theme.entry[u"id"_s]);
    if (id && find(*id) < 0)
        return insert(theme.entry, theme.index);
    return insert(withMember(theme.entry, u"id"_s, JsonForm<QUuid>::write(QUuid::createUuid())), theme.index);
}

bool ThemeStore::storeAgain()
{
    return store(m_entries);
}

void ThemeStore::rename(const QUuid& id, const QString& text)
{
    const qsizetype index = find(id);
    const QString name = SavedTheme::nameFrom(text);
    if (index < 0 || name.isEmpty() || name == m_themes[index].name)
        return;
    QJsonArray entries = m_entries;
    const qsizetype place = m_places[index];
    entries[place] = withMember(entries[place], u"name"_s, name);
    replace(entries);
}

qsizetype ThemeStore::find(const QUuid& id) const
{
    const auto found = std::ranges::find(m_themes, id, &SavedTheme::id);
    return found == m_themes.end() ? -1 : found - m_themes.begin();
}

void ThemeStore::read(QJsonArray entries)
{
    m_themes.clear();
    m_places.clear();
    QSet<QUuid> ids;
    for (qsizetype place = 0; place < entries.size(); ++place) {
        std::optional<SavedTheme> theme = themeIn(entries[place]);
        if (!theme)
            continue;
        // A theme is found by its identity: of two with the same one, as in a list edited by hand, the later changes.
        if (ids.contains(theme->id)) {
            theme->id = QUuid::createUuid();
            entries[place] = withMember(entries[place], u"id"_s, JsonForm<QUuid>::write(theme->id));
        }
        ids.insert(theme->id);
        m_themes.append(std::move(*theme));
        m_places.append(place);
    }
    m_entries = std::move(entries);
}

bool ThemeStore::store(const QJsonArray& entries)
{
    if (std::exchange(m_keepsStored, false))
        keepUnreadable();
    return m_defaults.setData(savedThemesKey, QJsonDocument(entries).toJson(QJsonDocument::Compact));
}

/// Under a key of its own: what was kept there before may be all that is left of other themes.
void ThemeStore::keepUnreadable()
{
    const QByteArray stored = m_defaults.data(savedThemesKey).value_or(QByteArray());
    QString key = unreadableThemesKey;
    for (int number = 2; m_defaults.data(key).value_or(stored) != stored; ++number)
        key = unreadableThemesKey + u"-%1"_s.arg(number);
    m_defaults.setData(key, stored);
}

void ThemeStore::replace(const QJsonArray& entries)
{
    const bool isStored = store(entries);
    read(entries);
    Q_EMIT changed();
    if (!isStored)
        Q_EMIT refused();
}

} // namespace ambrelle
