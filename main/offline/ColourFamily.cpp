// SPDX-License-Identifier: MIT

#include "offline/ColourFamily.h"

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct Family {
    QLatin1StringView name;
    int upTo; // degrees of hue
};
constexpr std::array families{Family{"red"_L1, 14}, Family{"orange"_L1, 40}, Family{"yellow"_L1, 67},
    Family{"green"_L1, 155}, Family{"teal"_L1, 193}, Family{"blue"_L1, 248}, Family{"violet"_L1, 290},
    Family{"pink"_L1, 342}, Family{"red"_L1, 360}};

} // namespace

QString colourFamily(const QColor& colour)
{
    const auto [least, most] = std::minmax({colour.red(), colour.green(), colour.blue()});
    constexpr int palest = 40; // of 255
    if (most - least < palest)
        return u"grey"_s;
    const auto found = std::ranges::find_if(families, [&](const Family& each) { return colour.hslHue() <= each.upTo; });
    return found->name;
}

QStringList colourFamilies()
{
    QStringList names;
    for (const Family& each : families)
        names.append(each.name);
    names.removeDuplicates();
    return names + QStringList{u"grey"_s};
}

} // namespace ambrelle
