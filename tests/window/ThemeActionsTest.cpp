// SPDX-License-Identifier: MIT

#include "window/ThemeActionsDesk.h"
#include "window/wallpapers/WallpaperActions.h"

#include <QFile>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST_F(ThemeActionsTest, AppliesAfterAQuestionAndBringsEverythingBack)
{
    desk.add(WidgetKind::cpu, {100, 100});
    desk.settings.defaultSkin.set(Skin::paper);
    const QList<WidgetConfig> before = desk.live();
    actions.apply(Skin::neon, true);
    ASSERT_TRUE(home.sheets.current());
    EXPECT_EQ(*home.sheets.current(), sheets::applyTheme(u"Neon"_s, false, u"Apply with Wallpaper"_s));
    answer(sheets::cancel);
    EXPECT_EQ(desk.live(), before) << "the sheet was left";

    actions.applyFromCard(Skin::neon);
    answer(sheets::accept);
    EXPECT_EQ(desk.live().size(), 13);
    ASSERT_TRUE(isOffered(u"“Neon” is on your desktop"_s));
    EXPECT_EQ(desk.wallpaper.currentSkin(), Skin::neon);
    EXPECT_TRUE(desk.picture.givenBack.isEmpty());
    home.undo.undo();
    EXPECT_EQ(desk.live(), before);
    EXPECT_EQ(desk.settings.defaultSkin(), Skin::paper);
    EXPECT_EQ(desk.picture.givenBack, QList<QJsonObject>{desk.picture.memory});

    actions.apply(Skin::neon, false);
    answer(sheets::accept);
    desk.settings.defaultSkin.set(Skin::mono);
    home.undo.undo();
    EXPECT_EQ(desk.live(), before);
    EXPECT_EQ(desk.settings.defaultSkin(), Skin::mono) << "chosen since";
}

TEST_F(ThemeActionsTest, WidgetsAndWallpaperReachTheStoreTogether)
{
    const TestFolder folder;
    UserDefaults file(folder.filePath(u"defaults.json"_s));
    WindowDesk killed(file);
    killed.themeActions.apply(Skin::neon, true);
    int versions = 0;
    for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
        const QByteArray version = folder.read(name);
        EXPECT_EQ(version.contains("widgets.v2"), version.contains("desktopPicture.unfinished")) << qPrintable(name);
        versions += version.contains("widgets.v2") ? 1 : 0;
    }
    EXPECT_EQ(versions, 1);
}

TEST_F(ThemeActionsTest, AsksOnlyWhereWidgetsGo)
{
    desk.show({main, rightScreen});
    desk.add(WidgetKind::cpu, {100, 100});
    const QUuid there = desk.live().first().id;
    actions.apply(Skin::mono, false, {ThemeTarget::Kind::one, rightScreen.id});
    EXPECT_FALSE(home.sheets.current()) << "nothing is replaced there";
    EXPECT_EQ(desk.manager.dominantSkin(rightScreen), Skin::mono);
    EXPECT_EQ(desk.live().first().id, there);
    EXPECT_TRUE(desk.picture.sets.isEmpty());

    actions.apply(Skin::paper, false, {ThemeTarget::Kind::one, rightScreen.id});
    ASSERT_TRUE(home.sheets.current());
    EXPECT_EQ(*home.sheets.current(), sheets::applyTheme(u"Paper"_s, true, u"Apply, Keep My Wallpaper"_s));
    answer(sheets::accept);
    EXPECT_EQ(desk.live().first().id, there);

    actions.apply(Skin::neon, false, {ThemeTarget::Kind::every, {}});
    answer(sheets::accept);
    for (const ScreenInfo& screen : {main, rightScreen})
        EXPECT_EQ(desk.manager.dominantSkin(screen), Skin::neon);
    EXPECT_EQ(desk.live().size(), 26);

    const QList<WidgetConfig> before = desk.live();
    desk.show({main});
    actions.apply(Skin::paper, false, {ThemeTarget::Kind::one, rightScreen.id});
    EXPECT_TRUE(home.undo.failure()) << "that screen has gone";
    EXPECT_EQ(desk.live().size(), before.size());
    home.undo.dismiss();
    ASSERT_TRUE(home.undo.canUndo()) << "of what was done before";
    home.undo.undo();
    EXPECT_NE(desk.manager.dominantSkin(main), Skin::neon);
}

