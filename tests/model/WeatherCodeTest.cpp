// SPDX-License-Identifier: MIT

#include "model/WeatherCode.h"

#include <gtest/gtest.h>

#include <limits>

namespace ambrelle {

TEST(WeatherCodeTest, RangesAreInclusiveAndGapsUnknown)
{
    struct Case {
        int code;
        bool isDay;
        const char* description;
        const char* symbol;
    };
    const Case cases[] = {{0, true, "Clear", "sun.max.fill"}, {0, false, "Clear", "moon.stars.fill"},
        {1, false, "Mostly Clear", "cloud.moon.fill"}, {2, true, "Partly Cloudy", "cloud.sun.fill"},
        {3, false, "Overcast", "cloud.fill"}, {4, true, "—", "cloud.fill"}, {44, true, "—", "cloud.fill"},
        {48, false, "Fog", "cloud.fog.fill"}, {46, true, "—", "cloud.fill"}, {50, true, "—", "cloud.fill"},
        {51, true, "Drizzle", "cloud.drizzle.fill"}, {52, true, "Drizzle", "cloud.drizzle.fill"},
        {57, true, "Drizzle", "cloud.drizzle.fill"}, {58, true, "—", "cloud.fill"},
        {61, true, "Rain", "cloud.rain.fill"}, {67, false, "Rain", "cloud.rain.fill"}, {70, true, "—", "cloud.fill"},
        {77, true, "Snow", "cloud.snow.fill"}, {82, true, "Showers", "cloud.heavyrain.fill"},
        {83, true, "—", "cloud.fill"}, {86, true, "Snow Showers", "cloud.snow.fill"},
        {96, false, "Thunderstorms", "cloud.bolt.rain.fill"}, {100, true, "—", "cloud.fill"},
        {-1, false, "—", "cloud.fill"}, {std::numeric_limits<int>::min(), true, "—", "cloud.fill"}};
    for (const Case& each : cases) {
        EXPECT_EQ(WeatherCode::description(each.code).toStdString(), each.description) << each.code;
        EXPECT_EQ(WeatherCode::symbol(each.code, each.isDay).toStdString(), each.symbol) << each.code;
    }
}

} // namespace ambrelle
