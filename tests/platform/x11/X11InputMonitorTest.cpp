// SPDX-License-Identifier: MIT

#include "platform/x11/session/X11InputMonitor.h"

#include "platform/x11/Onlooker.h"
#include "support/AnswerOf.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QScreen>

#include <gmock/gmock.h>

#include <cmath>

namespace ambrelle::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::AllOf;
using ::testing::Ge;
using ::testing::Le;
using ::testing::Optional;

struct X11InputMonitorTest : testing::Test {
    X11InputMonitorTest()
    {
        QObject::connect(&monitor, &InputMonitor::clicked, &monitor, [this] { ++clicks; });
        QObject::connect(&monitor, &InputMonitor::moved, &monitor, [this](const QPointF& point) {
            if (!points.isEmpty())
                travel += std::hypot(point.x() - points.last().x(), point.y() - points.last().y());
            points.append(point);
        });
    }

    static bool xdotool(const QStringList& arguments) { return runTool(u"xdotool"_s, arguments); }
    /// Moves the pointer as a mouse does, in so many steps.
    static bool push(int steps, int x, int y)
    {
        QStringList arguments;
        for (int step = 0; step < steps; ++step) {
            arguments += {u"mousemove_relative"_s, u"--"_s, QString::number(x), QString::number(y)};
        }
        return xdotool(arguments);
    }
    static bool click(int button) { return xdotool({u"click"_s, QString::number(button)}); }
    std::optional<double> idle()
    {
        return answerOf<std::optional<double>>(
            [this](const auto& take) { monitor.secondsSinceInput(&monitor, take); }, Answered::anyTime);
    }

    double ratio = qGuiApp->primaryScreen()->devicePixelRatio();
    X11InputMonitor monitor;
    int clicks = 0;
    QList<QPointF> points;
    double travel = 0;
};

TEST_F(X11InputMonitorTest, CountsTheMainButtonsInOtherWindowsAndGrabsNothing)
{
    Onlooker onlooker;
    const xcb_window_t window = onlooker.openWindow({300, 300, 200, 200}, 0xFF00FF00);
    ASSERT_TRUE(xdotool({"mousemove", "400", "400"}));
    monitor.start();
    ASSERT_TRUE(monitor.isAvailable() && monitor.tellsPointer()) << monitor.whyNot().toStdString();
    for (const int button : {1, 2, 3, 4, 5, 1})
        ASSERT_TRUE(click(button));
    EXPECT_TRUE(waitUntil([&] { return clicks == 3; })) << clicks;
    EXPECT_TRUE(waitUntil([&] { return onlooker.clicks(window) > 0; })) << "the window hears them too";
    monitor.stop();
    ASSERT_TRUE(click(1));
    monitor.start();
    ASSERT_TRUE(click(3));
    EXPECT_TRUE(waitUntil([&] { return clicks >= 4; }));
    EXPECT_EQ(clicks, 4) << "nothing was heard while stopped";
    onlooker.closeWindow(window);
}

TEST_F(X11InputMonitorTest, TellsTheWayOfThePointerInFewSteps)
{
    ASSERT_TRUE(xdotool({"mousemove", "100", "200"}));
    monitor.start();
    ASSERT_TRUE(push(1, 1, 0));
    ASSERT_TRUE(waitUntil([&] { return !points.isEmpty(); }));
    rest(250);
    points = {points.last()};
    travel = 0;
    ASSERT_TRUE(push(300, 2, 1));
    const QPointF way(600 / ratio, -300 / ratio); // up is positive
    const QPointF goal = points.first() + way;
    EXPECT_TRUE(waitUntil([&] { return points.last() == goal; }))
        << points.last().x() << ", " << points.last().y() << " in place of " << goal.x() << ", " << goal.y();
    EXPECT_NEAR(travel, std::hypot(way.x(), way.y()), 0.5);
    EXPECT_LT(points.size(), 150) << "not once for every motion";
    EXPECT_EQ(clicks, 0);
    const qsizetype told = points.size();
    rest(400);
    EXPECT_EQ(points.size(), told) << "a pointer that rests says nothing";
}