TEST_F(ThemeActionsTest, TheLastOfSeveralWishesCounts)
{
    actions.apply(Skin::neon, true);
    actions.setWallpaper(Skin::paper);
    ASSERT_TRUE(isOffered(u"Wallpaper set to Paper"_s));
    EXPECT_EQ(desk.wallpaper.currentSkin(), Skin::paper);
    EXPECT_EQ(desk.manager.dominantSkin(main), Skin::neon);
    QCoreApplication::processEvents();
    EXPECT_EQ(home.undo.text(), u"Wallpaper set to Paper"_s) << "the first one's answer comes too late";
}

TEST_F(ThemeActionsTest, TellsOfWorkThatTakesItsTimeAndOfFailures)
{
    desk.add(WidgetKind::cpu, {100, 100});
    desk.picture.failure = u"The disk is full."_s;
    std::optional<ThemeWork> told;
    const QObject listener;
    QObject::connect(&actions, &ThemeActions::workingChanged, &listener, [&] { told = actions.working(); });
    actions.apply(Skin::neon, true);
    answer(sheets::accept);
    EXPECT_FALSE(actions.working()) << "too soon to be shown";
    desk.clock.advance(150ms);
    EXPECT_TRUE(told);
    const ThemeWork expected{Skin::neon, ThemeOperation::applyWithWallpaper};
    EXPECT_EQ(actions.working(), expected);
    ASSERT_TRUE(waitUntil([&] { return !desk.picture.sets.isEmpty(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(actions.working(), expected) << "for a moment at least";
    desk.clock.advance(300ms);
    EXPECT_FALSE(actions.working());
    EXPECT_FALSE(told) << "the ring would turn for ever";
    ASSERT_TRUE(home.undo.failure());
    EXPECT_EQ(home.undo.text(), u"The disk is full."_s);
    EXPECT_EQ(desk.live().size(), 13) << "widgets stay";

    desk.picture.failure.clear();
    home.undo.tryAgain();
    ASSERT_TRUE(waitUntil([&] { return desk.wallpaper.currentSkin() == Skin::neon; }));
    QCoreApplication::processEvents();
    EXPECT_TRUE(home.undo.canUndo());
    home.undo.undo();
    EXPECT_EQ(desk.live().size(), 1);
    EXPECT_EQ(desk.picture.givenBack.size(), 1);
}

TEST_F(ThemeActionsTest, WhatWasDoneSinceAFailureIsNotTakenBackWithIt)
{
    desk.add(WidgetKind::cpu, {100, 100});
    desk.picture.failure = u"The disk is full."_s;
    actions.apply(Skin::neon, true);
    answer(sheets::accept);
    ASSERT_TRUE(isOffered(u"The disk is full."_s));
    desk.add(WidgetKind::clock, {600, 100});
    bool isAddingTakenBack = false;
    home.undo.offer({u"Clock added"_s, [&] { isAddingTakenBack = true; }});
    desk.picture.failure.clear();
    home.undo.tryAgain();
    home.undo.undo(); // while the wallpaper is painted
    EXPECT_FALSE(isAddingTakenBack);
    ASSERT_TRUE(isOffered(u"“Neon” is on your desktop"_s));
    home.undo.undo();
    EXPECT_EQ(desk.live().size(), 14) << "the clock stays";
    EXPECT_EQ(desk.picture.givenBack.size(), 1);
}

TEST_F(ThemeActionsTest, EveryActionMakesTheOneBeforeFinalWhenItBegins)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    const QUuid id = save(u"Work"_s);
    WallpaperActions wallpapers(home.context);
    const std::pair<const char*, std::function<void()>> works[] = {{"save", [&] { save(u"Play"_s); }},
        {"rename", [&] { actions.rename(id, u"Rest"_s); }},
        {"wallpaper of a theme", [&] { actions.setWallpaper(Skin::paper); }},
        {"wallpaper", [&] { wallpapers.set(Skin::mono); }}, {"own picture", [&] { wallpapers.bringBack(); }}};
    for (const auto& [name, begin] : works) {
        home.undo.offer({u"Clock removed"_s, {}});
        begin();
        EXPECT_NE(home.undo.text(), u"Clock removed"_s) << name;
    }
}

TEST_F(ThemeActionsTest, WhatChangesNothingLeavesTheWayBackOfTheOneBefore)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    const QUuid id = save(u"Rest"_s);
    home.undo.offer({u"Clock removed"_s, {}});
    actions.rename(id, u" Rest "_s);
    actions.rename(id, u" "_s);
    EXPECT_EQ(home.undo.text(), u"Clock removed"_s) << "it keeps its name";
    const QString path = desk.folder.filePath(u"a.ambrelle"_s);
    actions.exportTo(id, path);
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(path); }));
    EXPECT_EQ(home.undo.text(), u"Clock removed"_s) << "the desktop is as it was";
}

