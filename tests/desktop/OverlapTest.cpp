// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"
#include "desktop/OverlapRule.h"

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using WindowLayer = OnscreenWindow::Layer;

constexpr auto fadeTime = WindowFade::duration + 16ms;

const QRectF frame(100, 100, 170, 170);
const OnscreenWindow over{{150, 150, 400, 300}};
const OnscreenWindow aside{{600, 400, 400, 300}};

struct OverlapTest : DeskTest {
    WidgetController* widget = desk.add(WidgetKind::cpu, frame.topLeft());
    RecordingPanel* panel = desk.panels().first();

    void SetUp() override { desk.settings.overlap.set(OverlapBehavior::fade); }

    void wait() { desk.clock.advance(fadeTime + 100ms); }
    bool isGhost(double opacity = 0.18) const { return panel->opacity() == opacity && panel->isClickThrough(); }
    bool isWhole() const { return panel->opacity() == 1 && !panel->isClickThrough(); }
};

TEST_F(OverlapTest, GivesWayOnlyToWindowsThatPeopleWorkIn)
{
    struct Case {
        const char* what;
        OnscreenWindow window;
        bool covers;
    };
    const Case cases[] = {
        {"a window over the middle", over, true},
        {"as wide as a badge", {{150, 150, 80, 300}}, false},
        {"as high as a badge", {{150, 150, 300, 60}}, false},
        {"just larger", {{150, 150, 81, 61}}, true},
        {"on the left rim", {{0, 0, 110, 400}}, false},
        {"past the left rim", {{0, 0, 110.5, 400}}, true},
        {"on the upper rim", {{0, 260, 900, 300}}, false},
        {"past the lower rim", {{0, 0, 900, 110.5}}, true},
        {"nearly transparent", {over.bounds, 0.05}, false},
        {"faint", {over.bounds, 0.06}, true},
        {"a dock or a menu", {over.bounds, 1, WindowLayer::overlay}, false},
        {"the desktop", {{0, 0, 1440, 900}, 1, WindowLayer::desktop}, false},
    };
    widget->setPinned(true);
    for (const Case& each : cases) {
        desk.windows.show({aside, each.window});
        wait();
        EXPECT_EQ(isGhost(), each.covers) << each.what;
        EXPECT_EQ(isWhole(), !each.covers) << each.what;
        desk.windows.show({});
        wait();
    }
}

TEST_F(OverlapTest, FadesOnceAndStopsWakingUp)
{
    widget->setPinned(true);
    desk.windows.show({over});
    desk.clock.advance(125ms);
    const double halfway = panel->opacity();
    EXPECT_GT(halfway, 0.3);
    EXPECT_LT(halfway, 0.9);
    desk.windows.show({over, aside});
    desk.clock.advance(141ms);
    EXPECT_TRUE(isGhost()) << "a further look does not start the fade anew";
    // Back before it was all there: from what is shown.
    desk.windows.show({});
    desk.clock.advance(128ms);
    desk.windows.show({over});
    EXPECT_LT(panel->opacity(), 0.9);
    desk.settings.overlap.set(OverlapBehavior::hide);
    wait();
    EXPECT_TRUE(isGhost(0));
    desk.settings.overlap.set(OverlapBehavior::fade);
    wait();
    EXPECT_TRUE(isGhost());
}

TEST_F(OverlapTest, WatchesWhileARaisedWidgetMayBeInTheWay)
{
    desk.windows.show({over});
    struct Step {
        const char* what;
        std::function<void()> take;
        bool isWatched;
        bool isGhost;
    };
    const Step steps[] = {
        {"below all windows", [] {}, false, false},
        {"pinned", [this] { widget->setPinned(true); }, true, true},
        {"edit mode", [this] { desk.manager.setEditing(true); }, false, false},
        {"edit mode ends", [this] { desk.manager.setEditing(false); }, true, true},
        {"overlap may show", [this] { desk.settings.overlap.set(OverlapBehavior::show); }, false, false},
        {"and not again", [this] { desk.settings.overlap.set(OverlapBehavior::fade); }, true, true},
        {"unpinned", [this] { widget->setPinned(false); }, false, false},
        {"all are raised", [this] { desk.settings.layer.set(WidgetLayer::floating); }, true, true},
        {"dropped elsewhere", [this] { desk.host.drag(QPointF(120, 120), QPointF(900, 120)); }, true, true},
        {"nobody can look", [this] { desk.session.setVisible(false); }, false, true},
        {"all are lowered", [this] { desk.settings.layer.set(WidgetLayer::desktop); }, false, false},
    };
    for (const Step& step : steps) {
        step.take();
        EXPECT_EQ(panel->isClickThrough(), step.isGhost) << step.what << ": at once";
        wait();
        EXPECT_EQ(desk.windows.isWatched, step.isWatched) << step.what;
        EXPECT_EQ(isGhost(), step.isGhost) << step.what;
        EXPECT_EQ(isWhole(), !step.isGhost) << step.what;
    }
    const int looks = desk.windows.looks;
    desk.clock.advance(60s);
    EXPECT_EQ(desk.windows.looks, looks) << "nothing polls";
}

TEST_F(OverlapTest, AGhostLooksForItself)
{
    widget->setPinned(true);
    desk.windows.show({over});
    wait();
    ASSERT_TRUE(isGhost());
    for (const bool known : {false, true}) { // the list cannot be had for a while, or nobody told of the change
        desk.windows.current = known ? std::optional(QList{aside}) : std::nullopt;
        desk.clock.advance(800ms);
        wait();
        EXPECT_EQ(isWhole(), known);
    }
    const int looks = desk.windows.looks;
    desk.clock.advance(60s);
    EXPECT_EQ(desk.windows.looks, looks) << "nothing is faded any more";

    desk.windows.show({over});
    wait();
    desk.session.setVisible(false);
    wait();
    const int unseen = desk.windows.looks;
    desk.clock.advance(60s);
    EXPECT_EQ(desk.windows.looks, unseen) << "nobody can look";
}

