// SPDX-License-Identifier: MIT

#include "model/WeatherCode.h"

#include "foundation/Wording.h"
#include "model/RawEnum.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace WeatherCode {

namespace {

struct Row {
    Kind value;
    const char* description;
    QLatin1StringView byDay;
    QLatin1StringView byNight;
};

using enum Kind;

constexpr std::array rows = std::to_array<Row>({
    {clear, QT_TRANSLATE_NOOP("ambrelle", "Clear"), "sun.max.fill"_L1, "moon.stars.fill"_L1},
    {mostlyClear, QT_TRANSLATE_NOOP("ambrelle", "Mostly Clear"), "cloud.sun.fill"_L1, "cloud.moon.fill"_L1},
    {partlyCloudy, QT_TRANSLATE_NOOP("ambrelle", "Partly Cloudy"), "cloud.sun.fill"_L1, "cloud.moon.fill"_L1},
    {overcast, QT_TRANSLATE_NOOP("ambrelle", "Overcast"), "cloud.fill"_L1, "cloud.fill"_L1},
    {fog, QT_TRANSLATE_NOOP("ambrelle", "Fog"), "cloud.fog.fill"_L1, "cloud.fog.fill"_L1},
    {drizzle, QT_TRANSLATE_NOOP("ambrelle", "Drizzle"), "cloud.drizzle.fill"_L1, "cloud.drizzle.fill"_L1},
    {rain, QT_TRANSLATE_NOOP("ambrelle", "Rain"), "cloud.rain.fill"_L1, "cloud.rain.fill"_L1},
    {snow, QT_TRANSLATE_NOOP("ambrelle", "Snow"), "cloud.snow.fill"_L1, "cloud.snow.fill"_L1},
    {showers, QT_TRANSLATE_NOOP("ambrelle", "Showers"), "cloud.heavyrain.fill"_L1, "cloud.heavyrain.fill"_L1},
    {snowShowers, QT_TRANSLATE_NOOP("ambrelle", "Snow Showers"), "cloud.snow.fill"_L1, "cloud.snow.fill"_L1},
    {thunderstorms, QT_TRANSLATE_NOOP("ambrelle", "Thunderstorms"), "cloud.bolt.rain.fill"_L1,
        "cloud.bolt.rain.fill"_L1},
    {unknown, QT_TRANSLATE_NOOP("ambrelle", "—"), "cloud.fill"_L1, "cloud.fill"_L1},
});
static_assert(inOrder(rows), "the rows must stand in the order of the kinds");

const Row& codeRow(int code)
{
    return rows[static_cast<std::size_t>(kind(code))];
}

struct Range {
    int first;
    int last;
    Kind kind;
};

constexpr std::array ranges = std::to_array<Range>({
    {0, 0, clear},
    {1, 1, mostlyClear},
    {2, 2, partlyCloudy},
    {3, 3, overcast},
    {45, 45, fog},
    {48, 48, fog},
    {51, 57, drizzle},
    {61, 67, rain},
    {71, 77, snow},
    {80, 82, showers},
    {85, 86, snowShowers},
    {95, 99, thunderstorms},
});

} // namespace

Kind kind(int code)
{
    const auto holds = [code](const Range& range) { return range.first <= code && code <= range.last; };
    const auto* found = std::find_if(ranges.begin(), ranges.end(), holds);
    return found == ranges.end() ? unknown : found->kind;
}

QString description(int code)
{
    return Wording::tr(codeRow(code).description);
}

QString symbol(int code, bool isDay)
{
    const Row& row = codeRow(code);
    return isDay ? row.byDay : row.byNight;
}

} // namespace WeatherCode

} // namespace ambrelle
