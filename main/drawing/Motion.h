// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

namespace ambrelle {

/// How a part of a face or a mark of a scene moves: steadily at `fps` frames a second, or (period above 0) only in
/// bursts.
struct Motion {
    double fps = 0;
    double period = 0; ///< seconds between the starts of two bursts; 0: steady
    double offset = 0; ///< seconds by which this widget's bursts are shifted against the clock
    double burst = 0; ///< length of a burst in seconds

    bool operator==(const Motion&) const = default;

    static Motion steady(double fps) { return {.fps = fps}; }
    /// Bursts whose moments differ from widget to widget by `seed`, in step with `Wave::flicker` of the same seed.
    static Motion bursts(double period, double seed, double burst, double fps);

    /// The next moment to draw after `t` (seconds since 2001-01-01 00:00 UTC, as all times of motion).
    double next(double t) const;
    /// How far a burst has come at `t`, from 0 on below 1; none between bursts.
    std::optional<double> phase(double t) const;
};

/// When bursts are drawn: every 1/fps within a burst, once just after its end, and at the start of the next one.
struct BurstSchedule {
    double period = 1;
    double offset = 0;
    double burst = 0;
    double fps = 1;

    double next(double t) const;
};

/// Functions of time that make a needle tremble and a tube flicker.
namespace Wave {

/// Three sines whose ratios do not repeat; in [-1, 1].
double wobble(double t, double seed);
/// 1 most of the time; for a third of a second once a `period` 0.35 and 0.9 in turn.
double flicker(double t, double seed, double period = 9);

} // namespace Wave

} // namespace ambrelle
