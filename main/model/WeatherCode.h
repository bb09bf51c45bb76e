// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// The weather codes of the World Meteorological Organization (table 4677) as forecasts use them.
namespace WeatherCode {

/// What a code means, as far as widgets tell it apart.
enum class Kind {
    clear,
    mostlyClear,
    partlyCloudy,
    overcast,
    fog,
    drizzle,
    rain,
    snow,
    showers,
    snowShowers,
    thunderstorms,
    unknown,
};

/// A number within a kind's range counts, even if the organization leaves it undefined.
Kind kind(int code);
/// "Partly Cloudy"; an em dash for an unknown code.
QString description(int code);
/// The name of the symbol; by night some differ.
QString symbol(int code, bool isDay);

} // namespace WeatherCode

} // namespace ambrelle
