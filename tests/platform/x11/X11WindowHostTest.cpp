#include "platform/x11/X11WindowHost.h"
#include "platform/x11/Onlooker.h"
#include "platform/x11/PixelGrid.h"
#include "platform/x11/RoundedRows.h"

#include <QPainter>
#include <QProcess>
#include <QStandardPaths>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle::test {
namespace {

constexpr QRgb windowColour = 0xFF2060C0;
constexpr QRgb faceColour = 0xFFE04020;
constexpr double margin = 20;

/// A face of one colour in the middle of its window, and a record of what it heard.
class PlainFace : public PanelDelegate {
public:
    void paint(QPainter& painter, const QRectF& area) override
    {
        painted.append(area);
        painter.fillRect(face, colour);
    }
    void pointerPressed(const PointerEvent& event) override { pressed.append(event); }
    void pointerMoved(const PointerEvent& event) override { moved.append(event); }
    void pointerReleased(const PointerEvent& event) override
    {
        released.append(event);
        if (onRelease)
            onRelease();
    }
    void pointerEntered() override { inside = true; }
    void pointerLeft() override { inside = false; }
    void appearanceChanged() override { ++changes; }

    QRectF face;
    QColor colour = QColor::fromRgb(faceColour);
    QList<QRectF> painted;
    QList<PointerEvent> pressed;
    QList<PointerEvent> moved;
    QList<PointerEvent> released;
    bool inside = false;
    int changes = 0;
    std::function<void()> onRelease;
};

/// Every pixel differs from its neighbours, so that a picture drawn one pixel off is seen.
QImage speckled(const QSize& size, int seed)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb((x * 7 + seed) & 255, (y * 5 + seed) & 255, (x + y) & 255));
    }
    return image;
}

