// SPDX-License-Identifier: MIT

#include "platform/toolkit/NativeScreens.h"
#include "platform/x11/PanelTest.h"
#include "platform/x11/X11WindowHost.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle::test {

using namespace Qt::StringLiterals;
namespace {

using WindowLayer = OnscreenWindow::Layer;

const QRect place(100, 120, 300, 200); // native pixels, as all places here

class X11WindowListTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(host.isAvailable());
        EXPECT_EQ(list.windows(), std::nullopt) << "not known yet";
        panel->setFrame({500, 100, 200, 200});
        panel->show();
        ASSERT_TRUE(waitUntil([&] { return list.isAvailable(); })) << list.whyNot().toStdString();
        QObject::connect(&list, &WindowList::changed, &list, [this] { ++told; });
    }

    /// In native pixels again.
    QRectF pixels(const OnscreenWindow& window) const
    {
        const ScreenInfo screen = host.screens().first();
        const QPointF topLeft(window.bounds.x(), screen.frame.height() - window.bounds.bottom());
        return {topLeft * screen.pixelRatio, window.bounds.size() * screen.pixelRatio};
    }
    bool isAt(const OnscreenWindow& window, const QRect& where) const
    {
        const QRectF seen = pixels(window);
        return (seen.topLeft() - where.topLeft()).manhattanLength() < 0.1
            && std::abs(seen.width() - where.width()) < 0.1 && std::abs(seen.height() - where.height()) < 0.1;
    }
    /// Whether the list is told to have changed, and then is as it should.
    bool becomes(const std::function<bool(const QList<OnscreenWindow>&)>& expected)
    {
        return waitUntil([&] { return told > 0; })
            && waitUntil([&] { return expected(list.windows().value_or(QList<OnscreenWindow>())); });
    }
    static void tool(const QStringList& arguments) { ASSERT_TRUE(runTool(u"xdotool"_s, arguments)); }
    bool isSilent()
    {
        rest(600);
        told = 0;
        rest(1000);
        return told == 0;
    }

    Onlooker onlooker;
    X11WindowHost host;
    PlainFace face;
    std::unique_ptr<PanelWindow> panel = host.makePanel(face);
    WindowList& list = host.windowList();
    int told = 0;
};

TEST_F(X11WindowListTest, TellsKindsOfWindowsApartAndLeavesOutItsOwn)
{
    struct Case {
        const char* type;
        WindowLayer layer;
    };
    const Case cases[] = {
        {"_NET_WM_WINDOW_TYPE_NORMAL", WindowLayer::normal},
        {"_NET_WM_WINDOW_TYPE_DIALOG", WindowLayer::normal},
        {"_NET_WM_WINDOW_TYPE_UTILITY", WindowLayer::normal},
        {"_NET_WM_WINDOW_TYPE_DOCK", WindowLayer::overlay},
        {"_NET_WM_WINDOW_TYPE_TOOLTIP", WindowLayer::overlay},
        {"_NET_WM_WINDOW_TYPE_POPUP_MENU", WindowLayer::overlay},
        {"_NET_WM_WINDOW_TYPE_NOTIFICATION", WindowLayer::overlay},
        {"_NET_WM_WINDOW_TYPE_DESKTOP", WindowLayer::desktop},
    };
    EXPECT_EQ(list.windows(), QList<OnscreenWindow>());
    for (const Case& each : cases) {
        const xcb_window_t window = onlooker.openWindow(place, windowColour, each.type);
        const auto windows = list.windows().value_or(QList<OnscreenWindow>());
        ASSERT_EQ(windows.size(), 1) << each.type;
        EXPECT_EQ(windows.first().layer, each.layer) << each.type;
        EXPECT_TRUE(isAt(windows.first(), place))
            << each.type << " " << pixels(windows.first()).x() << " " << pixels(windows.first()).y();
        onlooker.closeWindow(window);
        ASSERT_TRUE(waitUntil([&] { return list.windows() == QList<OnscreenWindow>(); })) << each.type;
    }
}

TEST_F(X11WindowListTest, TellsEveryChangeThatMatters)
{
    using Windows = QList<OnscreenWindow>;
    using Action = std::function<void()>;
    list.setWatching(true);
    const xcb_window_t window = onlooker.openWindow(place, windowColour);
    const QString id = QString::number(window);
    const QRect moved = place.translated(150, 90);
    const QRect grown = moved.adjusted(0, 0, 70, 40);
    const auto isEmpty = [](const Windows& windows) { return windows.isEmpty(); };
    const auto isAlone = [this](const QRect& where) {
        return [=, this](const Windows& windows) { return windows.size() == 1 && isAt(windows.first(), where); };
    };
    const auto isFaint = [](const Windows& windows) {
        return windows.size() == 1 && std::abs(windows.first().alpha - 0.25) < 0.001;
    };
    const auto places = [&](const QRect& where) -> Action { return [&, where] { onlooker.place(window, where); }; };
    const auto sets = [&](const char* name, const std::vector<uint32_t>& values) -> Action {
        return [=, this] { onlooker.setValues(window, name, XCB_ATOM_CARDINAL, values); };
    };
    const auto calls = [](const QStringList& arguments) -> Action { return [=] { tool(arguments); }; };
    struct Step {
        const char* what;
        Action take;
        std::function<bool(const Windows&)> expected;
    };
    const Step steps[] = {
        {"opened", [] {}, isAlone(place)},
        {"moved", places(moved), isAlone(moved)},
        {"resized", places(grown), isAlone(grown)},
        {"faded", sets("_NET_WM_WINDOW_OPACITY", {0x40000000}), isFaint},
        {"a shadow of its own", sets("_GTK_FRAME_EXTENTS", {20, 20, 10, 30}),
            isAlone(grown.adjusted(20, 10, -20, -30))},
        {"no shadow any more", sets("_GTK_FRAME_EXTENTS", {0, 0, 0, 0}), isAlone(grown)},
        {"minimised", calls({u"windowminimize"_s, id}), isEmpty},
        {"restored", calls({u"windowactivate"_s, id}), isAlone(grown)},
        {"on another desktop", calls({u"set_desktop_for_window"_s, id, u"1"_s}), isEmpty},
        {"that desktop shown", calls({u"set_desktop"_s, u"1"_s}), isAlone(grown)},
        {"and left", calls({u"set_desktop"_s, u"0"_s}), isEmpty},
        {"brought along", calls({u"set_desktop_for_window"_s, id, u"0"_s}), isAlone(grown)},
        {"the desktop shown", [&] { onlooker.showDesktop(true); }, isEmpty},
        {"no longer", [&] { onlooker.showDesktop(false); }, isAlone(grown)},
    };
    tool({u"set_num_desktops"_s, u"2"_s});
    for (const Step& step : steps) {
        step.take();
        EXPECT_TRUE(becomes(step.expected)) << step.what;
        rest(300);
        told = 0;
    }
    onlooker.closeWindow(window);
}

