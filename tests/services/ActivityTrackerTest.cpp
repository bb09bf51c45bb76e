// SPDX-License-Identifier: MIT

#include "services/ActivityTracker.h"

#include "platform/headless/HeadlessPorts.h"
#include "platform/recording/RecordingInputMonitor.h"
#include "services/ServiceTest.h"

#include <QJsonArray>

namespace ambrelle {
namespace {

const QString activityKey = u"activity.today"_s;

QDateTime march(int day, int hour, int minute, int second = 0)
{
    return {QDate(2026, 3, day), QTime(hour, minute, second), Qt::UTC};
}

struct ActivityTrackerTest : ServiceTest {
    ActivityTrackerTest()
        : ServiceTest(march(7, 9, 59, 45))
    {
        count(tracker);
    }

    RecordingInputMonitor monitor;
    ActivityTracker tracker{monitor, defaults, clock};
};

TEST_F(ActivityTrackerTest, ASampleCountsTowardsItsHourUnlessTheUserWasIdle)
{
    const std::pair<std::optional<double>, double> cases[] = {
        {0.0, 10}, {59.0, 10}, {59.999, 10}, {60.0, 0}, {4000.0, 0}, {std::nullopt, 0}};
    tracker.start();
    for (const auto& [idle, gained] : cases) {
        monitor.idle = idle;
        const double before = tracker.activeSeconds();
        changes = 0;
        clock.advance(10s);
        EXPECT_EQ(tracker.activeSeconds() - before, gained) << idle.value_or(-1);
        EXPECT_EQ(changes, gained > 0 ? 1 : 0);
    }
    EXPECT_EQ(tracker.hours().at(9), 10) << "09:59:55";
    EXPECT_EQ(tracker.hours().at(10), 20) << "10:00:05 and 10:00:15";
}

TEST_F(ActivityTrackerTest, TravelIsTheSumOfStraightStepsFromTheSecondPointOn)
{
    tracker.start();
    Q_EMIT monitor.moved({-5000, 9000});
    clock.advance(10s);
    EXPECT_EQ(tracker.metres(), 0) << "one point is no distance";
    Q_EMIT monitor.moved({-5000 + 300, 9000 - 400});
    Q_EMIT monitor.moved({-5000 + 300, 9000});
    EXPECT_EQ(tracker.metres(), 0) << "published with the sample";
    clock.advance(10s);
    EXPECT_DOUBLE_EQ(tracker.metres(), 0.9);

    tracker.stop();
    Q_EMIT monitor.moved({0, 0});
    Q_EMIT monitor.clicked();
    tracker.start();
    Q_EMIT monitor.moved({100, 0});
    Q_EMIT monitor.moved({100, 10});
    tracker.stop();
    EXPECT_DOUBLE_EQ(tracker.metres(), 0.91) << "the way while stopped counts for nothing";
    EXPECT_EQ(tracker.clicks(), 0);
}

TEST_F(ActivityTrackerTest, RunsOnlyOnDemandAndAsksNothingOtherwise)
{
    clock.advance(1h);
    EXPECT_EQ(monitor.questions, 0);
    tracker.start();
    tracker.start();
    EXPECT_EQ(monitor.starts, 1);
    clock.advance(1min);
    EXPECT_EQ(monitor.questions, 6);
    const double active = tracker.activeSeconds();
    monitor.isDeferred = true;
    clock.advance(10s);
    tracker.stop();
    monitor.answer();
    EXPECT_EQ(tracker.activeSeconds(), active) << "the answer came after the stop";
    EXPECT_FALSE(monitor.isRunning);
    clock.advance(1h);
    EXPECT_EQ(monitor.questions, 7);
}

TEST_F(ActivityTrackerTest, MidnightBeginsAtZeroWithTheNextSample)
{
    clock.setNow(march(7, 23, 59, 55));
    tracker.start();
    Q_EMIT monitor.clicked();
    Q_EMIT monitor.moved({0, 0});
    Q_EMIT monitor.moved({70, 0});
    clock.advance(4s);
    EXPECT_EQ(tracker.clicks(), 1);
    clock.advance(6s); // 00:00:05
    EXPECT_EQ(tracker.clicks(), 0);
    EXPECT_EQ(tracker.activeSeconds(), 10);
    EXPECT_EQ(tracker.hours().at(0), 10);
    EXPECT_DOUBLE_EQ(tracker.metres(), 0.07) << "travel not converted yet belongs to the sample";
    EXPECT_EQ(defaults.object(activityKey)->value(u"day"_s).toString(), u"2026-3-8"_s);
}

TEST_F(ActivityTrackerTest, FiguresSurviveARestartOnTheSameDayOnly)
{
    tracker.start();
    Q_EMIT monitor.clicked();
    Q_EMIT monitor.clicked();
    clock.advance(10s);
    Q_EMIT monitor.clicked();
    tracker.stop();
    EXPECT_EQ(ActivityTracker(monitor, defaults, clock).clicks(), 3);
    EXPECT_EQ(ActivityTracker(monitor, defaults, clock).hours(), tracker.hours());

    tracker.start();
    Q_EMIT monitor.clicked();
    clock.advance(10s);
    EXPECT_EQ(ActivityTracker(monitor, defaults, clock).clicks(), 4) << "after a crash";
    tracker.stop();
    clock.setNow(march(8, 0, 0, 0));
    const ActivityTracker tomorrows(monitor, defaults, clock);
    EXPECT_EQ(tomorrows.clicks(), 0);
    EXPECT_EQ(tomorrows.activeSeconds(), 0);

    changes = 0;
    tracker.start();
    EXPECT_EQ(tracker.clicks(), 0) << "started again on another day";
    EXPECT_EQ(changes, 1);
}

TEST_F(ActivityTrackerTest, ADamagedRecordHarmsNothing)
{
    QJsonArray twentyFour;
    for (int hour = 0; hour < 24; ++hour)
        twentyFour.append(hour == 3 ? QJsonValue(-5) : hour == 4 ? QJsonValue(u"x"_s) : QJsonValue(60));
    struct Case {
        const char* what;
        QJsonObject stored;
        double seconds, metres;
        int clicks;
    };
    const Case cases[] = {
        {"nothing but the day", {}, 0, 0, 0},
        {"a padded day is another day", {{u"day"_s, u"2026-03-07"_s}, {u"clicks"_s, 5}}, 0, 0, 0},
        {"too few hours", {{u"hours"_s, QJsonArray{600}}, {u"clicks"_s, 5}}, 0, 0, 5},
        {"wrong hours", {{u"hours"_s, twentyFour}}, 22 * 60, 0, 0},
        {"wrong types", {{u"hours"_s, u"x"_s}, {u"metres"_s, true}, {u"clicks"_s, u"7"_s}}, 0, 0, 0},
        {"wrong signs", {{u"metres"_s, -3.5}, {u"clicks"_s, -1}}, 0, 0, 0},
        {"clicks that are no integer", {{u"metres"_s, 3.5}, {u"clicks"_s, 1e300}}, 0, 3.5, 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        QJsonObject record = each.stored;
        if (!record.contains(u"day"_s))
            record.insert(u"day"_s, u"2026-3-7"_s);
        defaults.set(activityKey, record);
        ActivityTracker loaded(monitor, defaults, clock);
        EXPECT_EQ(loaded.activeSeconds(), each.seconds);
        EXPECT_EQ(loaded.metres(), each.metres);
        EXPECT_EQ(loaded.clicks(), each.clicks);
        loaded.start();
        clock.advance(10s);
        EXPECT_EQ(loaded.activeSeconds(), each.seconds + 10);
    }
}

TEST_F(ActivityTrackerTest, SamplesForPicturesAreNeverStored)
{
    monitor.currentTellsPointer = false;
    monitor.currentWhyNot = u"off"_s;
    tracker.start();
    tracker.loadPreviewData();
    EXPECT_TRUE(tracker.isAvailable());
    EXPECT_TRUE(tracker.tellsPointer());
    EXPECT_GT(tracker.clicks(), 0);
    clock.advance(1min);
    tracker.start();
    tracker.stop();
    EXPECT_EQ(defaults.object(activityKey)->value(u"clicks"_s).toInt(-1), 0);
    EXPECT_EQ(tracker.clicks(), 0);
    EXPECT_EQ(tracker.whyNot(), u"off"_s);
}

TEST_F(ActivityTrackerTest, TellsWhenMeasuringBecomesImpossible)
{
    tracker.start();
    monitor.idle = 100;
    clock.advance(10s);
    EXPECT_EQ(changes, 0);
    monitor.currentWhyNot = u"off"_s;
    clock.advance(30s);
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(tracker.isAvailable());
    monitor.currentWhyNot.clear();
    clock.advance(30s);
    EXPECT_EQ(changes, 2);
}

TEST(InputMonitor, MetresPerPointNeedBothWidths)
{
    EXPECT_DOUBLE_EQ(InputMonitor::metresPerPoint(600, 1920), 0.0003125);
    EXPECT_EQ(InputMonitor::metresPerPoint(0, 1920), 0.0002);
    EXPECT_EQ(InputMonitor::metresPerPoint(600, 0), 0.0002);
    EXPECT_FALSE(HeadlessInputMonitor().isAvailable());
}

} // namespace
} // namespace ambrelle
