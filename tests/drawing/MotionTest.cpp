// SPDX-License-Identifier: MIT

#include "drawing/Motion.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

TEST(BurstSchedule, DrawsWithinBurstsAndOnceJustAfter)
{
    const BurstSchedule schedule{.period = 9, .offset = 1.37, .burst = 0.35, .fps = 28};
    double t = 1000;
    int frames = 0;
    int rests = 0;
    for (const double end = t + 90; t < end;) {
        const double next = schedule.next(t);
        ASSERT_GT(next, t) << "the schedule must move on";
        const double phase = std::fmod(t + schedule.offset, schedule.period);
        if (phase < schedule.burst) {
            EXPECT_LE(next, t - phase + schedule.burst + 0.001 + 1e-9);
            ++frames;
        } else {
            EXPECT_NEAR(std::fmod(next + schedule.offset + 1e-9, schedule.period), 0, 1e-6) << "rest ends with a burst";
            ++rests;
        }
        t = next;
    }
    EXPECT_NEAR(rests, 10, 1);
    EXPECT_NEAR(frames, 10 * 0.35 * 28, 12);
}

TEST(Motion, SteadyFramesComeAtTheirRate)
{
    EXPECT_DOUBLE_EQ(Motion::steady(10).next(5), 5.1);
}

TEST(Wave, FlickersForAThirdOfASecondAndWobblesWithinOne)
{
    struct Case {
        double t;
        double seed;
        double expected;
    };
    for (const Case& c : {Case{0, 0, 0.35}, Case{0.34, 0, 0.9}, Case{0.5, 0, 1}, Case{0, 1, 1}, Case{-0.2, 0, 1}})
        EXPECT_DOUBLE_EQ(Wave::flicker(c.t, c.seed), c.expected) << c.t << ' ' << c.seed;
    for (double t = -50; t < 50; t += 0.013)
        EXPECT_LE(std::abs(Wave::wobble(t, 3.1)), 1.0);
}

TEST(Motion, BurstsMeetTheFlickerOfTheSameSeed)
{
    // While a tube is dark or dim, frames must be due: otherwise it would freeze in that state.
    const Motion motion = Motion::bursts(9, 4, 0.35, 28);
    for (double t = 0; t < 27; t += 0.01) {
        if (Wave::flicker(t, 4) < 1) {
            EXPECT_LT(motion.next(t) - t, 0.05) << t;
        }
    }
}

} // namespace ambrelle
