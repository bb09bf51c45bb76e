// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>

#include <span>

namespace ambrelle {

/// A city that a clock can show the time of.
struct WorldCity {
    const char* name; ///< in English; people read Wording::tr() of it
    QLatin1StringView zone; ///< of the IANA time zone database
};

/// The cities offered, in the order they are listed.
std::span<const WorldCity> worldCities();

} // namespace ambrelle
