// SPDX-License-Identifier: MIT

#pragma once

#include "services/WeatherSnapshot.h"

#include <QByteArray>

#include <optional>

namespace ambrelle {

/// What the forecast endpoints answer, decoded. Members that nobody asks for are ignored.
namespace WeatherAnswers {

/// The weather at `place`. Nothing when a member is missing or of another type; days that some list does not reach are
/// left out.
std::optional<WeatherSnapshot> forecast(const QByteArray& body, const QString& place);

/// A place by the name that the endpoint writes.
struct Place {
    QString name;
    double latitude = 0; ///< degrees
    double longitude = 0; ///< degrees

    bool operator==(const Place&) const = default;
};

struct Places {
    std::optional<QList<Place>> results; ///< none when the endpoint left them out

    bool operator==(const Places&) const = default;
};

/// The places found. Nothing when what is there is of another type.
std::optional<Places> places(const QByteArray& body);

} // namespace WeatherAnswers

} // namespace ambrelle
