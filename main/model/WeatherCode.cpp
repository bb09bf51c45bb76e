#include "model/WeatherCode.h"

#include "model/RawEnum.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace WeatherCode {

namespace {

struct Row {
    Kind value;
    QStringView description;
    QLatin1StringView byDay;
    QLatin1StringView byNight;
};

using enum Kind;

constexpr std::array rows = std::to_array<Row>({
    {clear, u"Clear", "sun.max.fill"_L1, "moon.stars.fill"_L1},
    {mostlyClear, u"Mostly Clear", "cloud.sun.fill"_L1, "cloud.moon.fill"_L1},
    {partlyCloudy, u"Partly Cloudy", "cloud.sun.fill"_L1, "cloud.moon.fill"_L1},
    {overcast, u"Overcast", "cloud.fill"_L1, "cloud.fill"_L1},
    {fog, u"Fog", "cloud.fog.fill"_L1, "cloud.fog.fill"_L1},
    {drizzle, u"Drizzle", "cloud.drizzle.fill"_L1, "cloud.drizzle.fill"_L1},
    {rain, u"Rain", "cloud.rain.fill"_L1, "cloud.rain.fill"_L1},
    {snow, u"Snow", "cloud.snow.fill"_L1, "cloud.snow.fill"_L1},
    {showers, u"Showers", "cloud.heavyrain.fill"_L1, "cloud.heavyrain.fill"_L1},
    {snowShowers, u"Snow Showers", "cloud.snow.fill"_L1, "cloud.snow.fill"_L1},
    {thunderstorms, u"Thunderstorms", "cloud.bolt.rain.fill"_L1, "cloud.bolt.rain.fill"_L1},
    {unknown, u"—", "cloud.fill"_L1, "cloud.fill"_L1},
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
    return codeRow(code).description.toString();
}

QString symbol(int code, bool isDay)
{
    const Row& row = codeRow(code);
    return isDay ? row.byDay : row.byNight;
}

} // namespace WeatherCode

} // namespace ambrelle
