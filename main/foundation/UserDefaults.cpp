// SPDX-License-Identifier: MIT

#include "foundation/UserDefaults.h"

#include "foundation/Json.h"
#include "foundation/SettingsFile.h"

#include <QDir>
#include <QJsonDocument>

#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString configurationFolder()
{
    const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + u"/.config"_s;
}

template <typename T> std::optional<T> typed(const QJsonObject& values, const QString& key)
{
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : JsonForm<T>::read(*found);
}

// JSON stays JSON inside the file, so that a person can read it, if it can be read again at that depth.
std::optional<QJsonValue> nested(const QByteArray& text)
{
    const QJsonArray wrapped = QJsonDocument::fromJson('[' + text + ']').array();
    if (wrapped.size() != 1 || !(wrapped[0].isObject() || wrapped[0].isArray()))
        return std::nullopt;
    return wrapped[0];
}

} // namespace

UserDefaults::UserDefaults(const QString& path)
    : m_file(path.isEmpty() ? nullptr : std::make_unique<SettingsFile>(path))
{
    if (m_file)
        m_values = m_file->loaded();
}

UserDefaults::~UserDefaults() = default;

UserDefaults& UserDefaults::shared()
{
    static UserDefaults defaults(configurationFolder() + u"/ambrelle/defaults.json"_s);
    return defaults;
}

UserDefaults UserDefaults::temporary()
{
    return UserDefaults(QString());
}

std::optional<bool> UserDefaults::boolean(const QString& key) const
{
    return typed<bool>(m_values, key);
}
std::optional<int> UserDefaults::integer(const QString& key) const
{
    return typed<int>(m_values, key);
}
std::optional<double> UserDefaults::real(const QString& key) const
{
    return typed<double>(m_values, key);
}
std::optional<QString> UserDefaults::string(const QString& key) const
{
    return typed<QString>(m_values, key);
}
std::optional<QStringList> UserDefaults::strings(const QString& key) const
{
    return typed<QStringList>(m_values, key);
}
std::optional<QJsonObject> UserDefaults::object(const QString& key) const
{
    return typed<QJsonObject>(m_values, key);
}

std::optional<QByteArray> UserDefaults::data(const QString& key) const
{
    const QJsonValue value = m_values.value(key);
    if (value.isObject())
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    if (value.isArray())
        return QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact);
    return value.isString() ? std::optional(value.toString().toUtf8()) : std::nullopt;
}

bool UserDefaults::set(const QString& key, bool value)
{
    return put(key, value);
}
bool UserDefaults::set(const QString& key, int value)
{
    return put(key, value);
}
bool UserDefaults::set(const QString& key, double value)
{
    return std::isfinite(value) && put(key, value);
}
bool UserDefaults::set(const QString& key, const QString& value)
{
    return put(key, value);
}
bool UserDefaults::set(const QString& key, const QStringList& value)
{
    return put(key, QJsonArray::fromStringList(value));
}
bool UserDefaults::set(const QString& key, const QJsonObject& value)
{
    return put(key, value);
}

bool UserDefaults::setData(const QString& key, const QByteArray& value)
{
    if (const std::optional<QJsonValue> json = nested(value))
        return put(key, *json);
    const QString text = QString::fromUtf8(value);
    return text.toUtf8() == value && put(key, text);
}

bool UserDefaults::remove(const QString& key)
{
    if (!m_values.contains(key))
        return storeAgain();
    m_values.remove(key);
    return save();
}

bool UserDefaults::put(const QString& key, const QJsonValue& value)
{
    if (!m_unsaved && m_values.contains(key) && m_values.value(key) == value)
        return true;
    m_values.insert(key, value);
    return save();
}

bool UserDefaults::storeAgain()
{
    return !m_unsaved || save();
}

void UserDefaults::setRefused(std::function<void()> refused)
{
    m_refused = std::move(refused);
}

bool UserDefaults::save()
{
    if (m_openTransactions > 0) {
        m_unsaved = true;
        return true;
    }
    m_unsaved = m_file && !m_file->store(m_values);
    if (std::exchange(m_refuses, m_unsaved) != m_unsaved && m_unsaved && m_refused)
        m_refused();
    return !m_unsaved;
}

UserDefaults::Transaction::Transaction(UserDefaults& defaults)
    : m_defaults(defaults)
{
    ++m_defaults.m_openTransactions;
}

UserDefaults::Transaction::~Transaction()
{
    if (--m_defaults.m_openTransactions == 0 && m_defaults.m_unsaved)
        m_defaults.save();
}

} // namespace ambrelle
