// SPDX-License-Identifier: MIT

#include "platform/x11/PanelTest.h"

#include <QProcess>
#include <QStandardPaths>

#include <optional>
#include <utility>

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
        for (const auto& [place, colour] : more)
            painter.fillRect(place, colour);
    }
    void appearanceChanged() override { ++changes; }

    QRectF mark{0, 0, 60, 40};
    QList<std::pair<QRectF, QColor>> more;
    QList<QRectF> painted;
    int changes = 0;
};

/// While it lives.
class Compositor {
public:
    Compositor() { m_process.start(u"picom"_s, {"--config", "/dev/null", "--backend", "xrender", "--no-vsync"}); }
    ~Compositor()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Compositor)

private:
    QProcess m_process;
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
        scene->setFrame(panel->frame().adjusted(-beside.x(), 0, 0, beside.y()));
        scene->setOutline({plain.mark, {150, 60, 200, 100}});
        scene->show();
        ASSERT_TRUE(waitUntil([&] { return onlooker.isViewable(window()) && !plain.painted.isEmpty(); }));
    }
    xcb_window_t window() const { return scene->panel().window(); }
    /// A point from the scene's upper left corner, as long as it is where it was shown.
    QPoint pixelAt(const QPointF& local) const { return pixelOf(*panel, local - beside); }
    QPoint markPixel() const { return pixelAt(plain.mark.center()); }
    void checkClicks();

    const QPointF beside{120, 90}; ///< from its corner to that of the panel
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

void X11SceneTest::checkClicks()
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

TEST_F(X11SceneTest, AClickAtAMarkReachesTheWindowBelow)
{
    checkClicks();
}

TEST_F(X11SceneTest, AClickReachesItWhereWindowsAreComposited)
{
    if (QStandardPaths::findExecutable(u"picom"_s).isEmpty())
        GTEST_SKIP() << "picom is not installed";
    const Compositor compositor;
    ASSERT_TRUE(waitUntil([&] { return onlooker.isComposited() && host.isComposited(); }));
    checkClicks();
}

/// A mark that reaches below the face of the panel, which is to hide it from the first moment on.
TEST_F(X11SceneTest, IsNeverSeenAboveAPanel)
{
    showPanel();
    ASSERT_TRUE(shows(facePixel(), faceColour));
    rest(600);
    plain.mark = {0, 0, 300, 200};
    scene.reset(static_cast<X11Scene*>(host.makeScene(plain).release()));
    scene->setFrame(panel->frame().adjusted(-beside.x(), 0, 0, beside.y()));
    scene->setOutline({plain.mark});
    scene->show();
    int foreign = 0;
    EXPECT_TRUE(waitUntil([&] {
        const QRgb seen = onlooker.pixel(facePixel());
        foreign += seen == markColour ? 1 : 0;
        return onlooker.pixel(pixelAt({10, 10})) == markColour;
    }));
    EXPECT_EQ(foreign, 0);
}

/// What is at one place of the screen all the while, in a window that gets larger and smaller.
TEST_F(X11SceneTest, KeepsItsMarksInPlaceWhileItsFrameChanges)
{
    const auto change = [&](const QRectF& to, const QPointF& mark) {
        plain.mark.moveTopLeft(mark);
        scene->setFrame(to);
        scene->setOutline({plain.mark});
    };
    for (const bool composited : {false, true}) {
        if (composited && QStandardPaths::findExecutable(u"picom"_s).isEmpty())
            continue;
        const std::optional<Compositor> compositor =
            composited ? std::optional<Compositor>(std::in_place) : std::nullopt;
        ASSERT_TRUE(waitUntil([&] { return host.isComposited() == composited; }));
        showPanel();
        rest(600);
        plain.mark = {0, 0, 60, 40};
        showScene();
        const QPoint place = markPixel();
        ASSERT_TRUE(shows(place, markColour));
        rest(300);
        const QRectF small = scene->frame();
        int lost = 0;
        for (const auto& [frame, mark] :
            {std::pair(small.adjusted(-70, -50, 40, 60), QPointF(70, 60)), {small, {0, 0}}}) {
            change(frame, mark);
            for (int look = 0; look < 100; ++look) {
                lost += onlooker.pixel(place) == markColour ? 0 : 1;
                rest(2);
            }
        }
        EXPECT_LE(lost, composited ? 3 : 0) << (composited ? "composited, which a busy machine does late" : "bare");
        scene.reset();
    }
}

TEST_F(X11SceneTest, PaintsDistantPartsInTheirPlaces)
{
    showPanel();
    rest(600);
    plain.mark = {0, 0, 20, 20};
    showScene();
    ASSERT_TRUE(shows(markPixel(), markColour));
    plain.more = {{{40, 10, 30, 20}, Qt::red}, {{10, 130, 20, 40}, Qt::blue}, {{5, 60, 40, 10}, Qt::yellow}};
    QList<QRectF> areas{plain.mark};
    for (const auto& [place, colour] : plain.more)
        areas.append(place);
    scene->setOutline(areas);
    rest(200); // what the outline let in is painted
    plain.painted.clear();
    plain.more[0].second = Qt::cyan;
    plain.more[1].second = Qt::magenta;
    for (const auto& [place, colour] : plain.more)
        scene->update(place);
    for (const auto& [place, colour] : plain.more) {
        EXPECT_TRUE(shows(pixelAt(place.center()), colour.rgb())) << place.x();
        EXPECT_TRUE(shows(pixelAt(place.topLeft() + QPointF(1, 1)), colour.rgb())) << place.x();
    }
}

TEST_F(X11SceneTest, ShowsTheDesktopPictureBesideItsMarks)
{
    showScene();
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
