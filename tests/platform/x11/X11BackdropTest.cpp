// SPDX-License-Identifier: MIT

#include "platform/x11/PanelTest.h"
#include "platform/x11/X11WindowHost.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle::test {

using namespace Qt::StringLiterals;
namespace {

constexpr QRgb backdropColour = 0xFF308040;

class PlainBackdrop : public BackdropDelegate {
public:
    void paint(QPainter& painter, const QSizeF& size) override
    {
        painter.fillRect(QRectF({0, 0}, size), QColor::fromRgb(backdropColour));
    }
    void clicked() override
    {
        ++clicks;
        if (onClicked)
            onClicked();
    }
    void keyPressed(Qt::Key key) override { keys.append(key); }
    void closeRequested() override { ++closings; }

    int clicks = 0;
    int closings = 0;
    QList<Qt::Key> keys;
    std::function<void()> onClicked;
};

class PlainPanel : public PanelDelegate {
public:
    void paint(QPainter& painter, const QRectF& area) override { painter.fillRect(area, QColor::fromRgb(faceColour)); }
    void pointerPressed(const PointerEvent&) override { ++presses; }
    void pointerMoved(const PointerEvent&) override { }
    void pointerReleased(const PointerEvent&) override { }
    void pointerEntered() override { }
    void pointerLeft() override { }
    void appearanceChanged() override { }

    int presses = 0;
};

class X11BackdropTest : public ::testing::Test {
protected:
    /// A panel of the desktop below a focused window, which then a backdrop comes in front of, as in edit mode.
    void SetUp() override
    {
        panel.reset(static_cast<X11Panel*>(host.makePanel(face).release()));
        panel->setFrame({200, 200, 240, 160});
        panel->show();
        ASSERT_TRUE(waitUntil([&] { return onlooker.isManaged(panel->window()); }));
        other = onlooker.openWindow({100, 100, 500, 500}, windowColour);
        ASSERT_TRUE(tool({"windowactivate", QString::number(other)}));
        ASSERT_TRUE(waitUntil([&] { return onlooker.activeWindow() == other; }));
        rest(500); // the host watches the order of windows by now

        backdrop.reset(static_cast<X11Backdrop*>(host.makeBackdrop(plain).release()));
        backdrop->setFrame(host.screens().first().frame);
        backdrop->show();
        backdrop->takeFocus();
        panel->setLevel(WindowLevel::floating);
        ASSERT_TRUE(waitUntil([&] {
            return onlooker.activeWindow() == backdrop->window()
                && onlooker.isAbove(panel->window(), backdrop->window()) && onlooker.isAbove(backdrop->window(), other);
        }));
    }

    static bool tool(const QStringList& arguments) { return runTool(u"xdotool"_s, arguments); }
    static bool click(const QPoint& place)
    {
        return tool({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "1"});
    }
    QPoint onPanel() const { return onlooker.geometry(panel->window()).center(); }
    QPoint onNothing() const
    {
        const QRect screen = onlooker.geometry(backdrop->window());
        return {screen.width() - 30, screen.height() / 2};
    }

    Onlooker onlooker;
    X11WindowHost host;
    PlainPanel face;
    PlainBackdrop plain;
    std::unique_ptr<X11Panel> panel;
    std::unique_ptr<X11Backdrop> backdrop;
    xcb_window_t other = XCB_WINDOW_NONE;
};

TEST_F(X11BackdropTest, StandsBetweenTheWindowsAndThePanels)
{
    EXPECT_TRUE(waitUntil([&] { return onlooker.pixel(onNothing()) == backdropColour; }));
    EXPECT_TRUE(waitUntil([&] { return onlooker.pixel({110, 590}) == backdropColour; })) << "over the other window";
    EXPECT_TRUE(waitUntil([&] { return onlooker.pixel(onPanel()) == faceColour; }));
    for (const char* state : {"_NET_WM_STATE_SKIP_PAGER", "_NET_WM_STATE_SKIP_TASKBAR"})
        EXPECT_TRUE(onlooker.atoms(backdrop->window(), "_NET_WM_STATE").contains(QLatin1StringView(state))) << state;

    ASSERT_TRUE(click(onPanel()));
    EXPECT_TRUE(waitUntil([&] { return face.presses == 1; }));
    ASSERT_TRUE(click(onNothing()));
    EXPECT_TRUE(waitUntil([&] { return plain.clicks == 1; }));
    EXPECT_EQ(face.presses, 1);
    EXPECT_TRUE(onlooker.isAbove(panel->window(), backdrop->window())) << "a click raises it over nothing";
    ASSERT_TRUE(tool({"key", "Escape"}));
    EXPECT_TRUE(waitUntil([&] { return plain.keys == QList<Qt::Key>{Qt::Key_Escape}; }));

    const xcb_window_t gone = backdrop->window();
    backdrop.reset();
    panel->setLevel(WindowLevel::desktop);
    EXPECT_TRUE(waitUntil([&] { return !onlooker.isViewable(gone) && onlooker.isAbove(other, panel->window()); }));
}

TEST_F(X11BackdropTest, LeavesItToItsOwnerToClose)
{
    ASSERT_TRUE(tool({"key", "alt+F4"}));
    EXPECT_TRUE(waitUntil([&] { return plain.closings == 1; }));
    EXPECT_TRUE(onlooker.isViewable(backdrop->window()));

    const xcb_window_t window = backdrop->window();
    plain.onClicked = [this] { backdrop.reset(); };
    ASSERT_TRUE(click(onNothing()));
    EXPECT_TRUE(waitUntil([&] { return !onlooker.isViewable(window); })) << "also in the middle of its click";
}

} // namespace
} // namespace ambrelle::test
