// SPDX-License-Identifier: MIT

#include "faces/MoonPhase.h"

#include "foundation/Wording.h"

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle::MoonPhase {

namespace {

struct Phase {
    const char* principal;
    const char* following; ///< between this principal phase and the next
};

constexpr std::array<Phase, 4> phases{{
    {QT_TRANSLATE_NOOP("ambrelle", "New Moon"), QT_TRANSLATE_NOOP("ambrelle", "Waxing Crescent")},
    {QT_TRANSLATE_NOOP("ambrelle", "First Quarter"), QT_TRANSLATE_NOOP("ambrelle", "Waxing Gibbous")},
    {QT_TRANSLATE_NOOP("ambrelle", "Full Moon"), QT_TRANSLATE_NOOP("ambrelle", "Waning Gibbous")},
    {QT_TRANSLATE_NOOP("ambrelle", "Last Quarter"), QT_TRANSLATE_NOOP("ambrelle", "Waning Crescent")},
}};

constexpr double secondsPerDay = 86400;

} // namespace

double age(const QDateTime& at)
{
    const double days = (static_cast<double>(at.toMSecsSinceEpoch()) / 1000 - reference) / secondsPerDay;
    const double rest = std::fmod(days, synodicMonth);
    return rest < 0 ? rest + synodicMonth : rest;
}

double fraction(const QDateTime& at)
{
    return age(at) / synodicMonth;
}

double illumination(const QDateTime& at)
{
    return (1 - std::cos(2 * std::numbers::pi * fraction(at))) / 2;
}

QString name(const QDateTime& at)
{
    const double quarters = fraction(at) * 4;
    const double halfDay = 0.5 / synodicMonth * 4;
    const auto nearest = static_cast<std::size_t>(std::lround(quarters));
    if (std::abs(quarters - static_cast<double>(nearest)) <= halfDay)
        return Wording::tr(phases[nearest % 4].principal);
    return Wording::tr(phases[static_cast<std::size_t>(quarters) % 4].following);
}

Principal next(const QDateTime& at)
{
    const double quarters = fraction(at) * 4;
    const double following = std::floor(quarters) + 1;
    return {Wording::tr(phases[static_cast<std::size_t>(following) % 4].principal),
        (following - quarters) / 4 * synodicMonth};
}

} // namespace ambrelle::MoonPhase
