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
};

using enum Kind;

constexpr std::array rows = std::to_array<Row>({
    {clear, QT_TRANSLATE_NOOP("ambrelle", "Clear")},
    {mostlyClear, QT_TRANSLATE_NOOP("ambrelle", "Mostly Clear")},
    {partlyCloudy, QT_TRANSLATE_NOOP("ambrelle", "Partly Cloudy")},
    {overcast, QT_TRANSLATE_NOOP("ambrelle", "Overcast")},
    {fog, QT_TRANSLATE_NOOP("ambrelle", "Fog")},
    {drizzle, QT_TRANSLATE_NOOP("ambrelle", "Drizzle")},
    {rain, QT_TRANSLATE_NOOP("ambrelle", "Rain")},
    {snow, QT_TRANSLATE_NOOP("ambrelle", "Snow")},
    {showers, QT_TRANSLATE_NOOP("ambrelle", "Showers")},
    {snowShowers, QT_TRANSLATE_NOOP("ambrelle", "Snow Showers")},
    {thunderstorms, QT_TRANSLATE_NOOP("ambrelle", "Thunderstorms")},
    {unknown, QT_TRANSLATE_NOOP("ambrelle", "—")},
});
static_assert(inOrder(rows), "the rows must stand in the order of the kinds");

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
    return Wording::tr(rows[static_cast<std::size_t>(kind(code))].description);
}

} // namespace WeatherCode

} // namespace ambrelle
