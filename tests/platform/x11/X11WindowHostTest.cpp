// SPDX-License-Identifier: MIT

#include "platform/x11/PanelTest.h"

#include <QProcess>

#include <algorithm>
#include <cmath>

namespace ambrelle::test {

using namespace Qt::StringLiterals;
namespace {

using X11WindowHostTest = PanelTest;

TEST_F(X11WindowHostTest, StaysOutOfListsAndLevelsAreSwitchedWhileShown)
{
    const QStringList always{"_NET_WM_STATE_SKIP_PAGER", "_NET_WM_STATE_SKIP_TASKBAR"};
    showPanel();
    const xcb_window_t other = coverPanel();
    for (const WindowLevel level : {WindowLevel::desktop, WindowLevel::floating, WindowLevel::desktop,
             WindowLevel::floating, WindowLevel::desktop}) {
        SCOPED_TRACE(level == WindowLevel::floating ? "floating" : "desktop");
        const bool floating = level == WindowLevel::floating;
        panel->setLevel(level);
        EXPECT_TRUE(waitUntil([&] {
            return floating ? onlooker.isAbove(panel->window(), other) : onlooker.isAbove(other, panel->window());
        }));
        EXPECT_TRUE(shows(facePixel(), floating ? faceColour : windowColour));
        EXPECT_TRUE(waitUntil([&] {
            const QStringList states = onlooker.atoms(panel->window(), "_NET_WM_STATE");
            return std::ranges::all_of(always, [&](const QString& state) { return states.contains(state); })
                && states.contains(u"_NET_WM_STATE_ABOVE"_s) == floating;
        })) << onlooker.atoms(panel->window(), "_NET_WM_STATE").join(u' ').toStdString();
        EXPECT_TRUE(waitUntil(
            [&] { return onlooker.values(panel->window(), "_NET_WM_DESKTOP") == std::vector<uint32_t>{0xFFFFFFFF}; }));
        EXPECT_EQ(onlooker.activeWindow(), other);
    }
}

TEST_F(X11WindowHostTest, FloatsAboveNewWindowsAlsoBesideAPanelOfTheDesktopLevel)
{
    panel->setLevel(WindowLevel::floating);
    showPanel();
    PlainFace lowFace;
    const std::unique_ptr<X11Panel> low = make(lowFace, {500, 200, 240, 160});
    low->show();
    ASSERT_TRUE(waitUntil([&] { return !lowFace.painted.isEmpty() && onlooker.isManaged(low->window()); }));
    const xcb_window_t other = coverPanel();
    EXPECT_TRUE(waitUntil([&] { return onlooker.isAbove(other, low->window()); }));
    EXPECT_TRUE(onlooker.isAbove(panel->window(), other));
}

TEST_F(X11WindowHostTest, HearsThePointerWithoutTakingTheFocus)
{
    showPanel();
    const xcb_window_t other = onlooker.openWindow({20, 20, 100, 80}, windowColour);
    ASSERT_TRUE(runTool(u"xdotool"_s, {"windowactivate", QString::number(other)}));
    ASSERT_TRUE(waitUntil([&] { return onlooker.activeWindow() == other; }));

    ASSERT_TRUE(click(facePixel()));
    ASSERT_TRUE(waitUntil([&] { return face.released.size() == 1; }));
    ASSERT_EQ(face.pressed.size(), 1);
    EXPECT_TRUE(face.inside);
    EXPECT_EQ(face.pressed.first().button, Qt::LeftButton);
    const QPointF local = face.pressed.first().local;
    EXPECT_NEAR(local.x(), face.face.center().x(), 1);
    EXPECT_NEAR(local.y(), face.face.center().y(), 1);
    EXPECT_NEAR(face.pressed.first().global.x(), panel->frame().x() + local.x(), 1);
    EXPECT_NEAR(face.pressed.first().global.y(), panel->frame().y() + panel->frame().height() - local.y(), 1);
    EXPECT_NEAR(host.pointer().y(), face.pressed.first().global.y(), 1);
    EXPECT_EQ(onlooker.activeWindow(), other);

    ASSERT_TRUE(movePointer({1, 1}));
    EXPECT_TRUE(waitUntil([&] { return !face.inside; }));
}

TEST_F(X11WindowHostTest, InputAreaAndClickThroughLetClicksReachTheWindowBelow)
{
    showPanel();
    const xcb_window_t other = coverPanel();
    panel->setLevel(WindowLevel::floating);
    panel->setOutline({});
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), other); }));

    const auto pressedBelow = [&](const QPoint& place) {
        const int before = onlooker.clicks(other);
        const qsizetype heard = face.pressed.size();
        EXPECT_TRUE(clickUntil(place, [&] { return onlooker.clicks(other) > before || face.pressed.size() > heard; }));
        return onlooker.clicks(other) > before;
    };
    EXPECT_TRUE(pressedBelow(marginPixel()));
    EXPECT_FALSE(pressedBelow(facePixel()));
    panel->setClickThrough(true);
    EXPECT_TRUE(pressedBelow(facePixel()));
    panel->setClickThrough(false);
    EXPECT_FALSE(pressedBelow(facePixel()));
}

