// SPDX-License-Identifier: MIT

#include "services/Automation.h"

#include "platform/recording/RecordingSources.h"
#include "services/ServiceTest.h"
#include "services/SystemMonitor.h"

namespace ambrelle {
namespace {

struct AutomationTest : ServiceTest {
    AutomationTest()
    {
        settings.wallpaperShuffleMinutes.set(0);
        settings.downloadResetMinutes.set(0);
        count(monitor);
    }

    RecordingSources machine;
    SystemMonitor monitor{machine.sources(), clock};
    int shuffles = 0;
    int& resets = changes; // every reset of the totals is a change that no sample made
    Automation automation{settings, monitor, clock, [this] { ++shuffles; }};
};

TEST_F(AutomationTest, EachChoreRunsOncePerPeriod)
{
    settings.downloadResetMinutes.set(60);
    settings.wallpaperShuffleMinutes.set(1);
    automation.start();
    clock.advance(59s);
    EXPECT_EQ(shuffles, 0);
    clock.advance(1s);
    EXPECT_EQ(shuffles, 1);
    clock.advance(59min - 1s);
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(shuffles, 59);
    clock.advance(1s);
    EXPECT_EQ(resets, 1);
    clock.advance(3h);
    EXPECT_EQ(resets, 4);
    EXPECT_EQ(shuffles, 240);
}

TEST_F(AutomationTest, PeriodsRunFromTheMakingThroughSleepAndOutliveAClockSetBack)
{
    clock.advance(40s);
    settings.wallpaperShuffleMinutes.set(60);
    automation.start();
    clock.setNow(clock.now().addSecs(59 * 60)); // asleep
    EXPECT_EQ(shuffles, 0);
    clock.setNow(clock.now().addSecs(20));
    EXPECT_EQ(shuffles, 1) << "at once, an hour after the making";
    clock.setNow(clock.now().addYears(-2));
    clock.advance(59min);
    EXPECT_EQ(shuffles, 1);
    clock.advance(1min);
    EXPECT_EQ(shuffles, 2);
    settings.wallpaperShuffleMinutes.set(1);
    automation.start();
    EXPECT_EQ(clock.running, 1) << "in place of the timer before";
    clock.advance(60s);
    EXPECT_EQ(shuffles, 3);
}

TEST_F(AutomationTest, CostsNothingWhileNoChoreIsAskedFor)
{
    EXPECT_EQ(clock.running, 0);
    settings.downloadResetMinutes.set(5);
    EXPECT_EQ(clock.running, 0) << "not started";
    automation.start();
    EXPECT_EQ(clock.running, 1);
    settings.wallpaperShuffleMinutes.set(5);
    EXPECT_EQ(clock.running, 1);
    settings.downloadResetMinutes.set(0);
    clock.advance(5min);
    EXPECT_EQ(shuffles, 1);
    EXPECT_EQ(resets, 0);
    settings.wallpaperShuffleMinutes.set(0);
    EXPECT_EQ(clock.running, 0);
    settings.wallpaperShuffleMinutes.set(-3);
    EXPECT_EQ(clock.running, 0);
    settings.downloadResetMinutes.set(5);
    clock.advance(30s);
    EXPECT_EQ(resets, 1) << "its period was over long ago";
}

} // namespace
} // namespace ambrelle