class X11WindowHostTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(host.isAvailable()) << host.whyNot().toStdString();
        ASSERT_FALSE(host.screens().isEmpty());
        ratio = host.screens().first().pixelRatio;
        ASSERT_TRUE(runTool(QStringLiteral("xdotool"), {"mousemove", "1", "1"}));
        panel = make(face, {200, 200, 240, 160});
    }

    std::unique_ptr<X11Panel> make(PlainFace& plain, const QRectF& frame)
    {
        plain.face = QRectF({0, 0}, frame.size()).adjusted(margin, margin, -margin, -margin);
        std::unique_ptr<X11Panel> made(static_cast<X11Panel*>(host.makePanel(plain).release()));
        made->setFrame(frame);
        made->setInputArea(plain.face);
        made->setOutline(plain.face, 16);
        return made;
    }

    void showPanel()
    {
        panel->show();
        ASSERT_TRUE(waitUntil([&] {
            return onlooker.isViewable(panel->window()) && !face.painted.isEmpty()
                && onlooker.isManaged(panel->window());
        }));
    }

    /// A point of a panel, from its upper left corner, as a pixel of the screen.
    QPoint pixelOf(const X11Panel& which, const QPointF& local) const
    {
        return onlooker.geometry(which.window()).topLeft() + (local * ratio).toPoint();
    }
    QPoint facePixel() const { return pixelOf(*panel, face.face.center()); }
    QPoint marginPixel() const { return pixelOf(*panel, {8, 8}); }
    bool shows(const QPoint& place, QRgb colour) const
    {
        return waitUntil([&] { return onlooker.pixel(place) == (colour | 0xFF000000); });
    }
    bool movePointer(const QPoint& place) const
    {
        return runTool(
            QStringLiteral("xdotool"), {"mousemove", QString::number(place.x()), QString::number(place.y())});
    }
    bool click(const QPoint& place) const
    {
        return movePointer(place) && runTool(QStringLiteral("xdotool"), {"click", "1"});
    }
    /// An ordinary, focused window of another application that covers the panel.
    xcb_window_t coverPanel()
    {
        const QRect place = onlooker.geometry(panel->window()).adjusted(-30, -30, 30, 30);
        const xcb_window_t window = onlooker.openWindow(place, windowColour);
        EXPECT_TRUE(runTool(QStringLiteral("xdotool"), {"windowactivate", QString::number(window)}));
        EXPECT_TRUE(waitUntil([&] { return onlooker.activeWindow() == window; }));
        return window;
    }

    Onlooker onlooker;
    X11WindowHost host;
    PlainFace face;
    std::unique_ptr<X11Panel> panel;
    double ratio = 1;
};

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
                && states.contains(QStringLiteral("_NET_WM_STATE_ABOVE")) == floating;
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
    ASSERT_TRUE(runTool(QStringLiteral("xdotool"), {"windowactivate", QString::number(other)}));
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
    panel->setOutline({{0, 0}, panel->frame().size()}, 0);
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), other); }));

    const auto pressedBelow = [&](const QPoint& place) {
        const int before = onlooker.clicks(other);
        const qsizetype heard = face.pressed.size();
        EXPECT_TRUE(click(place));
        EXPECT_TRUE(waitUntil([&] { return onlooker.clicks(other) > before || face.pressed.size() > heard; }));
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

TEST_F(X11WindowHostTest, OpacityIsTheWindowsOwnProperty)
{
    showPanel();
    panel->setOpacity(0.75);
    EXPECT_TRUE(waitUntil([&] { return !onlooker.values(panel->window(), "_NET_WM_WINDOW_OPACITY").empty(); }, 50));
    EXPECT_NEAR(onlooker.values(panel->window(), "_NET_WM_WINDOW_OPACITY").at(0) / double(0xFFFFFFFF), 0.75, 1e-6);
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
    EXPECT_TRUE(click(facePixel()));
    EXPECT_TRUE(waitUntil([&] { return onlooker.clicks(other) == 1; }));
    EXPECT_FALSE(face.inside);
    panel->setOpacity(1);
    panel->setClickThrough(false);
    EXPECT_TRUE(shows(facePixel(), faceColour));
    EXPECT_TRUE(click(facePixel()));
    EXPECT_TRUE(waitUntil([&] { return face.pressed.size() == 1; }));
    EXPECT_TRUE(face.inside);
}

TEST_F(X11WindowHostTest, ShowsTheDesktopPictureWhereNothingComposites)
{
    const QSize screen = (host.screens().first().frame.size() * ratio).toSize();
    QImage picture = speckled(screen, 3);
    onlooker.setRootPicture(picture);
    panel->setOutline({}, 0);
    showPanel();
    const auto matches = [&] {
        const QRect place = onlooker.geometry(panel->window());
        QImage expected = picture.copy(place);
        QPainter painter(&expected);
        painter.scale(ratio, ratio);
        painter.fillRect(face.face, face.colour);
        painter.end();
        return onlooker.picture(place) == expected;
    };
    EXPECT_TRUE(waitUntil(matches));
    panel->setFrame({333, 147, 240, 160});
    EXPECT_TRUE(waitUntil(matches)) << "after a move";
    rest(600);
    picture = speckled(screen, 111);
    onlooker.setRootPicture(picture);
    EXPECT_TRUE(waitUntil(matches)) << "after a new picture";
    EXPECT_GE(face.changes, 1);

    // Translucent parts painted again and again stay as they are, also on the edge of a repainted part.
    face.colour.setAlpha(90);
    panel->update({{0, 0}, panel->frame().size()});
    EXPECT_TRUE(waitUntil(matches)) << "translucent";
    for (const QRectF& part : {QRectF(31, 33, 17, 11), QRectF(60.4, 41.3, 33.3, 27.9), QRectF(15, 15, 9, 9)}) {
        face.painted.clear();
        panel->update(part);
        ASSERT_TRUE(waitUntil([&] { return !face.painted.isEmpty(); }));
        EXPECT_TRUE(face.painted.first().contains(part));
        EXPECT_LT(face.painted.first().width(), part.width() + 6);
        EXPECT_TRUE(matches());
    }
}

TEST_F(X11WindowHostTest, IsCutToItsOutlineWhereNothingComposites)
{
    showPanel();
    PlainFace neighbourFace;
    neighbourFace.colour = Qt::green;
    const std::unique_ptr<X11Panel> neighbour = make(neighbourFace, panel->frame().translated(210, 0));
    neighbour->show();
    ASSERT_TRUE(waitUntil([&] { return !neighbourFace.painted.isEmpty(); }));
    const QPoint border = pixelOf(*panel, {face.face.right() - 4, face.face.center().y()});
    ASSERT_TRUE(onlooker.geometry(neighbour->window()).contains(border));
    EXPECT_TRUE(shows(border, faceColour)) << "the neighbour's margin lies over the face";

    const xcb_window_t other = coverPanel();
    panel->setLevel(WindowLevel::floating);
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), other); }));
    EXPECT_TRUE(shows(facePixel(), faceColour));
    EXPECT_TRUE(shows(marginPixel(), windowColour));
    EXPECT_TRUE(shows(pixelOf(*panel, face.face.topLeft() + QPointF(2, 2)), windowColour)) << "the round corner";
    EXPECT_TRUE(shows(pixelOf(*panel, face.face.topLeft() + QPointF(8, 8)), faceColour));
}

