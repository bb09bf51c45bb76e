// SPDX-License-Identifier: MIT

#include "support/FullDisk.h"
#include "wallpapers/PictureDesk.h"

namespace ambrelle {
namespace {

using DesktopWallpaperTest = PictureDesk;

TEST_F(DesktopWallpaperTest, EveryScreenGetsItsOwnSizeOnce)
{
    int changes = 0;
    QObject::connect(&wallpaper, &DesktopWallpaper::changed, [&] { ++changes; });
    EXPECT_EQ(apply(Skin::neon), QString());
    const QList<ScreenPicture> expected{
        {u"LEFT"_s, path(u"neon-r16-801x600.png"_s)}, {u"RIGHT"_s, path(u"neon-r16-640x480.png"_s)}};
    ASSERT_EQ(picture.sets.size(), 1);
    EXPECT_EQ(picture.sets.first(), expected);
    EXPECT_EQ(QImage(expected[0].file).size(), QSize(801, 600));
    EXPECT_EQ(wallpaper.currentURL(), expected[0].file);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::neon);
    EXPECT_EQ(apply(Skin::neon), QString());
    EXPECT_EQ(plain.painted, 2) << "files that are there are used again";
    EXPECT_EQ(changes, 1);
}

/// The toolkit tells such screens in whole points.
TEST_F(DesktopWallpaperTest, FractionalRatiosGiveTheDisplaysOwnSize)
{
    ScreenInfo screen = host.screens().first();
    for (const auto& [ratio, points, pixels] : {
             std::tuple{1.75, QSize(185, 114), QSize(324, 200)},
             std::tuple{1.5, QSize(171, 160), QSize(256, 240)},
             std::tuple{1.25, QSize(437, 307), QSize(546, 384)},
         }) {
        screen.pixelRatio = ratio;
        screen.frame.setSize(points);
        host.setScreens({screen});
        ASSERT_EQ(apply(Skin::neon), QString());
        EXPECT_EQ(wallpaper.currentURL(), path(Wallpaper::fileName(Skin::neon, pixels))) << ratio;
    }
}

/// Whatever the desktop answers late, and in whatever order the requests come between its answers.
TEST_F(DesktopWallpaperTest, WhatWasAskedForLastCounts)
{
    ASSERT_EQ(apply(Skin::mono), QString());
    picture.sets.clear();
    picture.isDeferred = true;
    const auto answerOnce = [this] {
        ASSERT_TRUE(waitUntil([this] { return picture.waiting() > 0; }));
        picture.answer();
    };
    int told = 0;
    wallpaper.refresh([&] { ++told; });
    wallpaper.apply(Skin::paper);
    EXPECT_EQ(wallpaper.wantedSkin(), Skin::paper);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::mono);
    answerOnce(); // what showed when refresh() asked
    EXPECT_EQ(told, 1);
    EXPECT_EQ(wallpaper.wantedSkin(), Skin::paper);
    ASSERT_TRUE(waitUntil([this] { return picture.waiting() > 0; })); // painted; what showed before is looked up
    wallpaper.apply(Skin::neon);
    while (picture.sets.isEmpty())
        answerOnce();
    EXPECT_EQ(Wallpaper::skinOf(picture.sets.first().first().file), Skin::neon) << "the older one was void";
    wallpaper.refresh([&] { ++told; }); // asks before the picture is set, and hears of it afterwards
    picture.answer();
    EXPECT_EQ(wallpaper.wantedSkin(), Skin::neon);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::neon);

    picture.failure = u"The desktop refuses."_s;
    wallpaper.apply(Skin::paper);
    while (picture.sets.size() < 2)
        answerOnce();
    picture.answer();
    EXPECT_EQ(wallpaper.wantedSkin(), Skin::neon) << "what failed is wanted no longer";
}

TEST_F(DesktopWallpaperTest, FailuresLeaveTheOldPictureAndNoHalfFile)
{
    ASSERT_EQ(apply(Skin::mono), QString());
    picture.failure = u"The desktop refuses."_s;
    EXPECT_EQ(apply(Skin::neon), u"The desktop refuses."_s);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::mono);
    picture.failure.clear();

    EXPECT_TRUE(apply(u"/nowhere/at/all.png"_s).contains("cannot be read"_L1));
    EXPECT_EQ(picture.sets.size(), 2) << "what cannot be read is not set";

    const QStringList before = files();
    QFile::rename(folder.filePath(u"Wallpapers"_s), folder.filePath(u"Away"_s));
    const QString inTheWay = folder.write(u"Wallpapers"_s, {});
    EXPECT_TRUE(apply(Skin::paper).contains("cannot be written"_L1));
    QFile::remove(inTheWay);
    QFile::rename(folder.filePath(u"Away"_s), folder.filePath(u"Wallpapers"_s));
    EXPECT_EQ(files(), before);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::mono);

    host.setScreens({});
    EXPECT_FALSE(apply(Skin::neon).isEmpty());
    picture.unavailable = u"There is no desktop."_s;
    EXPECT_EQ(apply(Skin::neon), u"There is no desktop."_s);
}

TEST_F(DesktopWallpaperTest, AFullDiskLeavesNothingBehind)
{
    const test::FullDisk disk;
    EXPECT_TRUE(apply(Skin::neon).contains("cannot be written"_L1));
    EXPECT_EQ(files(), QStringList());
    EXPECT_TRUE(picture.sets.isEmpty());
}

