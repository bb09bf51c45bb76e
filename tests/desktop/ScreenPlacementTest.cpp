#include "desktop/ScreenPlacement.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

ScreenInfo screen(const QString& id, const QRectF& frame)
{
    ScreenInfo info;
    info.id = id;
    info.frame = frame;
    info.visibleFrame = frame.adjusted(0, 0, 0, -40);
    return info;
}

const ScreenInfo main = screen(QStringLiteral("main"), {0, 0, 1440, 900});
const ScreenInfo right = screen(QStringLiteral("right"), {1440, 0, 1920, 1080});

WidgetConfig widgetAt(QPointF origin)
{
    return {WidgetKind::cpu, Skin::glass, WidgetScale::medium, origin};
}

TEST(ScreenPlacement, FollowsItsDisplay)
{
    WidgetConfig widget = widgetAt({2000, 300});
    ScreenPlacement::rememberDisplay(widget, {main, right});
    EXPECT_EQ(widget.display, right.id);
    EXPECT_EQ(widget.displayOffset, QPointF(560, 300));

    ScreenInfo moved = right;
    moved.frame.moveTo(-1920, 200);
    moved.visibleFrame.moveTo(-1920, 200);
    EXPECT_TRUE(ScreenPlacement::syncDisplay(widget, {main, moved}));
    EXPECT_EQ(widget.origin, QPointF(-1360, 500));
}

TEST(ScreenPlacement, IsAGuestWhileItsDisplayIsAwayAndGoesHomeAfterwards)
{
    const WidgetConfig home = [] {
        WidgetConfig widget = widgetAt({3100, 880});
        ScreenPlacement::rememberDisplay(widget, {main, right});
        return widget;
    }();
    WidgetConfig widget = home;
    EXPECT_TRUE(ScreenPlacement::syncDisplay(widget, {main}));
    EXPECT_TRUE(main.visibleFrame.contains(widget.frame()));
    ScreenPlacement::rememberDisplay(widget, {main});
    EXPECT_EQ(widget.display, right.id) << "saving while a guest keeps the home";
    EXPECT_FALSE(ScreenPlacement::syncDisplay(widget, {main})) << "a guest stays where it is";

    WidgetConfig scaled = widget;
    scaled.scale = WidgetScale::doubled;
    scaled.origin = ScreenPlacement::originAfterResize(widget, scaled, {main});
    ScreenPlacement::rememberDisplay(scaled, {main});
    EXPECT_EQ(scaled.display, right.id) << "so does another size";

    EXPECT_TRUE(ScreenPlacement::syncDisplay(widget, {main, right}));
    EXPECT_EQ(widget, home);

    ScreenPlacement::syncDisplay(widget, {main});
    widget.origin = {50, 60};
    ScreenPlacement::rememberDisplay(widget, {main});
    EXPECT_EQ(widget.display, main.id) << "put elsewhere by hand it belongs there";
}

TEST(ScreenPlacement, BringsWidgetsBackThatNobodySees)
{
    struct Case {
        const char* what;
        QPointF from;
        QList<ScreenInfo> screens;
        QPointF to;
    };
    const Case cases[] = {
        {"partly visible is visible", {-100, 300}, {main}, {-100, 300}},
        {"far to the left", {-5000, 300}, {main, right}, {0, 300}},
        {"far to the right, on the nearer screen", {9000, 300}, {main, right}, {3190, 300}},
        {"above, below the bar", {200, 2000}, {main}, {200, 690}},
        {"beside it by a hair", {1440, 300}, {main}, {1270, 300}},
        {"no screen at all", {-5000, 300}, {}, {-5000, 300}},
    };
    for (const Case& c : cases) {
        WidgetConfig widget = widgetAt(c.from);
        ScreenPlacement::syncDisplay(widget, c.screens);
        EXPECT_EQ(widget.origin, c.to) << c.what;
    }
}

TEST(ScreenPlacement, DoesNotLetAWidgetGrowOutOfItsScreen)
{
    const auto grown = [](QPointF origin) {
        WidgetConfig after = widgetAt(origin);
        after.scale = WidgetScale::huge;
        return ScreenPlacement::originAfterResize(widgetAt(origin), after, {main});
    };
    EXPECT_EQ(grown({100, 100}), QPointF(100, 100));
    EXPECT_EQ(grown({1250, 670}), QPointF(1185, 605));
    EXPECT_EQ(grown({1400, 100}), QPointF(1400, 100)) << "one that hung over the edge may go on hanging";
}

} // namespace
} // namespace ambrelle
