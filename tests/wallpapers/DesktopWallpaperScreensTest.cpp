// SPDX-License-Identifier: MIT

#include "wallpapers/PictureDesk.h"

namespace ambrelle {
namespace {

using DesktopWallpaperScreensTest = PictureDesk;

TEST_F(DesktopWallpaperScreensTest, AMainScreenThatChangedKeepsAPictureOfTheUsers)
{
    ASSERT_EQ(apply(Skin::kyoto), QString());
    picture.shown[u"LEFT"_s] = u"/home/user/garden.jpg"_s;
    ScreenInfo narrow = host.screens().first();
    narrow.frame.setWidth(200);
    host.setScreens({narrow, host.screens().last()});
    wallpaper.fitScreens();
    EXPECT_FALSE(waitUntil([this] { return picture.sets.size() > 1; }, 200));
}

TEST_F(DesktopWallpaperScreensTest, AScreenThatGoesMeanwhileKeepsTheOthersFromNothing)
{
    const QList<ScreenInfo> both = host.screens();
    QString error = u"no answer"_s;
    wallpaper.apply(Skin::neon, [&](const QString& sentence) { error = sentence; });
    host.setScreens({both.first()});
    wallpaper.fitScreens();
    ASSERT_TRUE(waitUntil([&] { return wallpaper.currentSkin() == Skin::neon; }));
    EXPECT_EQ(error, QString());
    EXPECT_EQ(picture.sets.last(), (QList<ScreenPicture>{{u"LEFT"_s, path(u"neon-r16-801x600.png"_s)}}));
    picture.shown.remove(u"RIGHT"_s); // some desktops forget it
    host.setScreens(both);
    wallpaper.fitScreens();
    EXPECT_TRUE(waitUntil([this] { return picture.shown.value(u"RIGHT"_s) == path(u"neon-r16-640x480.png"_s); }));
}

TEST_F(DesktopWallpaperScreensTest, AScreenThatReturnsWithSomethingOfTheUsersKeepsIt)
{
    const QList<ScreenInfo> both = host.screens();
    ASSERT_EQ(apply(Skin::neon), QString());
    picture.shown.insert(u"RIGHT"_s, QString()); // a slide show, which has no file to tell of
    wallpaper.refresh([] {});
    ASSERT_TRUE(waitUntil([&] { return wallpaper.currentURL(both.last()).isEmpty(); }));
    for (const QList<ScreenInfo>& screens : {both.first(1), both}) {
        host.setScreens(screens);
        wallpaper.fitScreens();
    }
    const auto done = [this](const auto& then) { wallpaper.apply(Skin::mono, {host.screens().first()}, then); };
    ASSERT_EQ(answerOf<QString>(done, Answered::anyTime), QString()); // in its turn after whatever was ordered before
    EXPECT_EQ(picture.shown.value(u"RIGHT"_s), QString());
}

TEST_F(DesktopWallpaperScreensTest, AMainScreenThatWasNeverSeenGetsTheWallpaper)
{
    ASSERT_EQ(apply(Skin::kyoto), QString());
    ScreenInfo docked = host.screens().last();
    docked.connector = u"DOCK"_s;
    host.setScreens({docked});
    wallpaper.fitScreens();
    EXPECT_TRUE(waitUntil([this] { return picture.sets.size() == 2; }));
    EXPECT_EQ(picture.shown.value(u"DOCK"_s), path(u"kyoto-r16-640x480.png"_s));
    EXPECT_EQ(wallpaper.currentSkin(), Skin::kyoto);
}

TEST_F(DesktopWallpaperScreensTest, OnlyScreensThatChangedAndShowOursAreFitted)
{
    ASSERT_EQ(apply(Skin::kyoto), QString());
    const QString garden = u"/home/user/garden.jpg"_s;
    ScreenInfo left = host.screens().first();
    ScreenInfo right = host.screens().last();
    ScreenInfo third = right;
    third.connector = u"THIRD"_s;
    third.frame.moveLeft(2000);
    const auto name = [this](const QString& connector) {
        const QString file = picture.shown.value(connector);
        return file.startsWith(path({})) ? file.mid(path({}).size()) : file;
    };
    struct Case {
        const char* what;
        QString rightShows; ///< before
        QSizeF leftSize, rightSize, thirdSize; ///< none: not connected
        QString left, right, third; ///< afterwards; of our own pictures the name
        bool isSet; ///< whether anything is set for that
    };
    const QString kyoto = u"kyoto-r16-801x600.png"_s;
    const QString neon = u"neon-r16-640x480.png"_s;
    const QString neonLarge = u"neon-r16-700x500.png"_s;
    const QString kyotoThird = u"kyoto-r16-320x200.png"_s;
    const QSizeF usual(400.5, 300);
    for (const Case& row : {
             Case{"only a panel's strut", path(neon), usual, {640, 480}, {}, kyoto, neon, {}, false},
             Case{"another theme on the second screen", path(neon), usual, {700, 500}, {}, kyoto, neonLarge, {}, true},
             Case{"the user's own picture there", garden, usual, {800, 500}, {}, kyoto, garden, {}, false},
             Case{"a new screen", garden, usual, {800, 500}, {320, 200}, kyoto, garden, kyotoThird, true},
             Case{"one is unplugged", garden, usual, {}, {320, 200}, kyoto, garden, kyotoThird, false},
             Case{"and comes back", garden, usual, {800, 500}, {320, 200}, kyoto, garden, kyotoThird, false},
             Case{"the main one", garden, {200, 300}, {800, 500}, {320, 200}, u"kyoto-r16-400x600.png"_s, garden,
                 kyotoThird, true},
         }) {
        picture.shown[u"RIGHT"_s] = row.rightShows;
        picture.sets.clear();
        left.frame.setSize(row.leftSize);
        left.visibleFrame = left.frame.adjusted(0, 0, 0, -20);
        right.frame.setSize(row.rightSize);
        third.frame.setSize(row.thirdSize);
        QList<ScreenInfo> screens{left, right, third};
        screens.removeIf([](const ScreenInfo& screen) { return screen.frame.isEmpty(); });
        host.setScreens(screens);
        wallpaper.fitScreens();
        waitUntil([this] { return !picture.sets.isEmpty(); }, row.isSet ? 60'000 : 200);
        EXPECT_EQ(picture.sets.size(), row.isSet ? 1 : 0) << row.what;
        EXPECT_EQ(name(u"LEFT"_s), row.left) << row.what;
        EXPECT_EQ(name(u"RIGHT"_s), row.right) << row.what;
        EXPECT_EQ(name(u"THIRD"_s), row.third) << row.what;
        EXPECT_EQ(wallpaper.currentSkin(), Skin::kyoto) << row.what;
    }
}

TEST_F(DesktopWallpaperScreensTest, AScreenThatChangesWhileAPictureComesGetsItsSizeOfThat)
{
    ASSERT_EQ(apply(Skin::mono), QString());
    picture.isDeferred = true;
    wallpaper.apply(Skin::neon);
    QList<ScreenInfo> screens = host.screens();
    screens[1].frame.setSize({700, 500});
    host.setScreens(screens);
    wallpaper.fitScreens();
    const auto isFitted = [this] {
        picture.answer();
        return picture.shown.value(u"RIGHT"_s) == path(u"neon-r16-700x500.png"_s);
    };
    EXPECT_TRUE(waitUntil(isFitted));
    EXPECT_EQ(picture.shown.value(u"LEFT"_s), path(u"neon-r16-801x600.png"_s));
    EXPECT_EQ(wallpaper.wantedSkin(), Skin::neon);
}

TEST_F(DesktopWallpaperScreensTest, IsRestoredWhenTheFirstScreenComes)
{
    ASSERT_EQ(apply(Skin::kyoto), QString());
    picture.shown.clear();
    picture.memory = {};
    picture.sets.clear();
    const QList<ScreenInfo> screens = host.screens();
    host.setScreens({});
    DesktopWallpaper next(painter, host, picture, defaults, folders);
    next.restore([](Skin) { return Skin::paper; });
    next.fitScreens();
    host.setScreens(screens);
    next.fitScreens();
    ASSERT_TRUE(waitUntil([this] { return !picture.sets.isEmpty(); }));
    EXPECT_EQ(Wallpaper::skinOf(picture.shown.value(u"LEFT"_s)), Skin::paper);
    EXPECT_EQ(Wallpaper::skinOf(picture.shown.value(u"RIGHT"_s)), Skin::paper);
    next.fitScreens();
    EXPECT_EQ(picture.sets.size(), 1);
}

TEST_F(DesktopWallpaperScreensTest, ScreensThatAreServedInTurnAllGetTheirs)
{
    const ScreenInfo left = host.screens().first();
    const ScreenInfo right = host.screens().last();
    int answers = 0;
    const auto done = [&](const QString& error) {
        EXPECT_EQ(error, QString());
        ++answers;
    };
    wallpaper.apply(Skin::mono, {left}, done);
    wallpaper.apply(Skin::neon, {right}, done);
    wallpaper.apply(Skin::paper, {left}, done); // instead of the first
    ASSERT_TRUE(waitUntil([&] { return answers == 3; }));
    EXPECT_EQ(wallpaper.currentSkin(left), Skin::paper);
    EXPECT_EQ(wallpaper.currentSkin(right), Skin::neon);
    EXPECT_TRUE(QFile::exists(picture.shown.value(u"RIGHT"_s)));

    wallpaper.apply(Skin::mono, {right}, done);
    host.setScreens({left}); // unplugged meanwhile
    wallpaper.apply(Skin::neon, {left}, done);
    ASSERT_TRUE(waitUntil([&] { return answers == 5; }));
    EXPECT_EQ(picture.sets.last().size(), 1);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::neon);
}

} // namespace
} // namespace ambrelle