TEST_F(DesktopWallpaperTest, RecognisesItsPictureAfterARestart)
{
    ASSERT_EQ(apply(Skin::kyoto), QString());
    DesktopWallpaper next(painter, host, picture, defaults, folders);
    EXPECT_EQ(next.currentSkin(), std::nullopt);
    int asked = 0;
    next.refresh([&] { ++asked; });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(next.currentSkin(), Skin::kyoto);
    picture.shown[u"LEFT"_s] = u"/home/user/garden.jpg"_s;
    next.refresh([] {});
    EXPECT_EQ(next.currentSkin(), std::nullopt);
    EXPECT_EQ(next.currentURL(), u"/home/user/garden.jpg"_s);
}

TEST_F(DesktopWallpaperTest, ComesBackWhereTheDesktopForgotIt)
{
    struct Case {
        const char* what;
        QString shown;
        QJsonObject memory;
        bool comesBack;
    };
    ASSERT_EQ(apply(Skin::kyoto), QString());
    for (const Case& c : {
             Case{"nothing shows", {}, {}, true},
             Case{"something shows that nobody knows", {}, {{u"file"_s, u"saved.png"_s}}, false},
             Case{"the user's picture shows", u"/home/user/garden.jpg"_s, {{u"uri"_s, u"garden"_s}}, false},
         }) {
        picture.shown[u"LEFT"_s] = c.shown;
        picture.memory = c.memory;
        picture.sets.clear();
        DesktopWallpaper next(painter, host, picture, defaults, folders);
        next.restore();
        waitUntil([&] { return c.comesBack && !picture.sets.isEmpty(); }, c.comesBack ? 60'000 : 200);
        EXPECT_EQ(picture.sets.size(), c.comesBack ? 1 : 0) << c.what;
    }
}

TEST_F(DesktopWallpaperTest, TheSecondScreensPictureIsNotTheMainOnes)
{
    ASSERT_EQ(apply(Skin::kyoto), QString());
    const auto onSecond = [this](const auto& done) { wallpaper.apply(Skin::neon, {host.screens().last()}, done); };
    EXPECT_EQ(answerOf<QString>(onSecond, Answered::anyTime), QString());
    EXPECT_EQ(picture.shown.value(u"RIGHT"_s), path(u"neon-r16-640x480.png"_s));
    EXPECT_EQ(wallpaper.currentSkin(), Skin::kyoto);
    wallpaper.apply(Skin::paper, {host.screens().last()});
    EXPECT_EQ(wallpaper.wantedSkin(), Skin::kyoto) << "under way";

    picture.shown.clear(); // forgotten, as by some desktops
    picture.memory = {};
    DesktopWallpaper next(painter, host, picture, defaults, folders);
    next.restore();
    EXPECT_EQ(next.wantedSkin(), Skin::kyoto) << "the next start";
}

TEST_F(DesktopWallpaperTest, ExtrasAreCopiedOnceAndOnlyPictures)
{
    EXPECT_EQ(DesktopWallpaper::extrasIn(folders.extras), QStringList());
    for (const QString& name : {u"dunes.jpg"_s, u"sea.jpeg"_s, u"notes.txt"_s})
        folder.write(u"Extras/"_s + name, name.toUtf8());
    const QString dunes = folders.extras + u"/dunes.jpg"_s;
    EXPECT_EQ(DesktopWallpaper::extrasIn(folders.extras), (QStringList{dunes, folders.extras + u"/sea.jpeg"_s}));
    const QString installed = path(u"extra-dunes.jpg"_s);
    EXPECT_EQ(wallpaper.installedURL(dunes), installed);
    for (int round = 0; round < 2; ++round) {
        const auto applyDunes = [&](const auto& done) { wallpaper.applyExtra(dunes, done); };
        EXPECT_EQ(answerOf<QString>(applyDunes, Answered::anyTime), QString());
        EXPECT_EQ(wallpaper.currentURL(), installed);
        EXPECT_EQ(wallpaper.currentSkin(), std::nullopt);
        QFile(dunes).remove();
    }
}

TEST_F(DesktopWallpaperTest, KnowsWhatEveryScreenShows)
{
    const ScreenInfo left = host.screens().first();
    const ScreenInfo right = host.screens().last();
    int changes = 0;
    QObject::connect(&wallpaper, &DesktopWallpaper::changed, [&] { ++changes; });
    picture.shown[u"RIGHT"_s] = u"/home/user/garden.jpg"_s;
    wallpaper.refresh([] {});
    EXPECT_EQ(wallpaper.currentURL(left), u"/home/user/holiday.jpg"_s);
    EXPECT_EQ(wallpaper.currentURL(right), u"/home/user/garden.jpg"_s);
    EXPECT_EQ(changes, 1);
    const auto onRight = [&](Skin skin) {
        return answerOf<QString>([&](const auto& done) { wallpaper.apply(skin, {right}, done); }, Answered::anyTime);
    };
    EXPECT_EQ(onRight(Skin::neon), QString());
    EXPECT_EQ(wallpaper.currentSkin(right), Skin::neon);
    EXPECT_EQ(wallpaper.currentURL(left), u"/home/user/holiday.jpg"_s);
    EXPECT_EQ(changes, 2) << "of the second screen alone";

    picture.hasOneForEach = false; // one picture for all
    EXPECT_EQ(onRight(Skin::mono), QString());
    EXPECT_EQ(picture.sets.last().first().connector, left.connector) << "painted in its size";
    EXPECT_EQ(wallpaper.currentSkin(left), Skin::mono);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::mono);
    DesktopWallpaper next(painter, host, picture, defaults, folders);
    next.refresh([] {});
    EXPECT_EQ(next.currentSkin(right), Skin::mono);
}

} // namespace
} // namespace ambrelle
