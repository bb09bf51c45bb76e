// SPDX-License-Identifier: MIT

#include "platform/x11/PanelTest.h"

#include <QProcess>
#include <QStandardPaths>

namespace ambrelle::test {

using namespace Qt::StringLiterals;
namespace {

constexpr QRgb markColour = 0xFF20A060;

/// A mark in the upper left corner of its window.
class PlainMark : public OrnamentDelegate {
public:
    void paint(QPainter& painter, const QRectF& area) override
    {
        painted.append(area);
        painter.fillRect(mark, QColor::fromRgb(markColour));
    }
    void appearanceChanged() override { ++changes; }

    QRectF mark{0, 0, 60, 40};
    QList<QRectF> painted;
    int changes = 0;
};

class X11SceneTest : public PanelTest {
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        picture = speckled((host.screens().first().frame.size() * ratio).toSize(), 5);
        onlooker.setRootPicture(picture);
    }
    /// Half below the panel, so that the mark is free and the rest is not.
    void showScene()
    {
        scene.reset(static_cast<X11Scene*>(host.makeScene(plain).release()));
        scene->setFrame(panel->frame().adjusted(-120, 0, 0, 90));
        scene->setOutline({plain.mark, {150, 60, 200, 100}});
        scene->show();
        ASSERT_TRUE(waitUntil([&] { return onlooker.isViewable(window()) && !plain.painted.isEmpty(); }));
    }
    xcb_window_t window() const { return scene->panel().window(); }
    QPoint markPixel() const { return pixelOf(scene->panel(), plain.mark.center()); }

    QImage picture;
    PlainMark plain;
    std::unique_ptr<X11Scene> scene;
};

TEST_F(X11SceneTest, StaysBelowPanelsAndAboveTheDesktop)
{
    showPanel();
    rest(600); // the host watches the order of windows by now
    showScene();
    EXPECT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), window()); }))
        << "it appeared after the panel";
    EXPECT_TRUE(shows(facePixel(), faceColour));
    EXPECT_TRUE(shows(markPixel(), markColour));
    EXPECT_TRUE(onlooker.atoms(window(), "_NET_WM_WINDOW_TYPE").contains(u"_NET_WM_WINDOW_TYPE_DESKTOP"_s));
    EXPECT_TRUE(waitUntil([&] {
        const QStringList states = onlooker.atoms(window(), "_NET_WM_STATE");
        return states.contains(u"_NET_WM_STATE_SKIP_TASKBAR"_s) && states.contains(u"_NET_WM_STATE_SKIP_PAGER"_s)
            && onlooker.values(window(), "_NET_WM_DESKTOP") == std::vector<uint32_t>{0xFFFFFFFF};
    }));

    const QSize screen = (host.screens().first().frame.size() * ratio).toSize();
    const xcb_window_t desktop = onlooker.openWindow({{0, 0}, screen}, 0xFF406040, "_NET_WM_WINDOW_TYPE_DESKTOP");
    EXPECT_TRUE(waitUntil([&] {
        return onlooker.isAbove(window(), desktop) && onlooker.isAbove(panel->window(), window());
    })) << "a file manager's desktop that opens later";
    EXPECT_TRUE(shows(markPixel(), markColour));
    EXPECT_TRUE(shows(facePixel(), faceColour));
}

TEST_F(X11SceneTest, AClickAtAMarkReachesTheWindowBelow)
{
    const QSize screen = (host.screens().first().frame.size() * ratio).toSize();
    const xcb_window_t desktop = onlooker.openWindow({{0, 0}, screen}, 0xFF406040, "_NET_WM_WINDOW_TYPE_DESKTOP");
    showPanel();
    rest(600);
    showScene();
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(window(), desktop); }));
    ASSERT_TRUE(shows(markPixel(), markColour));
    EXPECT_TRUE(clickUntil(markPixel(), [&] { return onlooker.clicks(desktop) > 0; }));
    EXPECT_NE(onlooker.activeWindow(), window());
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), window()); }));
    EXPECT_TRUE(clickUntil(facePixel(), [&] { return !face.pressed.isEmpty(); })) << "the panel is not behind it";
}

TEST_F(X11SceneTest, ShowsTheDesktopPictureBesideItsMarks)
{
    showScene();
    const QPoint corner = onlooker.geometry(window()).topLeft();
    const auto pixelAt = [&](QPointF local) { return corner + (local * ratio).toPoint(); };
    EXPECT_TRUE(shows(markPixel(), markColour));
    for (const QPointF& local : {QPointF(200, 110), QPointF(80, 20), QPointF(20, 200)}) // copied, cut away, cut away
        EXPECT_TRUE(shows(pixelAt(local), picture.pixel(pixelAt(local))));
    rest(600);
    // A file manager's desktop, which has icons.
    onlooker.openWindow({{0, 0}, picture.size()}, windowColour, "_NET_WM_WINDOW_TYPE_DESKTOP");
    EXPECT_TRUE(shows(pixelAt({80, 20}), windowColour)) << "beside the mark";
    EXPECT_TRUE(shows(markPixel(), markColour)) << "and the mark is above it";
    onlooker.dropRootPicture();
    for (const QPointF& local : {QPointF(200, 110), QPointF(20, 20)})
        EXPECT_TRUE(shows(pixelAt(local), windowColour)) << "nothing black where the picture is not known";
}

} // namespace
} // namespace ambrelle::test
