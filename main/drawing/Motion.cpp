// SPDX-License-Identifier: MIT

#include "drawing/Motion.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

double modulo(double value, double period)
{
    const double rest = std::fmod(value, period);
    return rest < 0 ? rest + period : rest;
}

constexpr double seedShift = 1.37; // seconds by which one step of seed shifts a flicker

} // namespace

Motion Motion::bursts(double period, double seed, double burst, double fps)
{
    return {.fps = fps, .period = period, .offset = seedShift * seed, .burst = burst};
}

double Motion::next(double t) const
{
    return period > 0 ? BurstSchedule{period, offset, burst, fps}.next(t) : t + 1 / fps;
}

std::optional<double> Motion::phase(double t) const
{
    const double since = period > 0 ? modulo(t + offset, period) : burst;
    return since < burst ? std::optional(since / burst) : std::nullopt;
}

double BurstSchedule::next(double t) const
{
    const double phase = modulo(t + offset, period);
    if (phase < burst)
        return std::min(t + 1 / fps, t - phase + burst + 0.001);
    return t - phase + period;
}

namespace Wave {

double wobble(double t, double seed)
{
    return 0.6 * std::sin(2.3 * t + seed) + 0.3 * std::sin(5.7 * t + 2.1 * seed)
        + 0.1 * std::sin(13.1 * t + 3.7 * seed);
}

double flicker(double t, double seed, double period)
{
    const double p = modulo(seed * seedShift + t, period);
    if (p >= 0.35)
        return 1;
    return static_cast<int>(p * 28) % 2 == 1 ? 0.9 : 0.35;
}

} // namespace Wave

} // namespace ambrelle