TEST_F(X11WindowHostTest, FollowsACompositorThatComesAndGoes)
{
    if (QStandardPaths::findExecutable(QStringLiteral("picom")).isEmpty())
        GTEST_SKIP() << "picom is not installed";
    showPanel();
    const xcb_window_t other = coverPanel();
    panel->setLevel(WindowLevel::floating);
    rest(600);
    face.colour.setAlpha(128);
    face.changes = 0;

    QProcess picom;
    picom.start(QStringLiteral("picom"), {"--config", "/dev/null", "--backend", "xrender", "--no-vsync"});
    ASSERT_TRUE(waitUntil([&] { return onlooker.isComposited() && face.changes > 0; }));
    EXPECT_TRUE(shows(marginPixel(), windowColour));
    EXPECT_TRUE(waitUntil([&] {
        const QRgb seen = onlooker.pixel(facePixel());
        return std::abs(qRed(seen) - (qRed(faceColour) + qRed(windowColour)) / 2) < 4
            && std::abs(qBlue(seen) - (qBlue(faceColour) + qBlue(windowColour)) / 2) < 4;
    })) << std::hex
        << onlooker.pixel(facePixel());
    // Many partial paints do not add up.
    const QRgb before = onlooker.pixel(facePixel());
    for (int round = 0; round < 5; ++round) {
        panel->update(face.face.adjusted(3, 3, -3, -3));
        rest(30);
    }
    EXPECT_EQ(onlooker.pixel(facePixel()), before);

    picom.terminate();
    EXPECT_TRUE(waitUntil([&] { return !onlooker.isComposited() && face.changes > 1; }));
    EXPECT_TRUE(shows(marginPixel(), windowColour));
    EXPECT_TRUE(waitUntil([&] { return picom.state() == QProcess::NotRunning; }));
    onlooker.closeWindow(other);
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
    const auto monitor = [&](const char* name, int w, int h, int x, const char* output) {
        const QString place = QStringLiteral("%1/170x%2/210+%3+0").arg(w).arg(h).arg(x);
        return runTool(QStringLiteral("xrandr"), {"--setmonitor", name, place, output});
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

    ASSERT_TRUE(runTool(QStringLiteral("xrandr"), {"--delmonitor", "right"}));
    ASSERT_TRUE(runTool(QStringLiteral("xrandr"), {"--delmonitor", "left"}));
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

TEST(PixelGridTest, RoundsOutToEdgesThatPointsAndPixelsShare)
{
    struct Case {
        double ratio;
        QRectF area;
        QRect expected;
    };
    const Case cases[]{
        {1, {3.2, 4, 5, 6}, {3, 4, 6, 6}},
        {2, {-1.5, 0, 2, 3}, {-2, 0, 3, 3}},
        {1.5, {1, 2, 3, 3}, {0, 2, 4, 4}},
        {1.25, {5, 8, 3, 4}, {4, 8, 4, 4}},
        {1.1, {1, 1, 1, 1}, {0, 0, 10, 10}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(PixelGrid(each.ratio).covering(each.area), each.expected) << each.ratio;
}

TEST(RoundedRowsTest, CoversTheRoundedRectangleOnce)
{
    int pixels = 0;
    for (const xcb_rectangle_t& row : roundedRows({10, 20, 60, 40}, 12)) {
        pixels += row.width * row.height;
        EXPECT_TRUE(QRect(10, 20, 60, 40).contains(QRect(row.x, row.y, row.width, row.height)));
    }
    EXPECT_NEAR(pixels, 60 * 40 - (4 - M_PI) * 12 * 12, 12);
    EXPECT_TRUE(roundedRows({}, 5).empty());
}

} // namespace
} // namespace ambrelle::test