TEST_F(OverlapTest, FollowsTheWidgetsThemselves)
{
    widget->setPinned(true);
    desk.windows.show({over});
    wait();
    ASSERT_TRUE(isGhost());
    desk.windows.current.reset();
    desk.manager.ensureAllVisible();
    wait();
    EXPECT_TRUE(isGhost()) << "while the list cannot be had, all stays";
    desk.windows.current = {over};
    widget->change([](WidgetConfig& config) { config.origin = {900, 500}; });
    wait();
    EXPECT_TRUE(isWhole()) << "moved away";
    widget->change([](WidgetConfig& config) { config.origin = {160, 160}; });
    desk.manager.remove(widget);
    wait();
    EXPECT_FALSE(desk.windows.isWatched);
}

TEST_F(OverlapTest, AGhostForgetsThePointer)
{
    widget->setPinned(true);
    desk.host.movePointer({150, 150});
    ASSERT_TRUE(widget->isHovering());
    desk.windows.show({over});
    wait();
    EXPECT_FALSE(widget->isHovering());
    EXPECT_EQ(desk.host.panelAt({150, 150}), nullptr);
    desk.host.movePointer({151, 151});
    desk.windows.show({});
    desk.host.movePointer({150, 150});
    EXPECT_TRUE(widget->isHovering());
}

TEST(OverlapRuleTest, KnowsWhatLiesWhollyBelowOthers)
{
    const QRectF left(90, 90, 100, 200);
    const QRectF right(190, 90, 100, 200);
    struct Case {
        const char* what;
        QList<OnscreenWindow> windows;
        bool isUnder;
    };
    const Case cases[] = {
        {"one hides it all", {{frame}}, true},
        {"a corner shows", {{frame.adjusted(0, 0, 0, -3)}}, false},
        {"two together", {{left}, {right}}, true},
        {"a seam of half a point", {{left.adjusted(0, 0, -0.2, 0)}, {right.adjusted(0.2, 0, 0, 0)}}, true},
        {"one shines through", {{left}, {right, 0.8}}, false},
        {"a translucent one fills the screen", {{{0, 0, 1440, 900}, 0.8, WindowLayer::normal, true}}, true},
        {"another screen is filled", {{{1440, 0, 1440, 900}, 1, WindowLayer::normal, true}}, false},
    };
    for (const Case& each : cases)
        EXPECT_EQ(OverlapRule::isUnder(frame, each.windows), each.isUnder) << each.what;
}

/// A widget whose face moves, below all windows.
struct MotionPauseTest : OverlapTest {
    void SetUp() override
    {
        widget->change([](WidgetConfig& config) {
            config.kind = WidgetKind::clock;
            config.skin = Skin::classic;
        });
        look();
    }
    /// Paints, as a screen does, and lets what was noticed then be acted upon.
    void look()
    {
        desk.paintAll();
        QCoreApplication::sendPostedEvents();
        desk.clock.advance(100ms);
        desk.paintAll();
    }
    bool moves()
    {
        qsizetype frames = 0;
        for (int step = 0; step < 20; ++step) {
            desk.clock.advance(100ms);
            frames += panel->updates().size();
            if (!panel->updates().isEmpty())
                desk.paintAll();
        }
        return frames > 2;
    }
};

TEST_F(MotionPauseTest, RestsWhileNobodySeesTheWidget)
{
    ASSERT_TRUE(widget->moves());
    const OnscreenWindow whole{widget->widgetFrame().adjusted(-20, -20, 20, 20)};
    struct Step {
        const char* what;
        std::function<void()> take;
        bool moves;
        bool isWatched;
    };
    const Step steps[] = {
        {"in sight", [] {}, true, true},
        {"partly covered", [&] { desk.windows.show({over}); }, true, true},
        {"wholly covered", [&] { desk.windows.show({whole}); }, false, true},
        {"locked", [&] { desk.session.setVisible(false); }, false, false},
        {"unlocked, and the window has gone",
            [&] {
                desk.windows.current = QList<OnscreenWindow>();
                desk.session.setVisible(true);
            },
            true, true},
        {"raised over a part of a window, which it may",
            [&] {
                desk.settings.overlap.set(OverlapBehavior::show);
                widget->setPinned(true);
                desk.windows.show({over});
            },
            false, true},
        {"while widgets are arranged", [&] { desk.manager.setEditing(true); }, true, false},
        {"after that", [&] { desk.manager.setEditing(false); }, false, true},
        {"nothing shall move", [&] { desk.settings.animations.set(false); }, false, false},
        {"all may move again, with no list of windows",
            [&] {
                desk.windows.current.reset();
                desk.settings.animations.set(true);
            },
            true, true},
        {"a face that is still", [&] { widget->setSkin(Skin::glass); }, false, false},
    };
    for (const Step& step : steps) {
        step.take();
        look();
        EXPECT_EQ(moves(), step.moves) << step.what;
        EXPECT_EQ(desk.windows.isWatched, step.isWatched) << step.what;
    }
}

TEST_F(MotionPauseTest, ReadingsCatchUpWhenSomebodyLooksAgain)
{
    widget->setSkin(Skin::glass);
    desk.session.setVisible(false);
    look();
    desk.clock.advance(5min);
    EXPECT_TRUE(panel->updates().isEmpty()) << "nobody sees it";
    desk.session.setVisible(true);
    EXPECT_FALSE(panel->updates().isEmpty()) << "five minutes later";
}

} // namespace
} // namespace ambrelle
