// SPDX-License-Identifier: MIT

#include "services/Automation.h"

#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/recording/RecordingSources.h"
#include "services/SystemMonitor.h"

#include <gtest/gtest.h>

using namespace ambrelle;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Counts who asks for repeated work.
class CountingClock : public ManualClock {
public:
    Ticket every(std::chrono::milliseconds period, Work work) override
    {
        ++running;
        auto inner = std::make_shared<Ticket>(ManualClock::every(period, std::move(work)));
        return Ticket([this, inner] {
            --running;
            inner->reset();
        });
    }

    int running = 0;
};

struct AutomationTest : testing::Test {
    /// Every reset of the totals is a change that no sample made.
    AutomationTest()
    {
        settings.wallpaperShuffleMinutes.set(0);
        settings.downloadResetMinutes.set(0);
        QObject::connect(&monitor, &SystemMonitor::changed, [this] { ++resets; });
    }

    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings{defaults};
    RecordingSources machine;
    CountingClock clock;
    SystemMonitor monitor{machine.sources(), clock};
    int shuffles = 0;
    int resets = 0;
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

TEST_F(AutomationTest, PeriodsRunFromTheMakingAndHeedNoWallClock)
{
    clock.advance(40s);
    settings.wallpaperShuffleMinutes.set(1);
    automation.start();
    clock.setNow(clock.now().addYears(1));
    EXPECT_EQ(shuffles, 0);
    clock.advance(30s);
    EXPECT_EQ(shuffles, 1) << "70 seconds after the making";
    clock.setNow(clock.now().addYears(-2));
    clock.advance(60s);
    EXPECT_EQ(shuffles, 2);
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
