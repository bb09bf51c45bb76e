// SPDX-License-Identifier: MIT

#include "window/wallpapers/WallpapersModel.h"

#include "support/TestFolder.h"
#include "support/WaitUntil.h"
#include "window/cards/ShelfPictures.h"

#include <QItemSelectionModel>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using Custom = WallpaperShuffle::Custom;
using Extra = WallpaperShuffle::Extra;

WallpaperShelf shelfWithPictures()
{
    return {.own = {u"/far/Harbour at Dusk.png"_s, u"/far/Élan.jpg"_s},
        .photographs = {u"/shipped/field.jpg"_s},
        .facts = {{u"/far/Harbour at Dusk.png"_s, {true, QDateTime::fromSecsSinceEpoch(7)}}, {u"/far/Élan.jpg"_s, {}}}};
}

QStringList titles(const WallpapersModel& model)
{
    QStringList titles;
    for (int row = 0; row < model.rowCount(); ++row)
        titles.append(model.index(row).data(Qt::DisplayRole).toString());
    return titles;
}

TEST(PictureFilesTest, HundredsAreToldAtOnce)
{
    const TestFolder folder;
    QStringList paths{folder.write(u"there.png"_s, "x")};
    for (int number = 0; number < 300; ++number)
        paths.append(folder.filePath(QString::number(number)));
    PictureFiles files;
    int told = 0;
    QObject::connect(&files, &PictureFiles::changed, [&] { ++told; });
    files.look(paths);
    ASSERT_TRUE(waitUntil([&] { return files.facts(paths.last()).has_value(); }));
    EXPECT_EQ(told, 1) << "all cards are made anew each time";
    EXPECT_TRUE(files.facts(paths.first())->isThere);
    EXPECT_FALSE(files.facts(paths.last())->isThere);
    files.look(paths);
    files.list(folder.path(), [&](const QStringList&) { ++told; }); // after them
    ASSERT_TRUE(waitUntil([&] { return told == 2; }));
}

TEST(WallpapersModelTest, ShowsTheSectionsOfAScopeAndWhatIsSearchedFor)
{
    struct Case {
        WallpapersScope scope;
        QString search;
        QStringList begin;
        qsizetype rows;
        bool elsewhere = false;
    };
    const QString tile = u"Drop pictures here"_s;
    for (const Case& each : {
             Case{WallpapersScope::all, {},
                 {u"My Wallpapers"_s, u"Harbour at Dusk.png"_s, u"Élan.jpg"_s, tile, u"Photographs"_s, u"field.jpg"_s,
                     u"Themes"_s, u"Paper"_s, u"Neon"_s},
                 37},
             Case{WallpapersScope::themes, {}, {u"Themes"_s, u"Paper"_s}, 31},
             Case{WallpapersScope::photographs, u"  "_s, {u"Photographs"_s, u"field.jpg"_s}, 2},
             Case{WallpapersScope::all, u"field"_s,
                 {u"Photographs"_s, u"field.jpg"_s, u"Themes"_s, u"Field"_s, u"Field Dark"_s}, 5},
             Case{WallpapersScope::mine, u"DUSK harb"_s, {u"My Wallpapers"_s, u"Harbour at Dusk.png"_s}, 2},
             Case{WallpapersScope::mine, u"elan"_s, {u"My Wallpapers"_s, u"Élan.jpg"_s}, 2},
             Case{WallpapersScope::mine, u"neon"_s, {}, 0, true},
             Case{WallpapersScope::all, u"harbour neon"_s, {}, 0},
         }) {
        WallpapersModel model;
        WallpaperShelf shelf = shelfWithPictures();
        shelf.scope = each.scope;
        shelf.search = each.search;
        model.setShelf(shelf);
        EXPECT_EQ(titles(model).first(std::min(each.begin.size(), titles(model).size())), each.begin);
        EXPECT_EQ(model.rowCount(), each.rows) << each.search.toStdString();
        EXPECT_EQ(model.hasHitsElsewhere(), each.elsewhere) << each.search.toStdString();
    }
}

