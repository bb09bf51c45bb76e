#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <span>

namespace ambrelle {

/// A city that a clock can show the time of.
struct WorldCity {
    QStringView name; ///< as people read it
    QLatin1StringView zone; ///< of the IANA time zone database
};

/// The cities offered, in the order they are listed.
std::span<const WorldCity> worldCities();

} // namespace ambrelle
