// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

namespace ambrelle {

/// The forecast for one day; temperatures in the unit that was asked for.
struct WeatherDay {
    QDateTime date; ///< start of the day
    int code = 0; ///< of the World Meteorological Organization
    double high = 0;
    double low = 0;

    bool operator==(const WeatherDay&) const = default;
};

/// The weather somewhere, as it was told last; temperatures in the unit that was asked for.
struct WeatherSnapshot {
    QString place;
    double temperature = 0; ///< of the air two metres above the ground
    double apparent = 0; ///< as it feels
    int code = 0; ///< of the World Meteorological Organization
    bool isDay = true;
    QList<WeatherDay> days; ///< the day it was told first
    std::optional<int> utcOffset; ///< seconds that the clock of the place is ahead of UTC
    std::optional<QDateTime> sunrise; ///< today's, on the clock of the place
    std::optional<QDateTime> sunset;

    bool operator==(const WeatherSnapshot&) const = default;
};

} // namespace ambrelle
