// SPDX-License-Identifier: MIT

#include "desktop/ScreenPlacement.h"

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace {

ScreenInfo screen(const QString& id, const QRectF& frame)
{
    return {.id = id, .frame = frame, .visibleFrame = frame.adjusted(0, 0, 0, -40)};
}

const ScreenInfo main = screen(u"main"_s, {0, 0, 1440, 900});
const ScreenInfo right = screen(u"right"_s, {1440, 0, 1920, 1080});

WidgetConfig widgetAt(QPointF origin)
{
    return {WidgetKind::cpu, Skin::glass, WidgetScale::medium, origin};
}

/// A widget and what is known about its display.
struct Placed {
    WidgetConfig config;
    ScreenPlacement::HomeSize homeSize;

    explicit Placed(QPointF origin, const QList<ScreenInfo>& screens = {})
        : config(widgetAt(origin))
    {
        remember(screens);
    }
    void remember(const QList<ScreenInfo>& screens) { ScreenPlacement::rememberDisplay(config, homeSize, screens); }
    bool sync(const QList<ScreenInfo>& screens) { return ScreenPlacement::syncDisplay(config, homeSize, screens); }
    bool operator==(const Placed&) const = default;
};

TEST(ScreenPlacement, FollowsItsDisplay)
{
    Placed widget({2000, 300}, {main, right});
    EXPECT_EQ(widget.config.display, right.id);
    EXPECT_EQ(widget.config.displayOffset, QPointF(560, 300));

    EXPECT_TRUE(widget.sync({main, screen(right.id, {-1920, 200, 1920, 1080})}));
    EXPECT_EQ(widget.config.origin, QPointF(-1360, 500));
}

TEST(ScreenPlacement, KeepsItsPlaceOnADisplayOfAnotherSizeAndGetsTheOldOneBack)
{
    struct Case {
        const char* what;
        QPointF from;
        QSizeF size;
        QPointF to;
    };
    const Case cases[] = {
        {"at the upper right, larger", {1250, 670}, {1920, 1080}, {1730, 850}},
        {"at the upper right, smaller", {1250, 670}, {1024, 768}, {834, 538}},
        {"at the lower left, rotated", {20, 30}, {900, 1440}, {20, 30}},
        {"in the middle, rotated", {635, 365}, {900, 1440}, {365, 635}},
        {"below the bar", {20, 690}, {1440, 700}, {20, 490}},
        {"too far out for a very small one", {390, 20}, {500, 400}, {330, 20}},
        {"hanging over the right edge", {1400, 30}, {1920, 1080}, {1880, 30}},
    };
    for (const Case& c : cases) {
        const Placed before(c.from, {main});
        Placed widget = before;
        const ScreenInfo sized = screen(main.id, {{}, c.size});
        EXPECT_TRUE(widget.sync({sized}) || c.from == c.to) << c.what;
        EXPECT_EQ(widget.config.origin, c.to) << c.what;
        widget.remember({sized});
        widget.sync({main});
        EXPECT_EQ(widget, before) << c.what;
    }

    Placed unknown({1250, 670}, {main});
    unknown.homeSize.reset();
    unknown.sync({screen(main.id, {0, 0, 1920, 1080})});
    EXPECT_EQ(unknown.config.origin, QPointF(1250, 670)) << "without the old size the distance to the origin stays";
}

TEST(ScreenPlacement, TellsDisplaysOfOneMakeApartByTheirConnectorOnly)
{
    const ScreenInfo twinOne = screen(u"Maker Model@DP-1"_s, {1440, 0, 1920, 1080});
    const ScreenInfo twinTwo = screen(u"Maker Model@DP-2"_s, {3360, 0, 1920, 1080});
    const ScreenInfo single = screen(u"Maker Model"_s, {1440, 0, 1920, 1080});
    const auto standsOn = [](Placed widget, const QList<ScreenInfo>& screens) {
        widget.sync(screens);
        return ScreenPlacement::screenShowing(widget.config.frame(), screens)->id;
    };
    const Placed one({1500, 100}, {main, twinOne, twinTwo});
    const Placed two({3500, 100}, {main, twinOne, twinTwo});
    const Placed only({1500, 100}, {main, single});
    EXPECT_EQ(standsOn(one, {main, twinTwo, twinOne}), twinOne.id);
    EXPECT_EQ(standsOn(two, {main, twinOne, twinTwo}), twinTwo.id);
    EXPECT_EQ(standsOn(two, {main, single}), single.id) << "its twin has gone";
    EXPECT_EQ(standsOn(only, {main, twinTwo}), twinTwo.id) << "a twin has come";
    EXPECT_EQ(standsOn(one, {main, right}), main.id) << "no display of that make";
}

TEST(ScreenPlacement, IsAGuestWhileItsDisplayIsAwayAndGoesHomeAfterwards)
{
    const Placed home({3100, 880}, {main, right});
    Placed widget = home;
    EXPECT_TRUE(widget.sync({main}));
    EXPECT_EQ(widget.config.origin, QPointF(1180, 690)) << "as far from the edges, but below the bar";
    widget.remember({main});
    EXPECT_EQ(widget.config.display, right.id) << "saving while a guest keeps the home";
    EXPECT_FALSE(widget.sync({main})) << "a guest stays where it is";

    Placed scaled = widget;
    scaled.config.scale = WidgetScale::doubled;
    scaled.config.origin = ScreenPlacement::originAfterResize(widget.config, scaled.config, widget.homeSize, {main});
    scaled.remember({main});
    EXPECT_EQ(scaled.config.display, right.id) << "so does another size";

    EXPECT_TRUE(widget.sync({main, right}));
    EXPECT_EQ(widget, home);

    widget.sync({main});
    widget.config.origin = {50, 60};
    widget.remember({main});
    EXPECT_EQ(widget.config.display, main.id) << "put elsewhere by hand it belongs there";
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
        Placed widget(c.from);
        widget.sync(c.screens);
        EXPECT_EQ(widget.config.origin, c.to) << c.what;
    }
}

TEST(ScreenPlacement, DoesNotLetAWidgetGrowOutOfItsScreen)
{
    const auto grown = [](QPointF origin) {
        WidgetConfig after = widgetAt(origin);
        after.scale = WidgetScale::huge;
        return ScreenPlacement::originAfterResize(widgetAt(origin), after, {}, {main});
    };
    EXPECT_EQ(grown({100, 100}), QPointF(100, 100));
    EXPECT_EQ(grown({1250, 670}), QPointF(1185, 605));
    EXPECT_EQ(grown({1400, 100}), QPointF(1400, 100)) << "one that hung over the edge may go on hanging";
}

} // namespace
} // namespace ambrelle
