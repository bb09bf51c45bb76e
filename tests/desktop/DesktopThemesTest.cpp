// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

#include "desktop/WidgetStage.h"
#include "support/WaitUntil.h"

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using enum WidgetKind;

struct DesktopThemesTest : DeskTest {
    const ScreenInfo main = desk.host.screens().first();

    DesktopThemesTest() { desk.host.setScreens({main, rightScreen}); }

    QSet<QUuid> ids() const
    {
        QSet<QUuid> all;
        for (const WidgetConfig& config : desk.live())
            all.insert(config.id);
        return all;
    }
    qsizetype shown() const { return desk.panels().size(); }
    /// A theme of that many widgets.
    static SavedTheme huge(int count)
    {
        SavedTheme theme;
        for (int i = 0; i < count; ++i) {
            const auto [row, column] = std::div(i, 40);
            theme.widgets.append({WidgetConfig(allCases<WidgetKind>()[static_cast<std::size_t>(i % 20)], Skin::glass),
                column / 50.0, row / 50.0});
        }
        return theme;
    }
};

TEST_F(DesktopThemesTest, ASavedDesktopComesBackAsItWas)
{
    desk.add(cpu, {100.5, 100}, Skin::paper)->change([](WidgetConfig& config) { config.opacity = 0.5; });
    desk.add(clock, {1200, 400}, Skin::paper); // partly on the other screen
    desk.add(memory, {2000, 100}, Skin::neon);
    desk.wallpaper.apply(Skin::kyoto, {main});
    ASSERT_TRUE(waitUntil([&] { return desk.wallpaper.currentSkin() == Skin::kyoto; }));
    const QList<StoredWidget> before = desk.manager.stored();
    const SavedTheme saved = desk.manager.snapshot(u"Work"_s, main);
    EXPECT_EQ(saved.name, u"Work"_s);
    EXPECT_EQ(saved.created, desk.clock.now());
    EXPECT_EQ(saved.wallpaper, Skin::kyoto);
    ASSERT_EQ(saved.widgets.size(), 2);
    EXPECT_EQ(desk.manager.snapshot({}, rightScreen).wallpaper, std::nullopt) << "it shows a picture of the user's";

    desk.manager.applyPreset(Skin::neon, false, main);
    ASSERT_TRUE(desk.manager.apply(saved, false, main));
    QList<WidgetConfig> expected{before[2].config, before[0].config, before[1].config};
    EXPECT_EQ(desk.live(), expected);
    EXPECT_EQ(desk.stored(), expected);
    EXPECT_EQ(desk.settings.defaultSkin(), Skin::neon) << "of new widgets";
    EXPECT_EQ(desk.manager.dominantSkin(main), Skin::paper);
    EXPECT_EQ(desk.manager.dominantSkin(rightScreen), Skin::neon);

    ASSERT_TRUE(desk.manager.apply(saved, false, rightScreen));
    EXPECT_EQ(desk.live().size(), 4);
    EXPECT_EQ(ids().size(), 4) << "two widgets share an identifier";
    EXPECT_EQ(desk.manager.dominantSkin(rightScreen), Skin::paper);
    desk.manager.removeAll(rightScreen);
    EXPECT_EQ(desk.manager.dominantSkin(rightScreen), std::nullopt);
}

TEST_F(DesktopThemesTest, TheLastWishCounts)
{
    SavedTheme theme = huge(3);
    theme.wallpaper = Skin::lumen;
    QStringList told;
    const auto tell = [&](const QString& error) { told.append(error); };
    desk.manager.applyPreset(Skin::neon, true, std::nullopt, tell);
    EXPECT_TRUE(desk.manager.apply(theme, true, std::nullopt, tell));
    ASSERT_TRUE(waitUntil([&] { return told.size() == 2; }));
    EXPECT_EQ(told, (QStringList{{}, {}}));
    EXPECT_EQ(desk.wallpaper.currentSkin(main), Skin::lumen);
    EXPECT_EQ(desk.wallpaper.currentSkin(rightScreen), Skin::lumen);
    EXPECT_EQ(desk.live().size(), 3);

    desk.manager.applyPreset(Skin::neon, true, main);
    EXPECT_TRUE(desk.manager.apply(theme, true, rightScreen, tell));
    ASSERT_TRUE(waitUntil([&] { return told.size() == 3; }));
    EXPECT_EQ(desk.wallpaper.currentSkin(main), Skin::neon) << "each screen gets what was asked for it";
    EXPECT_EQ(desk.wallpaper.currentSkin(rightScreen), Skin::lumen);

    desk.show({main});
    const QList<WidgetConfig> before = desk.live();
    EXPECT_FALSE(desk.manager.apply(theme, true, rightScreen, tell)) << "it was unplugged";
    EXPECT_FALSE(desk.manager.applyPreset(Skin::paper, true, rightScreen));
    EXPECT_EQ(desk.live(), before);
    EXPECT_FALSE(told.last().isEmpty());
    EXPECT_EQ(desk.settings.defaultSkin(), Skin::neon);
    desk.show({});
    EXPECT_FALSE(desk.manager.apply(theme, true));
    EXPECT_TRUE(desk.manager.snapshot({}).widgets.isEmpty());
}