TEST_F(X11InputMonitorTest, LeavesOutItsOwnWindowsAlsoWhenItStartsInOne)
{
    QRasterWindow window;
    window.setFlag(Qt::FramelessWindowHint);
    const QPoint corner = qGuiApp->primaryScreen()->geometry().topLeft() + QPoint(200, 200);
    window.setGeometry({corner, QSize(200, 200)});
    window.show();
    ASSERT_TRUE(waitUntil([&] { return window.isExposed(); }));
    ASSERT_TRUE(xdotool({"mousemove", QString::number(300 * ratio), QString::number(300 * ratio)}));
    ASSERT_TRUE(waitUntil([&] { return QGuiApplication::topLevelAt(QCursor::pos()) == &window; }));
    rest(100);
    monitor.start();
    ASSERT_TRUE(click(1));
    ASSERT_TRUE(push(20, 1, 1));
    rest(300);
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(points.isEmpty());

    ASSERT_TRUE(push(20, 20, 20)); // out
    EXPECT_TRUE(waitUntil([&] { return !points.isEmpty(); }));
    ASSERT_TRUE(click(1));
    EXPECT_TRUE(waitUntil([&] { return clicks == 1; }));

    ASSERT_TRUE(xdotool({"mousemove", QString::number(300 * ratio), QString::number(300 * ratio)}));
    rest(200);
    ASSERT_TRUE(click(1));
    rest(100);
    EXPECT_EQ(clicks, 1) << "in again";
    window.hide();
    rest(200);
    ASSERT_TRUE(click(1));
    EXPECT_TRUE(waitUntil([&] { return clicks == 2; })) << "the window under the pointer is gone";
}

TEST_F(X11InputMonitorTest, TellsTheTimeSinceTheLastInput)
{
    EXPECT_EQ(idle(), std::nullopt) << "not started";
    monitor.start();
    QElapsedTimer sinceInput;
    const auto atMost = [&] { return static_cast<double>(sinceInput.elapsed()) / 1000 + 0.01; };
    sinceInput.start();
    ASSERT_TRUE(xdotool({"key", "Shift_L"}));
    const std::optional<double> fresh = idle();
    EXPECT_THAT(fresh, Optional(Le(atMost())));
    rest(700);
    const std::optional<double> later = idle();
    EXPECT_THAT(later, Optional(AllOf(Ge(0.69), Le(atMost()))));
    sinceInput.start();
    ASSERT_TRUE(push(1, 1, 1));
    const std::optional<double> again = idle();
    EXPECT_THAT(again, Optional(Le(atMost())));

    int answers = 0;
    for (int i = 0; i < 50; ++i)
        monitor.secondsSinceInput(&monitor, [&](std::optional<double> seconds) { answers += seconds ? 1 : 1000; });
    EXPECT_TRUE(waitUntil([&] { return answers == 50; })) << answers << " of many questions at once";
}

TEST_F(X11InputMonitorTest, MayBeStoppedByWhoeverHearsIt)
{
    QObject::connect(&monitor, &InputMonitor::clicked, &monitor, [this] { monitor.stop(); });
    monitor.start();
    ASSERT_TRUE(click(1));
    ASSERT_TRUE(waitUntil([&] { return clicks == 1; }));
    EXPECT_EQ(idle(), std::nullopt);
    monitor.start();
    monitor.secondsSinceInput(&monitor, [this](std::optional<double>) { monitor.stop(); });
    EXPECT_TRUE(waitUntil([&] { return idle() == std::nullopt; }));
}

TEST_F(X11InputMonitorTest, MeasuresTheMainDisplay)
{
    // The virtual server claims 96 dots an inch or thereabouts.
    EXPECT_NEAR(monitor.metresPerPoint(), 0.0254 / 96 * ratio, 0.00003);
}

} // namespace
} // namespace ambrelle::test
