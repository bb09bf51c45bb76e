// SPDX-License-Identifier: MIT

#include "model/NearestCity.h"
#include "model/WorldCities.h"

#include <QTimeZone>

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

TEST(WorldCitiesTest, EveryZoneIsKnown)
{
    EXPECT_EQ(worldCities().size(), 27U);
    for (const WorldCity& city : worldCities())
        EXPECT_TRUE(QTimeZone::isTimeZoneIdAvailable(QByteArray(city.zone.data(), city.zone.size()))) << city.name;
}

TEST(NearestCityTest, NamesThePlaceOrNone)
{
    struct Case {
        const char* what;
        double latitude;
        double longitude;
        const char* city;
    };
    const Case cases[] = {
        {"a palace outside", 48.805, 2.12, "Paris"},
        {"between two neighbours, nearer to the one across the bay", 37.81, -122.29, "Oakland"},
        {"one of two cities of a name", 42.99, -81.24, "London"},
        {"south of the equator, west of Greenwich", -22.95, -43.21, "Rio de Janeiro"},
        {"just beyond the city's reach", 48.86, 2.95, nullptr},
        {"the open sea", 0, 0, nullptr},
        {"the pole", 90, 0, nullptr},
        {"across the date line from Suva, far away", -18.12, -178.45, nullptr},
        {"nowhere", std::nan(""), 0, nullptr},
    };
    for (const Case& each : cases)
        EXPECT_EQ(
            nearestCity(each.latitude, each.longitude).value_or(QString()).toStdString(), each.city ? each.city : "")
            << each.what;
}

} // namespace ambrelle
