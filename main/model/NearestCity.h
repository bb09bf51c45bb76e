// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace ambrelle {

/// The big city that a position (degrees, north and east positive) lies in or close to: the nearest of several hundred,
/// at most forty kilometres away. Nothing elsewhere.
std::optional<QString> nearestCity(double latitude, double longitude);

/// A place on the earth, degrees, north and east positive.
struct CityPosition {
    double latitude = 0;
    double longitude = 0;
};

/// Where the big city of that (English) name lies; nothing for others.
std::optional<CityPosition> positionOf(QStringView city);

} // namespace ambrelle