TEST_F(X11WindowHostTest, SurvivesShowDesktop)
{
    showPanel();
    onlooker.showDesktop(true);
    rest(300);
    EXPECT_TRUE(onlooker.isViewable(panel->window()));
    panel->setLevel(WindowLevel::floating);
    rest(300);
    onlooker.showDesktop(false);
    rest(100);
    onlooker.showDesktop(true);
    rest(300);
    EXPECT_TRUE(onlooker.isViewable(panel->window()));
    onlooker.showDesktop(false);
    rest(100);
}

TEST_F(X11WindowHostTest, GoesExactlyWhereItIsTold)
{
    showPanel();
    const double height = host.screens().first().frame.height();
    for (const QPointF& origin : {QPointF(300, 100), QPointF(-40, 76), QPointF(500, -90), QPointF(700, height - 60)}) {
        panel->setFrame({origin, panel->frame().size()});
        const QPointF topLeft(origin.x(), height - origin.y() - 160);
        EXPECT_TRUE(waitUntil([&] {
            const QPointF off = QPointF(onlooker.geometry(panel->window()).topLeft()) - topLeft * ratio;
            return std::abs(off.x()) < ratio && std::abs(off.y()) < ratio;
        })) << origin.x()
            << ", " << origin.y();
        EXPECT_EQ(panel->frame().topLeft(), origin);
    }
    EXPECT_EQ(onlooker.geometry(panel->window()).size(), (QSizeF(240, 160) * ratio).toSize());
}

TEST_F(X11WindowHostTest, MayGrowOverTheEdgeOfTheScreen)
{
    showPanel();
    const QSizeF screen = host.screens().first().frame.size();
    const QPointF origin(screen.width() - 250, 200);
    panel->setFrame({origin, QSizeF(240, 160)}); // whole on the screen
    const auto isAt = [&](const QSizeF& size) {
        const QRectF there(origin.x(), screen.height() - origin.y() - size.height(), size.width(), size.height());
        const QRect window = onlooker.geometry(panel->window());
        return (QPointF(window.topLeft()) - there.topLeft() * ratio).manhattanLength() < 2 * ratio
            && window.size() == (size * ratio).toSize();
    };
    ASSERT_TRUE(waitUntil([&] { return isAt({240, 160}); }));
    panel->setFrame({origin, QSizeF(320, 200)});
    EXPECT_TRUE(waitUntil([&] { return isAt({320, 200}); }));
}

TEST_F(X11WindowHostTest, OpacityIsTheWindowsOwnProperty)
{
    showPanel();
    panel->setOpacity(0.75);
    EXPECT_TRUE(waitUntil([&] { return !onlooker.values(panel->window(), "_NET_WM_WINDOW_OPACITY").empty(); }));
    EXPECT_NEAR(
        onlooker.values(panel->window(), "_NET_WM_WINDOW_OPACITY").at(0) / static_cast<double>(0xFFFFFFFF), 0.75, 1e-6);
    panel->setOpacity(0.18);
    EXPECT_TRUE(shows(facePixel(), onlooker.pixel({2, 2}))) << "a faded window is hidden while nothing composites";
    panel->setOpacity(1);
    EXPECT_TRUE(waitUntil([&] { return onlooker.values(panel->window(), "_NET_WM_WINDOW_OPACITY").empty(); }));
    EXPECT_TRUE(shows(facePixel(), faceColour));
}

