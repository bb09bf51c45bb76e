// SPDX-License-Identifier: MIT

#include "model/ThemeFiles.h"
#include "window/ThemeActionsDesk.h"

#include <QFile>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

struct SavedThemeActionsTest : ThemeActionsTest {
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

TEST_F(SavedThemeActionsTest, SavedDesktopsComeBackToTheirOldPlace)
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

TEST_F(SavedThemeActionsTest, SavesWithTheWallpaperThatShowsOrIsAboutTo)
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

TEST_F(SavedThemeActionsTest, ASavedDesktopIsMarkedUntilItIsAnother)
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

TEST_F(SavedThemeActionsTest, ImportsWhatIsGoodAndTellsOfTheRest)
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

TEST_F(SavedThemeActionsTest, WritesAFileThatCanBeTakenAgain)
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
