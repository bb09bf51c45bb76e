// SPDX-License-Identifier: MIT

#pragma once

#include "platform/recording/RecordingHttpClient.h"
#include "platform/recording/RecordingLocation.h"
#include "services/ServiceTest.h"
#include "services/WeatherAnswers.h"
#include "services/WeatherService.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThreadPool>

namespace ambrelle {

struct WeatherTest : ServiceTest {
    /// Answers a request and waits until the answer was read.
    void answer(const HttpAnswer& answer, qsizetype index = 0)
    {
        network.answer(answer, index);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }
    void answer(const QByteArray& body) { answer(HttpAnswer{body, {}}); }

    RecordingHttpClient network;
    RecordingLocation location;
    WeatherService service{network, location, settings, clock, {}};
};

/// A whole answer of the forecast endpoint; tests change members of it.
inline QJsonObject forecastObject()
{
    return {{u"latitude"_s, 40.71}, {u"utc_offset_seconds"_s, -14400},
        {u"current"_s,
            QJsonObject{{u"time"_s, u"2025-06-02T06:00"_s}, {u"temperature_2m"_s, 17.4},
                {u"apparent_temperature"_s, 16}, {u"weather_code"_s, 2}, {u"is_day"_s, 1}}},
        {u"daily"_s,
            QJsonObject{{u"time"_s, QJsonArray{u"2025-06-02"_s, u"2025-06-03"_s, u"2025-06-04"_s}},
                {u"weather_code"_s, QJsonArray{2, 61, 0}}, {u"temperature_2m_max"_s, QJsonArray{19.5, 17, 22}},
                {u"temperature_2m_min"_s, QJsonArray{10.5, 8, -1.5}},
                {u"sunrise"_s, QJsonArray{u"2025-06-02T05:27"_s, u"2025-06-03T05:26"_s}},
                {u"sunset"_s, QJsonArray{u"2025-06-02T20:21"_s}}}}};
}

inline QByteArray bytes(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// The forecast with one member of `section` (empty: of the whole) set to another value; undefined removes it.
inline QByteArray forecastWith(const QString& section, const QString& key, const QJsonValue& value)
{
    QJsonObject root = forecastObject();
    QJsonObject inner = section.isEmpty() ? root : root.value(section).toObject();
    inner.insert(key, value);
    if (!section.isEmpty())
        root.insert(section, inner);
    return bytes(section.isEmpty() ? inner : root);
}

inline QDateTime utc(int day, int hour, int minute)
{
    return {QDate(2025, 6, day), QTime(hour, minute), Qt::UTC};
}

inline WeatherDay dayAt(int day, int code, double high, double low)
{
    return {QDate(2025, 6, day).startOfDay(), code, high, low};
}

} // namespace ambrelle