TEST_F(X11WindowHostTest, AGhostStaysOneThroughAChangeOfLevel)
{
    showPanel();
    const xcb_window_t other = coverPanel();
    panel->setLevel(WindowLevel::floating);
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), other); }));
    ASSERT_TRUE(shows(facePixel(), faceColour));
    ASSERT_TRUE(movePointer(facePixel()));
    ASSERT_TRUE(waitUntil([&] { return face.inside; }));
    panel->setOpacity(0.18);
    panel->setClickThrough(true);
    EXPECT_TRUE(waitUntil([&] { return !face.inside; })) << "the pointer is elsewhere now";
    panel->setLevel(WindowLevel::desktop);
    panel->setLevel(WindowLevel::floating);
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), other); }));
    EXPECT_FALSE(onlooker.values(panel->window(), "_NET_WM_WINDOW_OPACITY").empty());
    EXPECT_TRUE(shows(facePixel(), windowColour));
    EXPECT_TRUE(clickUntil(facePixel(), [&] { return onlooker.clicks(other) > 0; }));
    EXPECT_TRUE(face.pressed.isEmpty());
    EXPECT_FALSE(face.inside);
    panel->setOpacity(1);
    panel->setClickThrough(false);
    EXPECT_TRUE(shows(facePixel(), faceColour));
    EXPECT_TRUE(clickUntil(facePixel(), [&] { return !face.pressed.isEmpty(); }));
    EXPECT_TRUE(face.inside);
}

TEST_F(X11WindowHostTest, StaysAboveADesktopThatOpensLater)
{
    PlainFace secondFace;
    const std::unique_ptr<X11Panel> second = make(secondFace, {500, 200, 200, 100});
    showPanel();
    second->show();
    rest(600);
    const QSize screen = (host.screens().first().frame.size() * ratio).toSize();
    const xcb_window_t desktop = onlooker.openWindow({{0, 0}, screen}, 0xFF406040, "_NET_WM_WINDOW_TYPE_DESKTOP");
    EXPECT_TRUE(waitUntil([&] {
        return onlooker.isAbove(panel->window(), desktop) && onlooker.isAbove(second->window(), panel->window());
    }));
    EXPECT_TRUE(shows(facePixel(), faceColour));
}

TEST_F(X11WindowHostTest, TellsOnceOfScreensThatWereRearranged)
{
    showPanel();
    const ScreenInfo whole = host.screens().first();
    const int width = static_cast<int>(std::lround(whole.frame.width() * ratio));
    const int height = static_cast<int>(std::lround(whole.frame.height() * ratio));
    // While it runs the host does not: however long both take, the host hears of them together.
    const auto xrandr = [](const QStringList& arguments) { return QProcess::execute(u"xrandr"_s, arguments) == 0; };
    const auto monitor = [&](const char* name, int w, int h, int x, const char* output) {
        const QString place = u"%1/170x%2/210+%3+0"_s.arg(w).arg(h).arg(x);
        return xrandr({"--setmonitor", name, place, output});
    };
    int told = 0;
    QObject::connect(&host, &WindowHost::screensChanged, &host, [&] { ++told; });
    ASSERT_TRUE(monitor("left", width / 2, height, 0, "screen"));
    ASSERT_TRUE(monitor("right", width - width / 2, height / 2, width / 2, "none"));
    ASSERT_TRUE(waitUntil([&] { return told > 0; }));
    rest(500);
    EXPECT_EQ(told, 1);
    const QList<ScreenInfo> both = host.screens();
    ASSERT_EQ(both.size(), 2);
    EXPECT_NE(both[0].id, both[1].id);
    const ScreenInfo& main = both[0];
    const ScreenInfo& side = both[1];
    EXPECT_EQ(main.frame.topLeft(), QPointF(0, 0));
    EXPECT_NEAR(side.frame.height(), height / 2.0 / ratio, 1);
    // Both have their upper edge at the top, so the lower one of the smaller screen lies higher.
    EXPECT_NEAR(side.frame.y(), main.frame.height() - side.frame.height(), 1);
    EXPECT_EQ(side.widthInMillimetres, 170);

    ASSERT_TRUE(xrandr({"--delmonitor", "right"}));
    ASSERT_TRUE(xrandr({"--delmonitor", "left"}));
    EXPECT_TRUE(waitUntil([&] { return told == 2; }));
    EXPECT_EQ(host.screens().first().frame, whole.frame);
    EXPECT_TRUE(shows(facePixel(), faceColour));
}

TEST_F(X11WindowHostTest, MayBeClosedByItsOwnClick)
{
    showPanel();
    const xcb_window_t window = panel->window();
    face.onRelease = [this] { panel.reset(); };
    ASSERT_TRUE(click(facePixel()));
    EXPECT_TRUE(waitUntil([&] { return !onlooker.isViewable(window); }));
    EXPECT_EQ(panel, nullptr);
}

} // namespace
} // namespace ambrelle::test
