#include "model/WorldCities.h"

#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

std::span<const WorldCity> worldCities()
{
    static constexpr std::array cities = std::to_array<WorldCity>({
        {u"New York", "America/New_York"_L1},
        {u"Chicago", "America/Chicago"_L1},
        {u"Denver", "America/Denver"_L1},
        {u"Los Angeles", "America/Los_Angeles"_L1},
        {u"Toronto", "America/Toronto"_L1},
        {u"Mexico City", "America/Mexico_City"_L1},
        {u"São Paulo", "America/Sao_Paulo"_L1},
        {u"Honolulu", "Pacific/Honolulu"_L1},
        {u"Reykjavík", "Atlantic/Reykjavik"_L1},
        {u"London", "Europe/London"_L1},
        {u"Paris", "Europe/Paris"_L1},
        {u"Berlin", "Europe/Berlin"_L1},
        {u"Madrid", "Europe/Madrid"_L1},
        {u"Istanbul", "Europe/Istanbul"_L1},
        {u"Moscow", "Europe/Moscow"_L1},
        {u"Cairo", "Africa/Cairo"_L1},
        {u"Johannesburg", "Africa/Johannesburg"_L1},
        {u"Dubai", "Asia/Dubai"_L1},
        {u"Mumbai", "Asia/Kolkata"_L1},
        {u"Bangkok", "Asia/Bangkok"_L1},
        {u"Singapore", "Asia/Singapore"_L1},
        {u"Hong Kong", "Asia/Hong_Kong"_L1},
        {u"Shanghai", "Asia/Shanghai"_L1},
        {u"Seoul", "Asia/Seoul"_L1},
        {u"Tokyo", "Asia/Tokyo"_L1},
        {u"Sydney", "Australia/Sydney"_L1},
        {u"Auckland", "Pacific/Auckland"_L1},
    });
    return cities;
}

} // namespace ambrelle
