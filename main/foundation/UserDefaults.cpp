// SPDX-License-Identifier: MIT

#include "foundation/UserDefaults.h"

#include "foundation/Json.h"
#include "foundation/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 greatestSize = 64 * 1024 * 1024;

void complain(const QString& sentence)
{
    std::fprintf(stderr, "ambrelle: %s\n", qUtf8Printable(sentence));
}

QString configurationFolder()
{
    const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + u"/.config"_s;
}

// The object in the file, or why there is none.
struct Contents {
    std::optional<QJsonObject> values;
    QString fault;
};

Contents readObject(const QString& path)
{
    // Opening anything but a plain file could wait for ever.
    if (!QFileInfo(path).isFile())
        return {std::nullopt, u"it is not a file"_s};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, file.errorString()};
    if (file.size() > greatestSize)
        return {std::nullopt, u"it is too large"_s};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {std::nullopt, file.errorString()};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return {std::nullopt, error.errorString()};
    if (!document.isObject())
        return {std::nullopt, u"it holds no object"_s};
    return {document.object(), {}};
}

// "defaults.json.damaged", else the first free of "….damaged-2", "-3" and so on.
QString freeName(const QString& path)
{
    const QString first = path + u".damaged"_s;
    QString name = first;
    const auto taken = [&name] {
        std::error_code none;
        const auto status = std::filesystem::symlink_status(QFile::encodeName(name).toStdString(), none);
        return status.type() != std::filesystem::file_type::not_found;
    };
    for (int i = 2; taken(); ++i)
        name = first + u"-%1"_s.arg(i);
    return name;
}

void moveAside(const QString& path, const QString& fault)
{
    const QString kept = freeName(path);
    const bool moved = std::rename(QFile::encodeName(path).constData(), QFile::encodeName(kept).constData()) == 0;
    complain(u"The settings in %1 cannot be read (%2). "_s.arg(path, fault)
        + (moved ? u"They are kept as %1; the defaults apply."_s.arg(kept)
                 : u"They stay where they are; the defaults apply."_s));
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

UserDefaults::UserDefaults(QString path)
    : m_path(std::move(path))
{
    const QFileInfo file(m_path);
    if (m_path.isEmpty() || !file.exists())
        return;
    m_path = file.canonicalFilePath(); // a link to the file stays a link
    Contents contents = readObject(m_path);
    if (contents.values)
        m_values = *std::move(contents.values);
    else
        moveAside(m_path, contents.fault);
}

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
        return !m_unsaved || save();
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

bool UserDefaults::save()
{
    if (m_path.isEmpty())
        return true;
    const QString reason = writeWhole(m_path, QJsonDocument(m_values).toJson(QJsonDocument::Indented), Readers::owner);
    m_unsaved = !reason.isEmpty();
    if (m_unsaved && !std::exchange(m_complained, true))
        complain(u"Settings cannot be saved in %1 (%2)."_s.arg(m_path, reason));
    return !m_unsaved;
}

} // namespace ambrelle
