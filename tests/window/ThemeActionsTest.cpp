// SPDX-License-Identifier: MIT

#include "model/ThemeFiles.h"
#include "support/WaitUntil.h"
#include "window/frame/Sheets.h"
#include "window/wallpapers/WallpaperActions.h"
#include "window/WindowDesk.h"

#include <QFile>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct ThemeActionsTest : WindowTest {
    Desk& desk = home.desk;
    ThemeActions& actions = home.themeActions;
    const ScreenInfo main = desk.host.screens().first();

    ThemeActionsTest()
    {
        desk.picture.memory = {{u"picture"_s, u"mine.jpg"_s}};
        desk.picture.shown = {{main.connector, u"/mine.jpg"_s}};
    }
    /// Presses that button of the sheet that is asked.
    void answer(const QString& button, const QString& text = {}, int choice = -1)
    {
        ASSERT_TRUE(home.sheets.current());
        home.sheets.answer({.button = button, .text = text, .choice = choice});
    }
    bool isOffered(const QString& text)
    {
        return waitUntil([&] { return home.undo.text() == text; }, 20'000);
    }
    QUuid save(const QString& name)
    {
        actions.saveDesktop();
        answer(sheets::accept, name);
        return home.themes.themes().first().id;
    }
    QStringList names() const
    {
        QStringList names;
        for (const SavedTheme& theme : home.themes.themes())
            names.append(theme.name);
        return names;
    }
    QString file(const QString& name, const QByteArray& contents) const
    {
        QFile file(desk.folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
        return file.fileName();
    }
};

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

TEST_F(ThemeActionsTest, SavedDesktopsComeBackToTheirOldPlace)
{
    actions.saveDesktop();
    EXPECT_FALSE(home.sheets.current()) << "there is nothing to save";
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    actions.saveDesktop();
    ASSERT_TRUE(home.sheets.current());
    EXPECT_EQ(*home.sheets.current(), sheets::save(u"Neon Desktop"_s, {}));
    answer(sheets::accept, u"  First "_s);
    const QUuid second = save(u"Second"_s);
    save(u"Third"_s);
    EXPECT_EQ(names(), QStringList({u"Third"_s, u"Second"_s, u"First"_s}));
    EXPECT_EQ(home.model.themesSection(), ThemesSection::mine);

    home.model.chooseTheme(second);
    actions.remove(second);
    answer(sheets::accept);
    EXPECT_EQ(names(), QStringList({u"Third"_s, u"First"_s}));
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(home.themes.themes().last().id)) << "the next one";
    EXPECT_EQ(home.undo.text(), u"“Second” deleted"_s);
    home.undo.undo();
    EXPECT_EQ(names(), QStringList({u"Third"_s, u"Second"_s, u"First"_s}));
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(second));
}

TEST_F(ThemeActionsTest, SavesWithTheWallpaperThatShowsOrIsAboutTo)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    actions.setWallpaper(Skin::paper);
    ASSERT_TRUE(isOffered(u"Wallpaper set to Paper"_s));
    save(u"Paper"_s);
    desk.picture.shown[main.connector] = u"/mine.jpg"_s; // set by another program
    save(u"Mine"_s);
    actions.setWallpaper(Skin::mono);
    ASSERT_TRUE(waitUntil([&] { return desk.wallpaper.wantedSkin(main) == Skin::mono; }));
    save(u"Mono"_s);
    QList<std::optional<Skin>> wallpapers;
    for (const SavedTheme& theme : home.themes.themes())
        wallpapers.append(theme.wallpaper);
    EXPECT_EQ(wallpapers, QList<std::optional<Skin>>({Skin::mono, std::nullopt, Skin::paper}));
}

