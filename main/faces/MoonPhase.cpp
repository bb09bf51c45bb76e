#include "faces/MoonPhase.h"

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
    {"New Moon", "Waxing Crescent"},
    {"First Quarter", "Waxing Gibbous"},
    {"Full Moon", "Waning Gibbous"},
    {"Last Quarter", "Waning Crescent"},
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
        return QString::fromLatin1(phases[nearest % 4].principal);
    return QString::fromLatin1(phases[static_cast<std::size_t>(quarters) % 4].following);
}

Principal next(const QDateTime& at)
{
    const double quarters = fraction(at) * 4;
    const double following = std::floor(quarters) + 1;
    return {QString::fromLatin1(phases[static_cast<std::size_t>(following) % 4].principal),
        (following - quarters) / 4 * synodicMonth};
}

} // namespace ambrelle::MoonPhase
