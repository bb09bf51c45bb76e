// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

#include "model/Composition.h"

namespace ambrelle {
namespace {

using enum WidgetKind;

using WidgetManagerTest = DeskTest;

TEST_F(WidgetManagerTest, StoresEveryChangeBeforeItReturns)
{
    WidgetController* first = desk.manager.add(clock);
    desk.manager.add(processes);
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"scale", [&] { first->setScale(WidgetScale::huge); }},
        {"pin", [&] { first->setPinned(true); }},
        {"skin", [&] { first->setSkin(Skin::paper); }},
        {"an option", [&] { first->change([](WidgetConfig& c) { c.timeZone = u"Asia/Tokyo"_s; }); }},
        {"a drag", [&] { desk.host.drag(first->widgetFrame().center(), QPointF(300, 300)); }},
        {"the toolbar's scale", [&] { desk.useToolbar(*first, WidgetToolbar::Button::scale); }},
        {"the toolbar's pin", [&] { desk.useToolbar(*first, WidgetToolbar::Button::pin); }},
        {"all skins", [&] { desk.manager.applySkinToAll(Skin::mono); }},
        {"the toolbar's remove", [&] { desk.useToolbar(*first, WidgetToolbar::Button::remove); }},
        {"remove all", [&] { desk.manager.removeAll(); }},
    };
    for (const auto& [what, change] : changes) {
        const QList<WidgetConfig> before = desk.stored();
        change();
        EXPECT_NE(desk.stored(), before) << what;
        EXPECT_EQ(desk.stored(), desk.live()) << what;
    }
    EXPECT_TRUE(desk.panels().isEmpty());
}

TEST_F(WidgetManagerTest, ComesBackAsItWasAfterTheProgramWasKilled)
{
    desk.manager.applyPreset(Skin::neon, false);
    desk.add(countdown, {40, 50})->change([](WidgetConfig& c) { c.opacity = 0.5; });
    Desk next(store);
    next.manager.load();
    EXPECT_EQ(next.live(), desk.live());
    EXPECT_EQ(next.panels().size(), desk.panels().size());
    EXPECT_EQ(next.panels().last()->frame(), QRectF(10, 20, 256, 232));
}

TEST_F(WidgetManagerTest, LeavesUnreadableRecordsAloneUntilTheNextChange)
{
    struct Case {
        const char* what;
        QByteArray stored;
        qsizetype opened;
    };
    const Case cases[] = {
        {"not an array", R"({"kind": "clock"})", 0},
        {"not JSON", "widgets", 0},
        {"a bad record between good ones",
            R"([{"kind":"clock","origin":[9,9]},{"kind":"abacus","origin":[0,0]},{"kind":"cpu","skin":"?","origin":[1,2]}])",
            2},
    };
    for (const Case& c : cases) {
        UserDefaults defaults = UserDefaults::temporary();
        ASSERT_TRUE(defaults.setData(u"widgets.v2"_s, c.stored));
        const auto stored = defaults.data(u"widgets.v2"_s);
        Desk damaged(defaults);
        damaged.manager.load();
        damaged.manager.ensureAllVisible();
        EXPECT_EQ(damaged.live().size(), c.opened) << c.what;
        EXPECT_EQ(defaults.data(u"widgets.v2"_s), stored) << c.what;
        damaged.manager.add(cpu);
        EXPECT_EQ(damaged.stored(), damaged.live()) << c.what;
    }
}

TEST_F(WidgetManagerTest, AppliesALayoutToOneScreenOnly)
{
    desk.host.setScreens({desk.host.screens().first(), rightScreen});
    WidgetController* kept = desk.add(cpu, {100, 100});
    desk.add(memory, {2000, 100});
    desk.manager.applyPreset(Skin::paper, false, rightScreen);
    const QList<WidgetConfig> widgets = desk.live();
    ASSERT_EQ(widgets.size(), 1 + Composition::preset(Skin::paper).spots.size());
    EXPECT_EQ(widgets.first(), kept->config());
    for (const WidgetConfig& widget : widgets.sliced(1))
        EXPECT_TRUE(rightScreen.visibleFrame.contains(widget.frame()));
    EXPECT_EQ(desk.settings.defaultSkin(), Skin::paper);

    desk.host.setScreens({});
    desk.manager.applyPreset(Skin::neon, false);
    EXPECT_EQ(desk.live(), widgets) << "without a screen nothing is replaced";
}

TEST_F(WidgetManagerTest, TellsEveryChangeOfTheListAndOfARecordOnceItIsStored)
{
    ManagerListener after(desk);
    EXPECT_EQ(after([&] { desk.add(cpu, {1200, 100}); }), "list 1");
    EXPECT_EQ(after([&] { desk.add(memory, {100, 100}); }), "list 2");
    EXPECT_EQ(after([&] { desk.manager.controllers().first()->setPinned(true); }), "cpu");
    EXPECT_EQ(after([&] { desk.manager.controllers().first()->setPinned(true); }), "");
    EXPECT_EQ(after([&] { desk.manager.applySkinToAll(Skin::mono); }), "cpu memory");
    const ScreenInfo main = desk.host.screens().first();
    ScreenInfo narrow = main;
    narrow.frame.setWidth(1000);
    narrow.visibleFrame.setWidth(1000);
    EXPECT_EQ(after([&] { desk.show({narrow}); }), "cpu") << "the other one stays";
    EXPECT_EQ(after([&] { desk.show({narrow}); }), "");
    EXPECT_EQ(after([&] { desk.manager.applyPreset(Skin::slate, false); }), "list 11") << "one change";
    EXPECT_EQ(after([&] { desk.manager.remove(desk.manager.controllers().last()); }), "list 10");
    EXPECT_EQ(after([&] { desk.manager.removeAll(); }), "list 0");
    EXPECT_EQ(after([&] { desk.manager.removeAll(); }), "");
}