TEST_F(DesktopThemesTest, FollowsTheAppearanceWhereTheUserWantsIt)
{
    desk.settings.followAppearance.set(true);
    desk.appearance.setDark(true);
    SavedTheme theme = huge(2);
    theme.widgets[0].config.skin = Skin::paper;
    theme.wallpaper = Skin::paper;
    desk.manager.apply(theme, true);
    EXPECT_EQ(desk.stored().at(0).skin, Skin::mono);
    EXPECT_EQ(desk.stored().at(1).skin, Skin::glass);
    EXPECT_EQ(desk.wallpaper.wantedSkin(), Skin::mono);
}

TEST_F(DesktopThemesTest, AHugeDesktopIsStoredAtOnceAndAppearsLittleByLittle)
{
    constexpr int count = 1000;
    const auto finish = [&] {
        for (qsizetype before = -1; before != shown();) {
            before = shown();
            desk.clock.advance(110ms);
            EXPECT_LE(shown() - before, WidgetStage::atOnce) << "too many in one turn";
        }
    };
    desk.manager.apply(huge(count), false);
    EXPECT_EQ(desk.stored().size(), count);
    EXPECT_EQ(desk.stored(), desk.live());
    EXPECT_EQ(shown(), WidgetStage::atOnce);
    // Things happen to widgets that have not come yet.
    WidgetController* late = desk.manager.controllers().last();
    late->setPinned(true);
    late->change([](WidgetConfig& config) { config.origin = {7, 9}; });
    desk.manager.remove(desk.manager.controllers().sliced(500, 10));
    finish();
    ASSERT_EQ(shown(), count - 10);
    const RecordingPanel* panel = desk.panels().last();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->frame(), PanelGeometry::panelFrame(late->widgetFrame()));
    EXPECT_EQ(panel->level(), WindowLevel::floating);
    EXPECT_FALSE(panel->delegate().accessibleText().isEmpty()) << "it has no reading";

    desk.manager.apply(huge(count), false); // and again before they came
    desk.clock.advance(50ms);
    desk.manager.applyPreset(Skin::neon, false);
    const qsizetype preset = desk.live().size();
    EXPECT_EQ(desk.stored(), desk.live());
    for (int turn = 0; turn < count; ++turn) {
        desk.clock.advance(5ms);
        desk.panels();
    }
    EXPECT_EQ(shown(), preset);
    for (const RecordingPanel* each : desk.panels())
        EXPECT_TRUE(each->isVisible());
}

TEST_F(DesktopThemesTest, WhatWasDoneIsTakenBackExactly)
{
    desk.manager.applyPreset(Skin::overdrive, false);
    desk.add(cpu, {2200, 700});
    desk.show({main}); // the last one is a guest now
    const QList<StoredWidget> before = desk.manager.stored();
    const Skin skin = desk.settings.defaultSkin();
    const auto number = [&](qsizetype index) { return desk.manager.controllers().at(index); };
    const std::pair<const char*, std::function<void()>> undone[] = {
        {"adding", [&] { desk.manager.remove(desk.manager.add(disk)); }},
        {"removing one",
            [&] {
                desk.manager.remove(number(3));
                desk.manager.reinsert(before[3], 3);
                desk.manager.reinsert(before[3], 0); // it is there
            }},
        {"removing several",
            [&] {
                desk.manager.remove({number(1), number(14), number(2)});
                EXPECT_EQ(desk.stored().size(), before.size() - 3);
                for (const qsizetype index : {1, 2, 14})
                    desk.manager.reinsert(before[index], index);
            }},
        {"removing all",
            [&] {
                desk.manager.removeAll();
                desk.manager.replaceAll(before);
            }},
        {"a skin for all",
            [&] {
                desk.manager.applySkinToAll(Skin::atlas);
                desk.manager.replaceAll(before, skin);
            }},
        {"applying",
            [&] {
                desk.manager.applyPreset(Skin::paper, false);
                desk.manager.replaceAll(before, skin);
            }},
        {"half of it",
            [&] {
                desk.manager.remove({number(0), number(5)});
                number(2)->setScale(WidgetScale::small);
                desk.manager.add(clock);
                desk.manager.replaceAll(before);
            }},
    };
    for (const auto& [what, act] : undone) {
        act();
        EXPECT_EQ(desk.manager.stored(), before) << what;
        EXPECT_EQ(desk.settings.defaultSkin(), skin) << what;
        EXPECT_EQ(desk.stored(), desk.live()) << what;
        EXPECT_EQ(shown(), before.size()) << what;
        EXPECT_EQ(number(3)->widgetFrame(), before[3].config.frame()) << what;
        Desk next(store);
        next.host.setScreens({main});
        next.manager.load();
        EXPECT_EQ(next.manager.stored(), before) << what << ", after a restart";
    }
}

TEST_F(DesktopThemesTest, TakingBackTellsEveryChange)
{
    WidgetController* first = desk.add(cpu, {100, 100});
    desk.add(memory, {400, 100});
    const QList<StoredWidget> before = desk.manager.stored();
    ManagerListener after(desk);
    first->setPinned(true);
    EXPECT_EQ(after([&] { desk.manager.replaceAll(before); }), "cpu");
    EXPECT_EQ(after([&] { desk.manager.replaceAll(before); }), "");
    EXPECT_EQ(after([&] { desk.manager.replaceAll({before[1], before[0]}); }), "list 2") << "the order";
    desk.manager.remove(first);
    EXPECT_EQ(after([&] { desk.manager.reinsert(before[0], 0); }), "list 2");
    EXPECT_EQ(after([&] { desk.manager.apply(huge(2), false); }), "list 2");
}

} // namespace
} // namespace ambrelle
