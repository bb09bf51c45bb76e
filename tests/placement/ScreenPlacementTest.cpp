// SPDX-License-Identifier: MIT

#include "placement/ScreenPlacement.h"

#include "model/Composition.h"
#include "placement/GroupFit.h"

#include <gtest/gtest.h>

#include <random>

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

struct Placed : StoredWidget {
    explicit Placed(QPointF origin, const QList<ScreenInfo>& screens = {})
        : StoredWidget{widgetAt(origin)}
    {
        sync(screens);
    }
    void sync(const QList<ScreenInfo>& screens)
    {
        QList<StoredWidget> alone{*this};
        ScreenPlacement::arrange(alone, screens);
        StoredWidget::operator=(alone.first());
    }
    void resize(WidgetScale scale, const QList<ScreenInfo>& screens)
    {
        const WidgetConfig before = config;
        config.scale = scale;
        ScreenPlacement::resized(*this, before, screens);
    }
    void drag(QPointF to, const QList<ScreenInfo>& screens)
    {
        config.origin = to;
        ScreenPlacement::settle(*this, screens);
    }
};

TEST(ScreenPlacement, FollowsItsDisplay)
{
    Placed widget({2000, 300}, {main, right});
    EXPECT_EQ(widget.config.display, right.id);
    EXPECT_EQ(widget.config.displayOffset, QPointF(560, 300));

    widget.sync({main, screen(right.id, {-1920, 200, 1920, 1080})});
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
        widget.sync({sized});
        EXPECT_EQ(widget.config.origin, c.to) << c.what;
        widget.sync({main});
        EXPECT_EQ(widget, before) << c.what;
    }

    Placed unknown({1250, 670}, {main});
    unknown.home.reset();
    unknown.sync({screen(main.id, {0, 0, 1920, 1080})});
    EXPECT_EQ(unknown.config.origin, QPointF(1250, 670)) << "without the old size the distance to the origin stays";
}

TEST(ScreenPlacement, TellsDisplaysOfOneMakeApartByTheirConnectorOnly)
{
    ScreenInfo twinOne = screen(u"Maker Model@DP-1"_s, {1440, 0, 1920, 1080});
    twinOne.connector = u"DP-1"_s;
    ScreenInfo twinTwo = screen(u"Maker Model@DP-2"_s, {3360, 0, 1920, 1080});
    twinTwo.connector = u"DP-2"_s;
    ScreenInfo single = screen(u"Maker Model"_s, {1440, 0, 1920, 1080});
    single.connector = u"DP-2"_s;
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
    EXPECT_EQ(standsOn(only, {twinOne, twinTwo}), twinTwo.id) << "the twin that has come is the main display";
    EXPECT_EQ(standsOn(one, {main, right}), main.id) << "no display of that make";
}

TEST(ScreenPlacement, IsAGuestWhileItsDisplayIsAwayAndGoesHomeAfterwards)
{
    const Placed home({3100, 880}, {main, right});
    Placed widget = home;
    widget.sync({main});
    EXPECT_EQ(widget.config.origin, QPointF(1180, 690)) << "as far from the edges, but below the bar";
    widget.sync({main});
    EXPECT_EQ(widget.config.origin, QPointF(1180, 690)) << "a guest stays where it is";

    Placed scaled = widget;
    scaled.resize(WidgetScale::doubled, {main});
    EXPECT_EQ(scaled.config.frame(), QRectF(1090, 510, 350, 350)) << "grown in its corner";
    scaled.sync({main, right});
    EXPECT_EQ(scaled.config.origin, QPointF(3010, 730)) << "it does not hang over the edge of its home either";

    widget.sync({main, right});
    EXPECT_EQ(widget, home);

    widget.sync({main});
    widget.drag({50, 60}, {main});
    EXPECT_EQ(widget.config.display, main.id) << "put elsewhere by hand it belongs there";
}

TEST(ScreenPlacement, IsAtHomeWhereItFirstStood)
{
    Placed widget({1250, 670});
    widget.sync({main});
    const Placed before = widget;
    widget.sync({screen(u"other"_s, {200, 0, 1024, 768})});
    EXPECT_NE(widget.config.origin, before.config.origin);
    ScreenPlacement::rememberDisplay(widget, {main}); // as a save does while the screens change again
    widget.sync({main});
    EXPECT_EQ(widget, before);
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
        Placed widget(origin, {main});
        widget.resize(WidgetScale::huge, {main});
        return widget.config.origin;
    };
    EXPECT_EQ(grown({100, 100}), QPointF(100, 100));
    EXPECT_EQ(grown({1250, 670}), QPointF(1185, 605));
    EXPECT_EQ(grown({1400, 100}), QPointF(1400, 100)) << "one that hung over the edge may go on hanging";
}

