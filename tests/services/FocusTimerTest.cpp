// SPDX-License-Identifier: MIT

#include "services/FocusTimer.h"

#include "platform/recording/RecordingAnnouncer.h"
#include "services/ServiceTest.h"

namespace ambrelle {
namespace {

using Phase = FocusTimer::Phase;

const auto completedKey = u"focus.completed"_s;
const auto workDone = u"Focus session done|Nice work. Take 5 minutes."_s;
const auto roundDone = u"Focus session done|Nice work. Take 15 minutes."_s;
const auto breakOver = u"Break's over|Ready for the next session? Click the Focus widget to start."_s;

const QDateTime morning(QDate(2026, 3, 7), QTime(9, 0), Qt::UTC);

struct FocusTimerTest : ServiceTest {
    FocusTimerTest()
        : ServiceTest(morning)
    {
        count(timer);
    }
    double left() const { return timer.remaining(clock.now()); }
    void work()
    {
        timer.start();
        clock.advance(25min);
    }

    RecordingAnnouncer announcer;
    FocusTimer timer{announcer, settings, defaults, clock};
};

TEST_F(FocusTimerTest, ARoundEndsWithALongBreakAndBreaksRunByThemselves)
{
    for (int session = 1; session <= 4; ++session) {
        SCOPED_TRACE(session);
        announcer.said.clear();
        EXPECT_EQ(timer.phase(), Phase::focus);
        EXPECT_FALSE(timer.isRunning());
        timer.toggle();
        clock.advance(25min - 1s);
        EXPECT_EQ(timer.phase(), Phase::focus);
        EXPECT_EQ(left(), 1);
        EXPECT_NEAR(timer.progress(clock.now()), 1499.0 / 1500, 1e-9);

        clock.advance(1s);
        const bool last = session == 4;
        EXPECT_EQ(timer.phase(), last ? Phase::longBreak : Phase::shortBreak);
        EXPECT_TRUE(timer.isRunning());
        EXPECT_EQ(timer.completedToday(), session);
        EXPECT_EQ(announcer.said, QStringList({u"glass"_s, last ? roundDone : workDone}));

        announcer.said.clear();
        clock.advance(last ? 15min : 5min);
        EXPECT_EQ(announcer.said, QStringList({u"hero"_s, breakOver}));
    }
    clock.advance(2h);
    EXPECT_FALSE(timer.isRunning()) << "work waits for the user";
    EXPECT_EQ(left(), 1500);
    EXPECT_EQ(timer.completedToday(), 4);
}

TEST_F(FocusTimerTest, PausingKeepsWhatIsLeft)
{
    timer.start();
    clock.advance(25min - 400ms);
    timer.toggle();
    EXPECT_FALSE(timer.isRunning());
    EXPECT_NEAR(left(), 0.4, 1e-9);
    clock.advance(3h);
    EXPECT_NEAR(left(), 0.4, 1e-9);
    timer.toggle();
    EXPECT_EQ(*timer.endDate(), clock.now().addMSecs(400));
    timer.start(); // already running
    clock.advance(1s);
    EXPECT_EQ(timer.phase(), Phase::shortBreak);
}

TEST_F(FocusTimerTest, SkippedPeriodsDoNotCount)
{
    work();
    timer.skip();
    EXPECT_EQ(timer.phase(), Phase::focus);
    for (int skipped = 0; skipped < 4; ++skipped) {
        timer.start();
        clock.advance(10min);
        timer.skip();
        EXPECT_EQ(timer.phase(), Phase::shortBreak);
        EXPECT_FALSE(timer.isRunning());
        EXPECT_EQ(left(), 300);
        timer.skip();
    }
    EXPECT_EQ(timer.completedToday(), 1);
    EXPECT_EQ(announcer.said.size(), 2) << "only the first end is announced";

    timer.start();
    clock.advance(10min);
    timer.reset();
    EXPECT_EQ(timer.phase(), Phase::focus);
    EXPECT_FALSE(timer.isRunning());
    EXPECT_EQ(left(), 1500);
}

TEST_F(FocusTimerTest, SleepingPastTheEndEndsThePeriodOnWaking)
{
    timer.start();
    clock.setNow(clock.now().addSecs(8 * 3600)); // the steady clock stood still meanwhile
    EXPECT_EQ(left(), 0);
    clock.advance(1s);
    EXPECT_EQ(timer.phase(), Phase::shortBreak);
    EXPECT_EQ(timer.completedToday(), 1);
    EXPECT_EQ(left(), 300) << "the break begins when the user is back";
}

TEST_F(FocusTimerTest, AClockThatIsSetBackMakesNoPeriodLonger)
{
    timer.start();
    clock.advance(10min);
    clock.setNow(clock.now().addSecs(-3600));
    clock.advance(5min);
    EXPECT_NEAR(left(), 600, 1);
    clock.setNow(clock.now().addSecs(-3600));
    timer.pause();
    EXPECT_NEAR(left(), 600, 1);
    timer.start();
    clock.advance(10min + 1s);
    EXPECT_EQ(timer.phase(), Phase::shortBreak);
}

TEST_F(FocusTimerTest, KeepsTheCountOfTodayOnly)
{
    struct Case {
        const char* what;
        QJsonObject stored;
        int atStart, afterOne;
    };
    const Case cases[] = {
        {"nothing", {}, 0, 1},
        {"earlier days", {{u"2026-3-6"_s, 7}, {u"2025-3-7"_s, 9}}, 0, 1},
        {"today", {{u"2026-3-7"_s, 2}, {u"2026-3-6"_s, 7}}, 2, 3},
        {"zero-padded is another day", {{u"2026-03-07"_s, 2}}, 0, 1},
        {"a text", {{u"2026-3-7"_s, u"2"_s}}, 0, 1},
        {"a fraction", {{u"2026-3-7"_s, 2.5}}, 0, 1},
        {"below zero", {{u"2026-3-7"_s, -4}}, 0, 1},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        defaults.set(completedKey, each.stored);
        clock.setNow(morning);
        FocusTimer fresh(announcer, settings, defaults, clock);
        EXPECT_EQ(fresh.completedToday(), each.atStart);
        fresh.start();
        clock.advance(25min);
        EXPECT_EQ(fresh.completedToday(), each.afterOne);
        EXPECT_EQ(defaults.object(completedKey), QJsonObject({{u"2026-3-7"_s, each.afterOne}}));
    }
    defaults.set(completedKey, u"no object"_s);
    FocusTimer fresh(announcer, settings, defaults, clock);
    EXPECT_EQ(fresh.completedToday(), 0);
}

TEST_F(FocusTimerTest, ADayBeginsWithItsFirstFinishedSession)
{
    work();
    timer.reset();
    clock.setNow(morning.addSecs(14 * 3600 + 50 * 60)); // 23:50
    timer.start();
    clock.advance(15min);
    EXPECT_EQ(timer.completedToday(), 1) << "it is the next day, but nothing is finished";
    clock.advance(10min);
    EXPECT_EQ(timer.completedToday(), 1);
    EXPECT_EQ(defaults.object(completedKey), QJsonObject({{u"2026-3-8"_s, 1}}));
}

TEST_F(FocusTimerTest, LengthsOfTheSettingsCountForWhatDoesNotRun)
{
    timer.start();
    clock.advance(10min);
    const auto end = timer.endDate();
    settings.focusMinutes.set(50);
    EXPECT_EQ(timer.endDate(), end);
    timer.pause();
    EXPECT_EQ(left(), 900);
    settings.focusMinutes.set(40);
    EXPECT_EQ(left(), 2400);
    settings.locked.set(true); // no length
    timer.start();
    clock.advance(1min);
    timer.pause();
    settings.locked.set(false);
    EXPECT_EQ(left(), 2340);

    settings.focusSound.set(false);
    settings.breakMinutes.set(7);
    settings.longBreakMinutes.set(20);
    timer.start();
    clock.advance(40min);
    EXPECT_EQ(left(), 420);
    EXPECT_EQ(announcer.said, QStringList(u"Focus session done|Nice work. Take 7 minutes."_s));
}

TEST_F(FocusTimerTest, SenselessLengthsEndAtOnceButNeverSpin)
{
    for (const int minutes : {0, -5, std::numeric_limits<int>::min()}) {
        settings.focusMinutes.set(minutes);
        settings.breakMinutes.set(minutes);
        timer.reset();
        EXPECT_EQ(timer.progress(clock.now()), 0);
        timer.start();
        clock.advance(1s);
        EXPECT_EQ(timer.phase(), Phase::shortBreak);
        EXPECT_TRUE(timer.isRunning());
        clock.advance(1s);
        EXPECT_EQ(timer.phase(), Phase::focus);
        EXPECT_FALSE(timer.isRunning());
    }
    settings.focusMinutes.set(std::numeric_limits<int>::max());
    timer.start();
    clock.advance(1min);
    EXPECT_EQ(left(), timer.duration(Phase::focus) - 60);
}

TEST_F(FocusTimerTest, TellsWhatChangedAndRestsWhenIdle)
{
    clock.advance(24h);
    timer.reset();
    timer.pause();
    timer.durationsChanged();
    EXPECT_EQ(changes, 0);
    timer.start();
    clock.advance(10s);
    EXPECT_EQ(changes, 11);
    timer.pause();
    clock.advance(24h);
    EXPECT_EQ(changes, 12);
}

TEST_F(FocusTimerTest, TheSampleIsAPeriodUnderWayThatStandsStill)
{
    timer.loadPreviewData();
    EXPECT_TRUE(timer.isRunning());
    EXPECT_EQ(left(), 1000);
    clock.advance(1h);
    EXPECT_EQ(timer.phase(), Phase::focus);
    EXPECT_TRUE(announcer.said.isEmpty());
    EXPECT_FALSE(defaults.object(completedKey));
}

} // namespace
} // namespace ambrelle
