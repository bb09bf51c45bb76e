// SPDX-License-Identifier: MIT

#include "platform/wayland/OnCompositor.h"

namespace ambrelle::test {
namespace {

const QColor blue(0x20, 0x60, 0xC0);
const QColor green(0x20, 0xA0, 0x40);

struct WaylandPanelTest : OnCompositor {
    std::unique_ptr<PanelWindow> panel = make(face, {200, 200, 240, 160});
    const QPointF middle{320, 280};
    const QPointF edge{205, 205}; ///< in the margin
};

TEST_F(WaylandPanelTest, ShowsItsFaceWhereItsFrameSays)
{
    const QColor ground = seen(middle);
    panel->show();
    EXPECT_TRUE(isSeen(middle, theFace));
    EXPECT_EQ(seen(edge), ground);
    face.colour = green;
    panel->update(face.face);
    EXPECT_TRUE(isSeen(middle, green));
    panel->setFrame({700, 500, 240, 160});
    EXPECT_TRUE(isSeen({820, 580}, green));
    EXPECT_EQ(seen(middle), ground);
    panel->hide();
    EXPECT_TRUE(isSeen({820, 580}, ground));
    panel->show();
    EXPECT_TRUE(isSeen({820, 580}, green)) << "once more";
    panel.reset();
    EXPECT_TRUE(isSeen({820, 580}, ground));
}

TEST_F(WaylandPanelTest, PaintsOnlyThePartThatIsAskedFor)
{
    panel->show();
    ASSERT_TRUE(isSeen(middle, theFace));
    face.painted.clear();
    face.colour = green;
    panel->update({30, 30, 40, 40});
    EXPECT_TRUE(isSeen({250, 310}, green));
    EXPECT_EQ(seen(middle), theFace);
    ASSERT_FALSE(face.painted.isEmpty());
    EXPECT_LT(face.painted.last().width(), 60);
}

TEST_F(WaylandPanelTest, FadesAsAWhole)
{
    panel->show();
    ASSERT_TRUE(isSeen(middle, theFace));
    const QColor ground = seen(edge);
    panel->setOpacity(0.5);
    EXPECT_TRUE(waitUntil([&] {
        const QColor now = seen(middle);
        return std::abs(now.red() - (theFace.red() + ground.red()) / 2) <= 2
            && std::abs(now.blue() - (theFace.blue() + ground.blue()) / 2) <= 2;
    })) << seen(middle).name().toStdString();
    panel->setOpacity(1);
    EXPECT_TRUE(isSeen(middle, theFace));
}

TEST_F(WaylandPanelTest, StandsBelowNormalWindowsOrAboveThem)
{
    panel->show();
    ASSERT_TRUE(isSeen(middle, theFace));
    const NormalWindow window(blue);
    EXPECT_TRUE(isSeen(middle, blue));
    panel->setLevel(WindowLevel::floating);
    EXPECT_TRUE(isSeen(middle, theFace));
    panel->setLevel(WindowLevel::desktop);
    EXPECT_TRUE(isSeen(middle, blue));
}

TEST_F(WaylandPanelTest, ScenesStandBelowPanelsWheneverTheyCome)
{
    struct Decoration final : OrnamentDelegate {
        void paint(QPainter& painter, const QRectF& area) override { painter.fillRect(area, green); }
        void appearanceChanged() override { }
    } decoration;
    const QColor ground = seen(edge);
    for (const bool sceneFirst : {true, false}) {
        ASSERT_TRUE(isSeen(edge, ground)) << "the scene from before has gone";
        if (!sceneFirst)
            panel->show();
        const std::unique_ptr<SceneWindow> scene = host.makeScene(decoration);
        scene->setFrame({100, 100, 600, 400});
        scene->show();
        if (sceneFirst)
            panel->show();
        EXPECT_TRUE(isSeen(edge, green)) << sceneFirst;
        EXPECT_TRUE(isSeen(middle, theFace)) << sceneFirst;
        const std::unique_ptr<PanelWindow> later = make(face, {200, 420, 240, 160});
        later->show();
        EXPECT_TRUE(isSeen({320, 450}, theFace)) << sceneFirst;
        EXPECT_TRUE(isSeen({650, 150}, green)) << sceneFirst;
        panel->hide();
    }
}

TEST_F(WaylandPanelTest, AChangeOfLevelPutsItAboveTheOthersThere)
{
    PlainFace other;
    other.colour = green;
    const std::unique_ptr<PanelWindow> second = make(other, {200, 200, 240, 160});
    panel->show();
    ASSERT_TRUE(isSeen(middle, theFace));
    second->show();
    EXPECT_TRUE(isSeen(middle, green));
    panel->setLevel(WindowLevel::floating);
    EXPECT_TRUE(isSeen(middle, theFace));
    second->setLevel(WindowLevel::floating);
    EXPECT_TRUE(isSeen(middle, green));
    second->setLevel(WindowLevel::desktop);
    panel->setLevel(WindowLevel::desktop);
    EXPECT_TRUE(isSeen(middle, theFace));
}

TEST_F(WaylandPanelTest, HearsThePointerInItsInputAreaOnly)
{
    NormalWindow window(blue);
    ASSERT_TRUE(isSeen(edge, blue));
    panel->setLevel(WindowLevel::floating);
    panel->show();
    ASSERT_TRUE(isSeen(middle, theFace));
    point(middle);
    ASSERT_TRUE(waitUntil([this] { return face.inside; }));
    input->press();
    input->release();
    ASSERT_TRUE(waitUntil([this] { return face.released.size() == 1; }));
    EXPECT_EQ(face.pressed.first().global, middle);
    EXPECT_EQ(face.pressed.first().local, QPointF(120, 80));
    EXPECT_EQ(face.pressed.first().button, Qt::LeftButton);
    point(edge);
    ASSERT_TRUE(waitUntil([this] { return !face.inside; }));
    input->press();
    input->release();
    EXPECT_TRUE(waitUntil([&] { return window.presses == 1; }));
    panel->setClickThrough(true);
    wl_display_roundtrip(host.connection()->display());
    point(middle);
    input->press();
    input->release();
    EXPECT_TRUE(waitUntil([&] { return window.presses == 2; }));
    EXPECT_EQ(face.pressed.size(), 1);
}

struct WaylandDragTest : WaylandPanelTest {
    ~WaylandDragTest() override { panel.reset(); }

