// SPDX-License-Identifier: MIT

#include "model/WorldCities.h"

#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

std::span<const WorldCity> worldCities()
{
    static constexpr std::array cities = std::to_array<WorldCity>({
        {QT_TRANSLATE_NOOP("ambrelle", "New York"), "America/New_York"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Chicago"), "America/Chicago"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Denver"), "America/Denver"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Los Angeles"), "America/Los_Angeles"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Toronto"), "America/Toronto"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Mexico City"), "America/Mexico_City"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "São Paulo"), "America/Sao_Paulo"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Honolulu"), "Pacific/Honolulu"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Reykjavík"), "Atlantic/Reykjavik"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "London"), "Europe/London"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Paris"), "Europe/Paris"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Berlin"), "Europe/Berlin"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Madrid"), "Europe/Madrid"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Istanbul"), "Europe/Istanbul"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Moscow"), "Europe/Moscow"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Cairo"), "Africa/Cairo"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Johannesburg"), "Africa/Johannesburg"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Dubai"), "Asia/Dubai"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Mumbai"), "Asia/Kolkata"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Bangkok"), "Asia/Bangkok"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Singapore"), "Asia/Singapore"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Hong Kong"), "Asia/Hong_Kong"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Shanghai"), "Asia/Shanghai"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Seoul"), "Asia/Seoul"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Tokyo"), "Asia/Tokyo"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Sydney"), "Australia/Sydney"_L1},
        {QT_TRANSLATE_NOOP("ambrelle", "Auckland"), "Pacific/Auckland"_L1},
    });
    return cities;
}

} // namespace ambrelle