/// Widgets of one display.
struct Desktop {
    QList<StoredWidget> widgets;

    void sync(const QList<ScreenInfo>& screens) { ScreenPlacement::arrange(widgets, screens); }
    QRectF frame(qsizetype index) const { return widgets[index].config.frame(); }
    bool meet(qsizetype one, qsizetype other) const { return GroupFit::overlap(frame(one), frame(other)); }
};

const ScreenInfo large = screen(u"large"_s, {0, 0, 1920, 1080});

const QList<ScreenInfo> smaller{
    screen(large.id, {0, 0, 1024, 600}), screen(large.id, {0, 0, 960, 540}), // twice the pixels for a point
    screen(large.id, {0, 0, 1280, 720}), screen(large.id, {0, 0, 960, 1080}), // split
    screen(large.id, {0, 0, 1080, 1920}), // turned
    screen(u"other"_s, {300, 100, 1024, 768}), // the only one that is left
};

Desktop scattered(std::mt19937& random, bool touching)
{
    const auto pick = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    Desktop desktop;
    const int count = 2 + pick(14);
    for (int i = 0; i < count; ++i) {
        const auto scale = allCases<WidgetScale>()[static_cast<std::size_t>(pick(touching ? 2 : 5))];
        WidgetConfig config(allCases<WidgetKind>()[static_cast<std::size_t>(pick(20))], Skin::glass, scale);
        const QSizeF room = large.visibleFrame.size() - config.size();
        config.origin = {static_cast<double>(pick(static_cast<int>(room.width()))),
            static_cast<double>(pick(static_cast<int>(room.height())))};
        if (touching && i > 0) // beside its predecessor, edge at edge
            config.origin =
                ScreenPlacement::movedInto({desktop.frame(i - 1).topRight(), config.size()}, large.visibleFrame)
                    .topLeft();
        desktop.widgets.append({config});
    }
    desktop.sync({large});
    return desktop;
}

TEST(ScreenPlacement, MakesNoHeapOnASmallerScreenAndGrowsBackExactly)
{
    std::mt19937 random(20261122);
    int shrunk = 0;
    for (int round = 0; round < 600; ++round) {
        const Desktop before = scattered(random, round % 3 == 0);
        Desktop desktop = before;
        for (const ScreenInfo& small : smaller) {
            desktop.sync({small});
            bool isShrunk = false;
            for (qsizetype i = 0; i < desktop.widgets.size(); ++i) {
                ASSERT_TRUE(small.visibleFrame.contains(desktop.frame(i))) << round << ", " << i;
                ASSERT_GT(desktop.frame(i).width(), 50) << round << ", " << i << ": unreadable";
                isShrunk = isShrunk || desktop.widgets[i].config.fit < 1;
                for (qsizetype other = 0; other < i; ++other)
                    ASSERT_TRUE(before.meet(i, other) || !desktop.meet(i, other))
                        << round << ": " << i << ", " << other;
            }
            shrunk += isShrunk ? 1 : 0;
            const Desktop settled = desktop;
            desktop.sync({small});
            ASSERT_EQ(desktop.widgets, settled.widgets);
            if (round % 2 == 0)
                desktop.sync({large});
        }
        desktop.sync({large});
        ASSERT_EQ(desktop.widgets, before.widgets) << round;
    }
    EXPECT_GT(shrunk, 600) << "hardly any layout needed it: the test shows nothing";
}

