// SPDX-License-Identifier: MIT

#include "foundation/Json.h"

#include <QTimeZone>

#include <cmath>
#include <limits>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double greatestCoordinate = 1e6;
constexpr qint64 referenceEpochSeconds = 978307200; // 2001-01-01 since 1970-01-01, UTC
constexpr double greatestDateSeconds = 2.5e11; // close to eight thousand years

} // namespace

std::optional<bool> JsonForm<bool>::read(const QJsonValue& json)
{
    return json.isBool() ? std::optional(json.toBool()) : std::nullopt;
}

std::optional<int> JsonForm<int>::read(const QJsonValue& json)
{
    const std::optional<double> number = JsonForm<double>::read(json);
    if (!number || *number != std::trunc(*number) || *number < std::numeric_limits<int>::min()
        || *number > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(*number);
}

std::optional<double> JsonForm<double>::read(const QJsonValue& json)
{
    return json.isDouble() && std::isfinite(json.toDouble()) ? std::optional(json.toDouble()) : std::nullopt;
}

std::optional<QString> JsonForm<QString>::read(const QJsonValue& json)
{
    return json.isString() ? std::optional(json.toString()) : std::nullopt;
}

std::optional<QStringList> JsonForm<QStringList>::read(const QJsonValue& json)
{
    if (!json.isArray())
        return std::nullopt;
    QStringList texts;
    for (const QJsonValue& element : json.toArray()) {
        if (!element.isString())
            return std::nullopt;
        texts.append(element.toString());
    }
    return texts;
}

std::optional<QJsonObject> JsonForm<QJsonObject>::read(const QJsonValue& json)
{
    return json.isObject() ? std::optional(json.toObject()) : std::nullopt;
}

std::optional<QJsonArray> JsonForm<QJsonArray>::read(const QJsonValue& json)
{
    return json.isArray() ? std::optional(json.toArray()) : std::nullopt;
}

std::optional<QUuid> JsonForm<QUuid>::read(const QJsonValue& json)
{
    constexpr qsizetype canonicalLength = 36;
    const QString text = json.toString();
    const QUuid uuid = QUuid::fromString(text);
    return text.size() == canonicalLength && !uuid.isNull() ? std::optional(uuid) : std::nullopt;
}

QJsonValue JsonForm<QUuid>::write(const QUuid& value)
{
    return value.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QPointF> JsonForm<QPointF>::read(const QJsonValue& json)
{
    const QJsonArray pair = json.toArray();
    if (pair.size() != 2)
        return std::nullopt;
    const std::optional<double> x = JsonForm<double>::read(pair[0]);
    const std::optional<double> y = JsonForm<double>::read(pair[1]);
    if (!x || !y || std::abs(*x) > greatestCoordinate || std::abs(*y) > greatestCoordinate)
        return std::nullopt;
    return QPointF(*x, *y);
}

std::optional<QDateTime> JsonForm<QDateTime>::read(const QJsonValue& json)
{
    const std::optional<double> seconds = JsonForm<double>::read(json);
    return seconds ? ReferenceDate::date(*seconds) : std::nullopt;
}

QJsonValue JsonForm<QDateTime>::write(const QDateTime& value)
{
    return ReferenceDate::seconds(value);
}

double ReferenceDate::seconds(const QDateTime& date)
{
    return static_cast<double>(date.toMSecsSinceEpoch() - referenceEpochSeconds * 1000) / 1000;
}

std::optional<QDateTime> ReferenceDate::date(double seconds)
{
    if (!(std::abs(seconds) <= greatestDateSeconds))
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000) + referenceEpochSeconds * 1000, Qt::UTC);
}

JsonReader::JsonReader(const QJsonValue& json, QString path)
    : m_object(json.toObject())
    , m_path(std::move(path))
{
    if (!json.isObject())
        m_fault = (m_path.isEmpty() ? QString() : m_path + u": "_s) + u"expected an object"_s;
}

bool JsonReader::contains(QLatin1StringView key) const
{
    const QJsonValue value = m_object.value(key);
    return !value.isUndefined() && !value.isNull();
}

QString JsonReader::path(QLatin1StringView key) const
{
    return m_path.isEmpty() ? QString(key) : m_path + u'.' + key;
}

QString JsonReader::path(QLatin1StringView key, qsizetype index) const
{
    return u"%1[%2]"_s.arg(path(key)).arg(index);
}

void JsonReader::fail(QLatin1StringView key, const QString& what)
{
    if (ok())
        m_fault = path(key) + u": "_s + what;
}

void JsonReader::adopt(const JsonReader& inner)
{
    if (ok())
        m_fault = inner.fault();
}

} // namespace ambrelle