TEST_F(WidgetManagerTest, PlacesWidgetsWithoutAWorkAreaAndWithoutAScreen)
{
    ScreenInfo bare = desk.host.screens().first();
    bare.visibleFrame = {};
    desk.host.setScreens({bare});
    EXPECT_EQ(desk.manager.add(cpu)->widgetFrame(), QRectF(1250, 710, 170, 170));
    desk.manager.applyPreset(Skin::paper, false);
    for (const WidgetConfig& widget : desk.live()) {
        EXPECT_TRUE(bare.frame.contains(widget.frame()));
        EXPECT_GT(widget.fit, 0.8) << "as on a screen without room";
    }
    desk.manager.removeAll();
    desk.host.setScreens({});
    const QRectF one = desk.manager.add(cpu)->widgetFrame();
    EXPECT_FALSE(one.intersects(desk.manager.add(memory)->widgetFrame()));
    desk.show({bare});
    EXPECT_EQ(desk.live().first().frame(), one);
    EXPECT_EQ(desk.stored().first().display, bare.id) << "at home where they are first seen";
}

TEST_F(WidgetManagerTest, RaisesPinnedWidgetsAndAllOfThemWhileEditing)
{
    WidgetController* pinned = desk.add(cpu, {100, 100});
    desk.add(memory, {500, 100});
    pinned->setPinned(true);
    const auto levels = [&] {
        QString text;
        for (const RecordingPanel* panel : desk.panels())
            text += panel->level() == WindowLevel::floating ? u'f' : u'd';
        return text;
    };
    EXPECT_EQ(levels(), u"fd");
    desk.manager.setEditing(true);
    EXPECT_EQ(levels(), u"ff");
    desk.manager.setEditing(false);
    EXPECT_EQ(levels(), u"fd");
    desk.settings.layer.set(WidgetLayer::floating);
    EXPECT_EQ(levels(), u"ff");
}

TEST_F(WidgetManagerTest, AGuestThatIsDraggedBackToItsStartIsAtHomeThere)
{
    const ScreenInfo main = desk.host.screens().first();
    desk.host.setScreens({main, rightScreen});
    WidgetController* guest = desk.add(cpu, {2200, 700});
    desk.show({main});
    const QPointF origin = guest->config().origin;
    const QPointF grip = guest->widgetFrame().center();
    desk.host.press(grip);
    desk.host.movePointer(grip - QPointF(90, 60));
    desk.host.movePointer(grip);
    desk.host.release(grip);
    EXPECT_EQ(guest->config().origin, origin);
    EXPECT_EQ(desk.stored(), desk.live());
    desk.show({main, rightScreen});
    EXPECT_EQ(guest->config().origin, origin) << "its user put it there";
    EXPECT_EQ(desk.stored(), desk.live());
}

TEST_F(WidgetManagerTest, NothingIsShownBeforeItIsStored)
{
    const auto shown = [this] {
        QList<QRectF> frames;
        for (const RecordingPanel* panel : desk.host.panels()) {
            if (panel->isVisible())
                frames.append(panel->frame());
        }
        return frames;
    };
    WidgetController* widget = desk.add(cpu, {100, 100});
    const QRectF before = widget->widgetFrame();
    int told = 0;
    QObject::connect(widget, &WidgetController::recordChanged, &desk.manager, [&] {
        ++told;
        EXPECT_NE(desk.stored().first().frame(), before);
        EXPECT_EQ(shown(), QList{PanelGeometry::panelFrame(before)});
    });
    widget->setScale(WidgetScale::large);
    EXPECT_EQ(told, 1);
    QObject::disconnect(widget, &WidgetController::recordChanged, &desk.manager, nullptr);

    QObject::connect(widget, &WidgetController::closed, &desk.host, [&] {
        ++told;
        EXPECT_GT(desk.stored().size(), 3) << "the next layout was not stored before the old one went";
        EXPECT_TRUE(desk.defaults.contains(u"desktopPicture.unfinished"_s)) << "nor that its wallpaper is wanted";
        EXPECT_EQ(shown().size(), 1);
    });
    desk.manager.applyPreset(Skin::glass, true);
    EXPECT_EQ(told, 2);
}

TEST_F(WidgetManagerTest, ADragIsStoredWhereverItHasGot)
{
    const WidgetController* widget = desk.add(cpu, {100, 100});
    const QPointF grip = widget->widgetFrame().center();
    desk.host.press(grip);
    for (const QPointF by : {QPointF(40, 10), QPointF(203, 57)}) {
        desk.host.movePointer(grip + by, Qt::ShiftModifier);
        EXPECT_EQ(desk.stored().first().origin, QPointF(100, 100) + by);
    }
    EXPECT_EQ(widget->config().origin, QPointF(100, 100)) << "it has not been dropped";
    desk.host.release(grip + QPointF(203, 57));
    EXPECT_EQ(desk.stored(), desk.live());
}

} // namespace
} // namespace ambrelle
