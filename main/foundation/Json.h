// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QPointF>
#include <QStringList>
#include <QUuid>

#include <optional>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// How a type stands in JSON: `read` gives nothing for a value of another type or out of range, `write` is its inverse,
/// `expected` names the form for messages. Specialised for each type that is decoded.
template <typename T> struct JsonForm;

/// `true` is no number and 1 is no Boolean.
template <> struct JsonForm<bool> {
    static constexpr const char* expected = "true or false";
    static std::optional<bool> read(const QJsonValue& json);
    static QJsonValue write(bool value) { return value; }
};

/// 10 and 10.0 are integers, 2.5 and 3000000000 are not.
template <> struct JsonForm<int> {
    static constexpr const char* expected = "an integer";
    static std::optional<int> read(const QJsonValue& json);
    static QJsonValue write(int value) { return value; }
};

template <> struct JsonForm<double> {
    static constexpr const char* expected = "a number";
    static std::optional<double> read(const QJsonValue& json);
    static QJsonValue write(double value) { return value; }
};

template <> struct JsonForm<QString> {
    static constexpr const char* expected = "a text";
    static std::optional<QString> read(const QJsonValue& json);
    static QJsonValue write(const QString& value) { return value; }
};

template <> struct JsonForm<QStringList> {
    static constexpr const char* expected = "an array of texts";
    static std::optional<QStringList> read(const QJsonValue& json);
    static QJsonValue write(const QStringList& value) { return QJsonArray::fromStringList(value); }
};

template <> struct JsonForm<QJsonObject> {
    static constexpr const char* expected = "an object";
    static std::optional<QJsonObject> read(const QJsonValue& json);
    static QJsonValue write(const QJsonObject& value) { return value; }
};

template <> struct JsonForm<QJsonArray> {
    static constexpr const char* expected = "an array";
    static std::optional<QJsonArray> read(const QJsonValue& json);
    static QJsonValue write(const QJsonArray& value) { return value; }
};

/// The canonical text of 36 characters, written in capitals, without braces.
template <> struct JsonForm<QUuid> {
    static constexpr const char* expected = "a UUID";
    static std::optional<QUuid> read(const QJsonValue& json);
    static QJsonValue write(const QUuid& value);
};

/// [x, y], neither beyond a million.
template <> struct JsonForm<QPointF> {
    static constexpr const char* expected = "an array of two numbers";
    static std::optional<QPointF> read(const QJsonValue& json);
    static QJsonValue write(const QPointF& value) { return QJsonArray{value.x(), value.y()}; }
};

/// Seconds since the reference date, to the millisecond.
template <> struct JsonForm<QDateTime> {
    static constexpr const char* expected = "a number of seconds";
    static std::optional<QDateTime> read(const QJsonValue& json);
    static QJsonValue write(const QDateTime& value);
};

/// The moment that stored dates count from: 2001-01-01 00:00:00 UTC.
namespace ReferenceDate {
double seconds(const QDateTime& date);
/// In UTC; nothing more than about ten thousand years away, or not finite.
std::optional<QDateTime> date(double seconds);
} // namespace ReferenceDate

/// Reads the members of one JSON object and remembers the first fault as a sentence that tells where it is, such as
/// "widgets[3].origin: expected an array of two numbers". A member that is null counts as absent.
class JsonReader {
public:
    /// `path` is where `json` stands in its document, empty for the document itself.
    explicit JsonReader(const QJsonValue& json, QString path = {});

    /// A fault, and a value-initialised result, when the member is absent or malformed.
    template <typename T> T required(QLatin1StringView key)
    {
        if (!contains(key)) {
            fail(key, u"missing"_s);
            return T{};
        }
        return optional<T>(key).value_or(T{});
    }
    /// Nothing when the member is absent; a fault when it is malformed.
    template <typename T> std::optional<T> optional(QLatin1StringView key)
    {
        if (!contains(key))
            return std::nullopt;
        std::optional<T> value = JsonForm<T>::read(m_object.value(key));
        if (!value)
            fail(key, u"expected "_s + QLatin1StringView(JsonForm<T>::expected));
        return value;
    }
    template <typename T> T valueOr(QLatin1StringView key, T fallback)
    {
        return optional<T>(key).value_or(std::move(fallback));
    }

    bool contains(QLatin1StringView key) const;
    /// The member as it stands.
    QJsonValue raw(QLatin1StringView key) const { return m_object.value(key); }
    /// Where the member stands, and where its element `index` does.
    QString path(QLatin1StringView key) const;
    QString path(QLatin1StringView key, qsizetype index) const;

    /// Adds a fault of the caller's own, or that of a reader for something inside.
    void fail(QLatin1StringView key, const QString& what);
    void adopt(const JsonReader& inner);

    bool ok() const { return m_fault.isEmpty(); }
    /// The first fault; empty when there was none.
    const QString& fault() const { return m_fault; }

private:
    QJsonObject m_object;
    QString m_path;
    QString m_fault;
};

} // namespace ambrelle
