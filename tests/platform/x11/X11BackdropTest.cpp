// SPDX-License-Identifier: MIT

#include "platform/x11/PanelTest.h"

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

class X11BackdropTest : public PanelTest {
protected:
    /// A panel of the desktop below a focused window, which then a backdrop comes in front of, as in edit mode.
    void SetUp() override
    {
        PanelTest::SetUp();
        showPanel();
        other = coverPanel();
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

    QPoint onNothing() const
    {
        const QRect screen = onlooker.geometry(backdrop->window());
        return {screen.width() - 30, screen.height() / 2};
    }

    PlainBackdrop plain;
    std::unique_ptr<X11Backdrop> backdrop;
    xcb_window_t other = XCB_WINDOW_NONE;
};

TEST_F(X11BackdropTest, StandsBetweenTheWindowsAndThePanels)
{
    EXPECT_TRUE(shows(onNothing(), backdropColour));
    EXPECT_TRUE(shows(onlooker.geometry(other).topLeft() + QPoint(5, 5), backdropColour)) << "over the other window";
    EXPECT_TRUE(shows(facePixel(), faceColour));
    for (const char* state : {"_NET_WM_STATE_SKIP_PAGER", "_NET_WM_STATE_SKIP_TASKBAR"})
        EXPECT_TRUE(onlooker.atoms(backdrop->window(), "_NET_WM_STATE").contains(QLatin1StringView(state))) << state;

    ASSERT_TRUE(click(facePixel()));
    EXPECT_TRUE(waitUntil([&] { return face.pressed.size() == 1; }));
    ASSERT_TRUE(click(onNothing()));
    EXPECT_TRUE(waitUntil([&] { return plain.clicks == 1; }));
    EXPECT_EQ(face.pressed.size(), 1);
    EXPECT_TRUE(onlooker.isAbove(panel->window(), backdrop->window())) << "a click raises it over nothing";
    ASSERT_TRUE(runTool(u"xdotool"_s, {"key", "Escape"}));
    EXPECT_TRUE(waitUntil([&] { return plain.keys == QList<Qt::Key>{Qt::Key_Escape}; }));

    const xcb_window_t gone = backdrop->window();
    backdrop.reset();
    panel->setLevel(WindowLevel::desktop);
    EXPECT_TRUE(waitUntil([&] { return !onlooker.isViewable(gone) && onlooker.isAbove(other, panel->window()); }));
}

TEST_F(X11BackdropTest, ShadesTheDesktopPictureInThePanelsToo)
{
    const QSize screen = (host.screens().first().frame.size() * ratio).toSize();
    const QImage picture = speckled(screen);
    onlooker.setRootPicture(picture);
    panel->setOutline({});
    EXPECT_TRUE(shows(marginPixel(), backdropColour)) << "it lies between the picture and the panel";
    backdrop.reset();
    EXPECT_TRUE(shows(marginPixel(), picture.pixel(marginPixel())));
}

TEST_F(X11BackdropTest, LeavesItToItsOwnerToClose)
{
    ASSERT_TRUE(runTool(u"xdotool"_s, {"key", "alt+F4"}));
    EXPECT_TRUE(waitUntil([&] { return plain.closings == 1; }));
    EXPECT_TRUE(onlooker.isViewable(backdrop->window()));

    const xcb_window_t window = backdrop->window();
    plain.onClicked = [this] { backdrop.reset(); };
    ASSERT_TRUE(click(onNothing()));
    EXPECT_TRUE(waitUntil([&] { return !onlooker.isViewable(window); })) << "also in the middle of its click";
}

} // namespace
} // namespace ambrelle::test