TEST(ScreenPlacement, GuestsLieOverNobodyWhereThereIsRoom)
{
    const ScreenInfo left = screen(u"left"_s, {-1440, 0, 1440, 900});
    Desktop desktop;
    for (const QPointF& at : {QPointF(20, 20), QPointF(200, 20), QPointF(600, 400)})
        desktop.widgets.append({widgetAt(at)});
    for (const QPointF& at : {QPointF(1460, 20), QPointF(1470, 30), QPointF(1940, 20)}) // the first two overlap
        desktop.widgets.append({widgetAt(at)});
    for (const QPointF& at : {QPointF(-1420, 20), QPointF(-840, 400)})
        desktop.widgets.append({widgetAt(at)});
    desktop.sync({main, right, left});
    const QList<StoredWidget> before = desktop.widgets;
    const auto nobodyMeets = [&desktop](const char* what) {
        for (qsizetype i = 0; i < desktop.widgets.size(); ++i) {
            EXPECT_TRUE(main.visibleFrame.contains(desktop.frame(i)) || i == 6 || i == 7) << what << ' ' << i;
            for (qsizetype other = 0; other < i; ++other)
                EXPECT_TRUE(!desktop.meet(i, other) || (other == 3 && i == 4)) << what << ' ' << i << ' ' << other;
        }
    };
    desktop.sync({main, left});
    nobodyMeets("one display is away");
    const QList<StoredWidget> first = desktop.widgets;
    EXPECT_EQ(desktop.widgets[5].config.origin, QPointF(500, 20)) << "nobody is in its way";
    EXPECT_LT(std::hypot(desktop.frame(3).x() - 20, desktop.frame(3).y() - 20), 190) << "it is moved no further";
    desktop.sync({main});
    nobodyMeets("both are");
    for (qsizetype i = 0; i < 6; ++i)
        EXPECT_EQ(desktop.widgets[i], first[i]) << i << ": those that stand there stay";
    const QList<StoredWidget> settled = desktop.widgets;
    desktop.sync({main});
    EXPECT_EQ(desktop.widgets, settled);
    desktop.sync({main, right, left});
    EXPECT_EQ(desktop.widgets, before) << "all go home";

    // Twice as many as a small screen holds: none is lost, and each is where it can be seen.
    const ScreenInfo tiny = screen(main.id, {0, 0, 400, 300});
    desktop.sync({tiny});
    for (qsizetype i = 0; i < desktop.widgets.size(); ++i)
        EXPECT_TRUE(ScreenPlacement::screenShowing(desktop.frame(i), {tiny})) << i;
    desktop.sync({main, right, left});
    EXPECT_EQ(desktop.widgets, before);
}

TEST(ScreenPlacement, LeavesWidgetsAsLargeAsTheyAreWhereTheyFitSideBySide)
{
    Desktop desktop;
    for (const QPointF& origin : {QPointF(20, 20), QPointF(20, 200), QPointF(1730, 850)})
        desktop.widgets.append({widgetAt(origin)});
    desktop.sync({large});
    desktop.sync({smaller.first()});
    EXPECT_EQ(desktop.frame(0), QRectF(20, 20, 170, 170));
    EXPECT_EQ(desktop.frame(1), QRectF(20, 200, 170, 170));
    EXPECT_EQ(desktop.frame(2), QRectF(834, 370, 170, 170));
}

TEST(ScreenPlacement, KeepsWhatTheUserDoesWhileADisplayIsSmall)
{
    const ScreenInfo& small = smaller.first();
    Desktop desktop;
    for (const WidgetConfig& config : Composition::widgets(Skin::glass, large.visibleFrame))
        desktop.widgets.append({config});
    desktop.sync({large});
    const QList<StoredWidget> before = desktop.widgets;
    desktop.sync({small});
    ASSERT_LT(desktop.widgets[0].config.fit, 0.8);

    StoredWidget& moved = desktop.widgets[0];
    moved.config.origin = {400, 400};
    ScreenPlacement::settle(moved, {small});
    StoredWidget added{widgetAt({450, 20})};
    ScreenPlacement::rememberDisplay(added, {small});
    desktop.widgets.remove(6, 6); // everything on the right: the rest could be larger now
    desktop.widgets.append(added);
    const QList<StoredWidget> edited = desktop.widgets;
    ScreenInfo elsewhere = small;
    elsewhere.frame.moveTo(500, 0);
    elsewhere.visibleFrame.moveTo(500, 0);
    desktop.sync({elsewhere});
    desktop.sync({small});
    EXPECT_EQ(desktop.widgets, edited) << "nothing jumps";

    desktop.sync({large});
    EXPECT_EQ(desktop.widgets[0].config.fit, 1) << "it is not small for good";
    EXPECT_TRUE(large.visibleFrame.contains(desktop.frame(0)));
    EXPECT_TRUE(large.visibleFrame.contains(desktop.frame(6)));
    for (qsizetype i = 1; i < 6; ++i)
        EXPECT_EQ(desktop.widgets[i], before[i]) << i;
    desktop.sync({small});
    EXPECT_EQ(desktop.widgets[0].config, edited[0].config) << "its new home";
    EXPECT_EQ(desktop.widgets[6].config, edited[6].config);
}

} // namespace
} // namespace ambrelle
