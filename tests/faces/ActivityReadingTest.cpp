// SPDX-License-Identifier: MIT

#include "faces/Locales.h"
#include "faces/ReadingFunctions.h"

#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "platform/recording/RecordingInputMonitor.h"
#include "services/ActivityTracker.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct ActivityReadingTest : testing::Test {
    ActivityReading reading(double seconds, double metres, int clicks)
    {
        QJsonArray hours;
        for (int hour = 0; hour < 24; ++hour)
            hours.append(hour == 14 ? seconds : hour == 15 ? 59.9 : 0);
        defaults.set(u"activity.today"_s,
            QJsonObject{{u"day"_s, u"2025-6-2"_s}, {u"hours"_s, hours}, {u"metres"_s, metres}, {u"clicks"_s, clicks}});
        return activityReading(ActivityTracker(monitor, defaults, clock), clock.now(), british);
    }

    RecordingInputMonitor monitor;
    UserDefaults defaults = UserDefaults::temporary();
    ManualClock clock;
};

TEST_F(ActivityReadingTest, CountsInWholeMinutesAndFittingUnits)
{
    struct Case {
        double seconds, metres;
        int clicks;
        const char *active, *distance, *clickText;
    };
    for (const Case& each : {
             Case{0, 0, 0, "0 min", "0 m", "0 clicks"},
             Case{3500, 0.49, 1, "59 min", "0 m", "1 click"},
             Case{3540.1, 999.49, 999, "1 h 0 min", "999 m", "999 clicks"},
             Case{3600, 999.6, 1204, "1 h 0 min", "1.00 km", "1,204 clicks"},
             Case{11460.1, 12345, 12345678, "3 h 12 min", "12.35 km", "12,345,678 clicks"},
         }) {
        const ActivityReading shown = reading(each.seconds, each.metres, each.clicks);
        EXPECT_EQ(shown.active.toStdString(), each.active);
        EXPECT_EQ(shown.metres.toStdString(), each.distance);
        EXPECT_EQ(shown.clicks.toStdString(), each.clickText);
        EXPECT_TRUE(shown.hint.isEmpty());
        EXPECT_FALSE(shown.notice);
        EXPECT_EQ(shown.hour, 10);
    }
    EXPECT_EQ(reading(1800, 5, 5), reading(1800.05, 5.4, 5)) << "nothing to repaint";
    const QList<double> hours = reading(7200, 0, 0).hours;
    EXPECT_EQ(hours.size(), 24);
    EXPECT_EQ(hours.at(14), 1) << "an hour that came twice";
    EXPECT_EQ(hours.at(15), 0) << "no whole minute yet";
}

TEST_F(ActivityReadingTest, SaysWhatIsNotMeasured)
{
    monitor.currentTellsPointer = false;
    const ActivityReading blind = reading(600, 77, 7);
    EXPECT_EQ(blind.metres + blind.clicks, QString());
    EXPECT_EQ(blind.hint, u"Active time only"_s);
    EXPECT_FALSE(blind.notice);

    monitor.currentWhyNot = u"Nothing is told."_s;
    EXPECT_EQ(reading(600, 77, 7).notice, (Notice{u"figure.walk.motion"_s, u"Nothing is told."_s}));
}

} // namespace

} // namespace ambrelle