TEST_F(ThemeActionsTest, ANewPictureEndsTheFailureOfAnEarlierOneAndNoOther)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    WallpaperActions wallpapers(home.context);
    const std::pair<const char*, std::function<void()>> orders[] = {
        {"wallpaper of a theme", [&] { actions.setWallpaper(Skin::mono); }},
        {"wallpaper", [&] { wallpapers.set(Skin::paper); }}, {"own picture", [&] { wallpapers.bringBack(); }}};
    for (const auto& [failing, order] : orders) {
        for (const auto& [next, begin] : orders) {
            desk.picture.shown = {{main.connector, u"/mine.jpg"_s}};
            bool isSet = false;
            desk.wallpaper.apply(Skin::neon, [&](const QString&) { isSet = true; });
            ASSERT_TRUE(waitUntil([&] { return isSet; }));
            ASSERT_TRUE(desk.wallpaper.hasPrevious());
            desk.picture.failure = u"The disk is full."_s;
            order();
            ASSERT_TRUE(isOffered(desk.picture.failure)) << failing;
            desk.picture.failure.clear();
            begin();
            EXPECT_TRUE(waitUntil([&] { return home.undo.canUndo(); })) << failing << ", then " << next;
            home.undo.dismiss();
        }
    }
    actions.exportTo(save(u"Work"_s), desk.folder.path());
    ASSERT_TRUE(waitUntil([&] { return home.undo.failure() != nullptr; }));
    const QString failure = home.undo.text();
    actions.setWallpaper(Skin::paper);
    ASSERT_TRUE(waitUntil([&] { return desk.wallpaper.currentSkin() == Skin::paper; }));
    EXPECT_EQ(home.undo.text(), failure);
}

TEST_F(ThemeActionsTest, TellsThatTheDiskTakesNoThemes)
{
    Q_EMIT home.themes.refused();
    ASSERT_TRUE(home.undo.failure());
    home.undo.tryAgain();
    EXPECT_FALSE(home.undo.failure()) << "it is stored by now";
}

TEST_F(ThemeActionsTest, TellsOfAFailureThoughAnotherWishFollows)
{
    desk.picture.failure = u"The disk is full."_s;
    actions.setWallpaper(Skin::neon);
    desk.clock.advance(150ms);
    ASSERT_TRUE(waitUntil([&] { return !desk.picture.sets.isEmpty(); }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(home.undo.failure()) << "the work is shown for a moment first";
    desk.picture.failure.clear();
    actions.setWallpaper(Skin::paper);
    ASSERT_TRUE(home.undo.failure());
    EXPECT_EQ(home.undo.text(), u"The disk is full."_s);
    const ThemeWork expected{Skin::paper, ThemeOperation::setWallpaper};
    EXPECT_EQ(actions.working(), expected);
    ASSERT_TRUE(waitUntil([&] { return desk.wallpaper.currentSkin() == Skin::paper; }));
    desk.clock.advance(300ms);
    EXPECT_FALSE(actions.working());
}

} // namespace
} // namespace ambrelle