TEST_F(ThemeActionsTest, ASavedDesktopIsMarkedUntilItIsAnother)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    const ThemeChoice own = save(u"Work"_s);
    const auto isMarked = [&] {
        QCoreApplication::processEvents();
        return actions.applied().isOnDesktop(own);
    };
    EXPECT_FALSE(isMarked());
    const auto apply = [&] {
        actions.apply(own, false);
        answer(sheets::accept);
        return isMarked();
    };
    EXPECT_TRUE(apply());
    desk.manager.controllers().first()->change([](WidgetConfig& config) { config.origin += QPointF(50, 0); });
    EXPECT_TRUE(isMarked()) << "moved";
    desk.manager.controllers().first()->setSkin(Skin::paper);
    EXPECT_FALSE(isMarked()) << "restyled";
    EXPECT_TRUE(apply());
    WidgetController* added = desk.add(WidgetKind::clock, {600, 100});
    EXPECT_FALSE(isMarked()) << "one more";
    desk.manager.remove(added);
    EXPECT_FALSE(isMarked()) << "it was another one meanwhile";
    EXPECT_TRUE(apply());
    actions.apply(Skin::paper, false);
    answer(sheets::accept);
    EXPECT_FALSE(isMarked());
    home.undo.undo();
    EXPECT_TRUE(isMarked()) << "exactly as it was";
}

TEST_F(ThemeActionsTest, ImportsWhatIsGoodAndTellsOfTheRest)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    desk.accents.set(QColor(1, 2, 3), Skin::paper);
    SavedTheme theme = desk.manager.snapshot(u"Work"_s);
    const QString good = file(u"a.ambrelle"_s, ThemeEnvelope{theme, {{u"neon"_s, u"#26E6FF"_s}}}.encode());
    const QString bad = file(u"b.ambrelle"_s, "[]");
    theme.name = u"Play"_s;
    const QString better = file(u"c.ambrelle"_s, ThemeEnvelope{theme}.encode());
    int wanted = 0;
    QObject::connect(&actions, &ThemeActions::windowWanted, [&] { ++wanted; });
    home.model.setSearch(MainTab::themes, u"zzz"_s);
    home.model.addHandedFiles({good, bad, better});
    ASSERT_TRUE(isOffered(u"2 themes added to My Themes"_s));
    EXPECT_EQ(names(), QStringList({u"Play"_s, u"Work"_s}));
    EXPECT_EQ(home.model.chosenTheme(), ThemeChoice(home.themes.themes().first().id));
    EXPECT_EQ(home.model.search(MainTab::themes), QString());
    EXPECT_EQ(wanted, 1);
    EXPECT_EQ(desk.accents.color(Skin::neon), QColor(0x26, 0xE6, 0xFF));
    EXPECT_EQ(desk.accents.color(Skin::paper), QColor(1, 2, 3)) << "not in the file";
    ASSERT_TRUE(home.sheets.current());
    EXPECT_EQ(*home.sheets.current(), sheets::importFailed(u"b.ambrelle"_s));
    answer(sheets::accept);
    EXPECT_FALSE(home.sheets.current());
    desk.accents.set(QColor(4, 5, 6), Skin::paper);
    home.undo.undo();
    EXPECT_TRUE(home.themes.themes().isEmpty());
    EXPECT_EQ(desk.accents.color(Skin::neon), std::nullopt);
    EXPECT_EQ(desk.accents.color(Skin::paper), QColor(4, 5, 6)) << "chosen since";

    home.model.addHandedFiles({good});
    ASSERT_TRUE(isOffered(u"“Work” added to My Themes"_s));
    desk.accents.set(QColor(7, 8, 9), Skin::neon);
    home.undo.undo();
    EXPECT_EQ(desk.accents.color(Skin::neon), QColor(7, 8, 9)) << "not the file's any more";

    home.model.addHandedFiles({bad});
    ASSERT_TRUE(waitUntil([&] { return home.sheets.current() != nullptr; }));
    EXPECT_EQ(wanted, 3) << "a failure must be seen";
    EXPECT_FALSE(home.undo.isShown());
}

TEST_F(ThemeActionsTest, WritesAFileThatCanBeTakenAgain)
{
    desk.add(WidgetKind::cpu, {100, 100}, Skin::neon);
    const QUuid id = save(u"Work"_s);
    const QString path = desk.folder.filePath(u"Work.ambrelle"_s);
    actions.exportTo(id, desk.folder.path());
    ASSERT_TRUE(waitUntil([&] { return home.undo.failure() != nullptr; }));
    home.undo.dismiss();
    actions.exportTo(id, path);
    ASSERT_TRUE(waitUntil([&] { return ThemeFiles::read(path).has_value(); }));
    EXPECT_EQ(ThemeFiles::read(path)->theme.name, u"Work"_s);
    EXPECT_FALSE(home.undo.failure());
}

} // namespace
} // namespace ambrelle