    void SetUp() override
    {
        WaylandPanelTest::SetUp();
        panel = make(dragged, {200, 200, 240, 160});
        dragged.panel = panel.get();
        dragged.start = panel->frame();
        panel->show();
        ASSERT_TRUE(isSeen(middle, theFace));
        ground = seen(edge);
    }

    FollowingFace dragged;
    QColor ground;
};

TEST_F(WaylandDragTest, FollowsThePointerExactly)
{
    const QPointF beside(-40, 20); // the pointer covers the middle
    for (const QPointF& target : {QPointF(800, 600), QPointF(500, 300), QPointF(200, 600)}) {
        dragged.start = panel->frame();
        const QPointF from = dragged.start.center();
        point(from);
        input->press();
        ASSERT_TRUE(waitUntil([&] { return !dragged.pressed.isEmpty() && dragged.pressed.last().global == from; }));
        constexpr int steps = 20;
        for (int step = 1; step <= steps; ++step)
            point(from + (target - from) * step / steps);
        EXPECT_TRUE(waitUntil([&] { return panel->frame().center() == target; }))
            << panel->frame().center().x() << ' ' << panel->frame().center().y();
        EXPECT_TRUE(isSeen(target + beside, theFace)) << "while the button is held";
        EXPECT_EQ(seen(from), ground);
        const qsizetype releases = dragged.released.size();
        input->release();
        ASSERT_TRUE(waitUntil([&] { return dragged.released.size() > releases; }));
        EXPECT_TRUE(isSeen(target + beside, theFace));
        EXPECT_EQ(seen(from), ground);
        EXPECT_EQ(panel->frame().center(), target);
    }
}

TEST_F(WaylandDragTest, ComesAboveTheOthersThere)
{
    PlainFace other;
    other.colour = green;
    const std::unique_ptr<PanelWindow> later = make(other, {500, 400, 240, 160});
    later->show();
    ASSERT_TRUE(isSeen({600, 480}, green));
    point(middle);
    input->press();
    ASSERT_TRUE(waitUntil([&] { return !dragged.pressed.isEmpty(); }));
    for (int step = 1; step <= 20; ++step)
        point(middle + QPointF(200, 150) * step / 20);
    EXPECT_TRUE(waitUntil([&] { return panel->frame() == QRectF(400, 350, 240, 160); }));
    EXPECT_TRUE(isSeen({600, 450}, theFace)) << "while the button is held";
    input->release();
    ASSERT_TRUE(waitUntil([&] { return !dragged.released.isEmpty(); }));
    EXPECT_TRUE(isSeen({600, 450}, theFace));
    point({690, 530});
    input->press();
    input->release();
    ASSERT_TRUE(waitUntil([&] { return !other.released.isEmpty(); }));
    EXPECT_TRUE(isSeen({600, 450}, green)) << "a click does so too";
}

TEST_F(WaylandDragTest, MayGoWhileItIsDragged)
{
    point(middle);
    input->press();
    point({600, 500});
    ASSERT_TRUE(isSeen({560, 520}, theFace));
    panel.reset();
    input->release();
    EXPECT_TRUE(isSeen({560, 520}, ground));
    EXPECT_TRUE(isSeen(middle, ground));
}

} // namespace
} // namespace ambrelle::test