TEST_F(X11WindowListTest, TellsNothingElse)
{
    list.setWatching(true);
    const xcb_window_t window = onlooker.openWindow(place, windowColour);
    onlooker.setValues(window, "_MOTIF_WM_HINTS", XCB_ATOM_CARDINAL, {2, 0, 1, 0, 0}); // a title bar
    EXPECT_TRUE(isSilent()) << "nothing moves";
    const std::vector<uint32_t> frame = onlooker.values(window, "_NET_FRAME_EXTENTS");
    ASSERT_EQ(frame.size(), 4U);
    const auto side = [&](std::size_t index) { return static_cast<int>(frame[index]); };
    const QRect framed = onlooker.geometry(window).adjusted(-side(0), -side(2), side(1), side(3));
    EXPECT_TRUE(isAt(list.windows()->first(), framed));
    tool({u"set_window"_s, u"--name"_s, u"another title"_s, QString::number(window)});
    rest(400);
    EXPECT_EQ(told, 0) << "a new title";
    panel->setFrame({300, 100, 200, 200});
    rest(400);
    EXPECT_EQ(told, 0) << "a panel of our own";
    for (int step = 0; step < 50; ++step) {
        onlooker.place(window, place.translated(-step, 0));
        rest(10);
    }
    EXPECT_GE(told, 1) << "during a long drag";
    EXPECT_LE(told, 6);
    list.setWatching(false);
    EXPECT_TRUE(isSilent());
    onlooker.place(window, place);
    onlooker.closeWindow(onlooker.openWindow({500, 500, 100, 100}, windowColour));
    rest(400);
    EXPECT_EQ(told, 0) << "nobody watches";
    onlooker.closeWindow(window);
}

TEST_F(X11WindowListTest, KnowsAFullScreenWindow)
{
    const xcb_window_t window = onlooker.openWindow(place, windowColour);
    ASSERT_FALSE(list.windows()->first().isFullScreen);
    list.setWatching(true);
    onlooker.fillScreen(window);
    // An odd scale does not divide the screen into whole points.
    const QRectF screen = host.screens().first().frame;
    EXPECT_TRUE(becomes([&](const QList<OnscreenWindow>& windows) {
        return windows.size() == 1 && windows.first().isFullScreen
            && windows.first().bounds.adjusted(-1, -1, 1, 1).contains(screen)
            && screen.adjusted(-1, -1, 1, 1).contains(windows.first().bounds);
    }));
    onlooker.closeWindow(window);
}

TEST_F(X11WindowListTest, TheScreenIsNotSeenWhileItIsBlanked)
{
    SessionVisibility& visibility = host.sessionVisibility();
    QObject::connect(&visibility, &SessionVisibility::changed, &list, [this] { ++told; });
    EXPECT_TRUE(visibility.isVisible());
    ASSERT_TRUE(runTool(u"xset"_s, {"s", "activate"}));
    EXPECT_TRUE(waitUntil([&] { return !visibility.isVisible(); }));
    ASSERT_TRUE(runTool(u"xset"_s, {"s", "reset"}));
    EXPECT_TRUE(waitUntil([&] { return visibility.isVisible(); }));
    EXPECT_EQ(told, 2);
}

TEST(NativeScreensTest, KeepsTheCornersOfScreensAndScalesFromThere)
{
    const NativeScreens screens(
        {{{0, 0, 960, 600}, 2}, {{1920, 200, 1000, 800}, 1}}); // the first has 1920 × 1200 pixels
    struct Case {
        const char* what;
        QRect native;
        QRectF expected;
    };
    const Case cases[] = {
        {"the whole first screen", {0, 0, 1920, 1200}, {0, 0, 960, 600}},
        {"the whole second screen", {1920, 200, 1000, 800}, {1920, 200, 1000, 800}},
        {"within the first", {100, 50, 301, 200}, {50, 25, 150.5, 100}},
        {"across both", {1720, 300, 400, 100}, {860, 150, 1260, 250}},
        {"hanging out at the left", {-100, 100, 300, 100}, {-50, 50, 150, 50}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(screens.toolkitRect(each.native), each.expected) << each.what;
    EXPECT_EQ(screens.toolkitPoint({300, 100}), QPointF(150, 50));
}

} // namespace
} // namespace ambrelle::test