TEST(WallpapersModelTest, SaysWhatIsOnTheScreensOnItsWayGoneOrWithoutPreview)
{
    WallpaperShelf shelf = shelfWithPictures();
    shelf.shown = {Skin::neon, Custom{u"/far/Harbour at Dusk.png"_s}};
    shelf.working = Skin::paper;
    shelf.screens = 2;
    shelf.withoutPreview = {u"mono"_s};
    shelf.isForOneScreen = true;
    WallpapersModel model;
    model.setShelf(shelf);
    const auto card = [&](const WallpaperChoice& wallpaper) { return cardAt(model.indexOf(wallpaper)); };

    EXPECT_EQ(card(Skin::neon).pill, u"On Desktop");
    EXPECT_TRUE(card(Skin::neon).primaryTip.isEmpty());
    EXPECT_TRUE(card(Skin::neon).description.endsWith(u"On your desktop"_s)) << "the pill alone is seen only";
    EXPECT_EQ(card(Skin::paper).state, Card::State::working);
    EXPECT_EQ(card(Skin::paper).notice, u"Painting for 2 screens…");
    EXPECT_EQ(card(Skin::mono).state, Card::State::failed);
    EXPECT_TRUE(card(Skin::mono).usable) << "a missing preview is no reason not to set it";

    const Card own = card(Custom{u"/far/Harbour at Dusk.png"_s});
    EXPECT_EQ(own.pill, u"On Desktop");
    EXPECT_EQ(own.primaryTip, u"This picture is set on all screens") << "though one is chosen";
    const auto key = model.indexOf(Custom{u"/far/Harbour at Dusk.png"_s}).data(pictureKeyRole).value<PictureKey>();
    EXPECT_EQ(key, PictureKey::file(u"/far/Harbour at Dusk.png"_s, QDateTime::fromSecsSinceEpoch(7)))
        << "a file written over is another picture";
    const Card gone = card(Custom{u"/far/Élan.jpg"_s});
    EXPECT_FALSE(gone.usable);
    EXPECT_EQ(gone.notice, u"File not found");
    EXPECT_TRUE(gone.hasMenu) << "or it could not be taken off";
    const Card unknown = card(Extra{u"/shipped/field.jpg"_s});
    EXPECT_TRUE(unknown.usable && unknown.picture.isEmpty()) << "the disk has not answered";
}

TEST(WallpapersModelTest, KeepsWhatIsChosenWhileRowsComeAndGoBesideIt)
{
    WallpaperShelf shelf = shelfWithPictures();
    WallpapersModel model;
    model.setShelf(shelf);
    QItemSelectionModel selection(&model);
    selection.setCurrentIndex(model.indexOf(Skin::neon), QItemSelectionModel::ClearAndSelect);
    int resets = 0;
    QObject::connect(&model, &QAbstractItemModel::modelReset, [&] { ++resets; });

    shelf.own.prepend(u"/far/new.png"_s);
    shelf.own.append(u"/far/new.png"_s);
    model.setShelf(shelf);
    EXPECT_EQ(titles(model).first(3), QStringList({u"My Wallpapers"_s, u"new.png"_s, u"Harbour at Dusk.png"_s}));
    EXPECT_EQ(titles(model).count(u"new.png"_s), 1) << "listed twice, shown once";
    EXPECT_EQ(cardAt(model.index(0)).caption, u"3 pictures");
    EXPECT_EQ(model.wallpaper(selection.currentIndex()), WallpaperChoice(Skin::neon));
    shelf.own = {};
    model.setShelf(shelf);
    EXPECT_TRUE(model.isTile(model.index(1)));
    EXPECT_EQ(model.wallpaper(selection.currentIndex()), WallpaperChoice(Skin::neon));
    EXPECT_EQ(resets, 0);
}

} // namespace
} // namespace ambrelle
