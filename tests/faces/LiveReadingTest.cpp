// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"
#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/recording/RecordingAnnouncer.h"
#include "platform/recording/RecordingDevices.h"
#include "services/DevicesService.h"
#include "services/FocusTimer.h"

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class FocusReadingTest : public ::testing::Test {
protected:
    FocusReading read() const { return focusReading(timer, clock.now()); }
    void finishPeriod()
    {
        timer.start();
        clock.advance(std::chrono::seconds(static_cast<int>(timer.remaining(clock.now()))));
    }

    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings{defaults};
    ManualClock clock;
    RecordingAnnouncer announcer;
    FocusTimer timer{announcer, settings, defaults, clock};
};

} // namespace

TEST_F(FocusReadingTest, CountsDownInWholeSeconds)
{
    EXPECT_EQ(read(), (FocusReading{.phase = u"Focus"_s, .remaining = u"25:00"_s}));
    timer.start();
    EXPECT_EQ(read().remaining, u"25:00"_s);
    clock.advance(300ms);
    EXPECT_EQ(read().remaining, u"25:00"_s) << "a second is shown until it is over";
    clock.advance(15min);
    EXPECT_EQ(read().remaining, u"10:00"_s);
    EXPECT_TRUE(read().running);
    EXPECT_NEAR(read().progress, 0.6, 0.001);
    settings.focusMinutes.set(180);
    timer.reset();
    EXPECT_EQ(read().remaining, u"180:00"_s);
    settings.focusMinutes.set(-3);
    EXPECT_EQ(read().remaining, u"0:00"_s);
}

TEST_F(FocusReadingTest, TheFourthDotStaysLitUntilWorkBeginsAgain)
{
    for (const int lit : {1, 2, 3, 4}) {
        finishPeriod();
        EXPECT_EQ(read().sessions, lit);
        EXPECT_EQ(read().phase, lit == 4 ? u"Long break"_s : u"Break"_s);
        finishPeriod();
        EXPECT_EQ(read().phase, u"Focus"_s);
        EXPECT_EQ(read().sessions, lit);
    }
    timer.start();
    EXPECT_EQ(read().sessions, 0);
    clock.advance(1min);
    timer.pause();
    EXPECT_EQ(read().sessions, 0) << "a pause does not undo the beginning";
    timer.reset();
    EXPECT_EQ(read().sessions, 4);
    finishPeriod();
    EXPECT_EQ(read().sessions, 1);
}

TEST(DevicesReadingTest, EveryStateHasItsSentence)
{
    ManualClock clock;
    RecordingDevices bluetooth;
    DevicesService service({&bluetooth}, clock);
    service.start();
    EXPECT_EQ(devicesReading(service).notice, (Notice{u"headphones"_s, u"Looking for devices…"_s}));
    bluetooth.tell({});
    EXPECT_EQ(devicesReading(service).notice.sentence, u"No devices connected"_s);
    bluetooth.tellWhyNot(u"Bluetooth is off."_s);
    EXPECT_EQ(devicesReading(service).notice.sentence, u"Bluetooth is off."_s);

    bluetooth.tell({{.name = u"Buds"_s, .left = 0.1, .charging = true}, {.name = u"Mouse"_s, .level = 0.125},
        {.name = u"Thing"_s}});
    const DevicesReading reading = devicesReading(service);
    EXPECT_FALSE(reading.notice);
    const QList<DevicesReading::Row> rows{
        {.symbol = u"airpodspro"_s, .name = u"Buds"_s, .detail = u"L 10"_s, .charging = true},
        {.symbol = u"magicmouse"_s, .name = u"Mouse"_s, .level = 0.125, .percent = u"13%"_s},
        {.symbol = u"dot.radiowaves.left.and.right"_s, .name = u"Thing"_s}};
    EXPECT_EQ(reading.rows, rows);
}

} // namespace ambrelle
