// SPDX-License-Identifier: MIT

#include "wallpapers/PictureDesk.h"

#include <QSemaphore>
#include <QThreadPool>

namespace ambrelle {
namespace {

using DesktopWallpaperMemoryTest = PictureDesk;

TEST_F(DesktopWallpaperMemoryTest, TheUsersOwnPictureCanBeGivenBack)
{
    EXPECT_FALSE(wallpaper.hasPrevious());
    ASSERT_EQ(apply(Skin::mono), QString());
    picture.memory = {{u"uri"_s, u"one of ours"_s}};
    ASSERT_EQ(apply(Skin::neon), QString());
    ASSERT_TRUE(wallpaper.hasPrevious());

    picture.failure = u"Not now."_s;
    EXPECT_EQ(giveBackPrevious(), u"Not now."_s);
    EXPECT_TRUE(wallpaper.hasPrevious());
    picture.failure.clear();
    picture.shown = {{u"LEFT"_s, u"/home/user/holiday.jpg"_s}, {u"RIGHT"_s, u"/home/user/garden.jpg"_s}};
    EXPECT_EQ(giveBackPrevious(), QString());
    EXPECT_EQ(picture.givenBack.last(), (QJsonObject{{u"uri"_s, u"holiday"_s}}));
    EXPECT_EQ(wallpaper.currentURL(), u"/home/user/holiday.jpg"_s) << "the desktop was asked";
    EXPECT_EQ(wallpaper.currentURL(host.screens().last()), u"/home/user/garden.jpg"_s);
    EXPECT_FALSE(wallpaper.hasPrevious());
    EXPECT_FALSE(giveBackPrevious().isEmpty());
}

TEST_F(DesktopWallpaperMemoryTest, APictureThatTheUserSetLaterIsRememberedInstead)
{
    ASSERT_EQ(apply(Skin::mono), QString());
    picture.shown[u"LEFT"_s] = u"/home/user/garden.jpg"_s;
    picture.memory = {{u"uri"_s, u"garden"_s}};
    ASSERT_EQ(apply(Skin::neon), QString());
    ASSERT_EQ(giveBackPrevious(), QString());
    EXPECT_EQ(picture.givenBack.last(), (QJsonObject{{u"uri"_s, u"garden"_s}}));
}

TEST_F(DesktopWallpaperMemoryTest, WhatShowedAtAnyMomentComesBack)
{
    using Memory = DesktopWallpaper::Memory;
    const auto remembered = [&] {
        return answerOf<Memory>([&](const auto& then) { wallpaper.remember(then); }, Answered::anyTime);
    };
    const auto giveBack = [&](const Memory& memory) {
        return answerOf<QString>([&](const auto& done) { wallpaper.giveBack(memory, done); }, Answered::anyTime);
    };
    const Memory usersOwn = remembered();
    EXPECT_TRUE(QFileInfo(picture.rememberFolders.last()).isDir());
    ASSERT_EQ(apply(Skin::mono), QString());
    const QJsonObject holiday = std::exchange(picture.memory, {{u"uri"_s, u"mono"_s}});
    const Memory ours = remembered();
    EXPECT_NE(picture.rememberFolders.last(), folders.wallpapers) << "what is kept there is wanted longer";

    ASSERT_EQ(apply(Skin::neon), QString());
    EXPECT_EQ(giveBack(ours), QString());
    EXPECT_EQ(picture.givenBack.last(), (QJsonObject{{u"uri"_s, u"mono"_s}}));
    EXPECT_EQ(wallpaper.currentSkin(), Skin::mono);
    EXPECT_EQ(wallpaper.currentSkin(host.screens().last()), Skin::mono);
    EXPECT_TRUE(wallpaper.hasPrevious());

    EXPECT_EQ(giveBack(usersOwn), QString());
    EXPECT_EQ(picture.givenBack.last(), holiday);
    EXPECT_EQ(wallpaper.currentURL(), u"/home/user/holiday.jpg"_s);
    EXPECT_FALSE(wallpaper.hasPrevious()) << "it shows already";
    EXPECT_EQ(giveBack(ours), QString());
    EXPECT_TRUE(wallpaper.hasPrevious()) << "the other way round";
    EXPECT_EQ(giveBackPrevious(), QString());
    EXPECT_EQ(picture.givenBack.last(), holiday);

    picture.failure = u"Not now."_s;
    EXPECT_EQ(giveBack(ours), u"Not now."_s);
    EXPECT_FALSE(wallpaper.hasPrevious());
    picture.memory = {};
    EXPECT_FALSE(remembered().isKnown());
    EXPECT_FALSE(giveBack(remembered()).isEmpty());
}

TEST_F(DesktopWallpaperMemoryTest, RemembersWhateverElseIsUnderWay)
{
    QSemaphore end;
    QThreadPool& others = *QThreadPool::globalInstance();
    const int usual = others.maxThreadCount();
    others.setMaxThreadCount(1);
    others.start([&end] { end.acquire(); }); // waits for a network, maybe
    const bool isKnown = answerOf<bool>(
        [this](const auto& done) {
            wallpaper.remember([done](const DesktopWallpaper::Memory& memory) { done(memory.isKnown()); });
        },
        Answered::anyTime);
    EXPECT_TRUE(isKnown);
    end.release();
    others.waitForDone();
    others.setMaxThreadCount(usual);
}

TEST_F(DesktopWallpaperMemoryTest, WhatIsGivenBackAndWhatIsAppliedComeInTheirOrder)
{
    picture.isDeferred = true;
    const auto settle = [&](Skin skin) {
        return waitUntil([&] {
            picture.answer();
            return wallpaper.currentSkin() == skin && wallpaper.wantedSkin() == skin && picture.waiting() == 0;
        });
    };
    DesktopWallpaper::Memory ours;
    ours.desktop = {{u"uri"_s, u"mono"_s}};
    for (const ScreenInfo& screen : host.screens())
        ours.files.insert(screen.connector, path(u"mono-r16-1x1.png"_s));
    wallpaper.apply(Skin::neon);
    wallpaper.giveBack(ours);
    EXPECT_EQ(wallpaper.wantedSkin(), Skin::mono);
    EXPECT_TRUE(settle(Skin::mono));
    EXPECT_TRUE(picture.sets.isEmpty());
    wallpaper.giveBack(ours);
    wallpaper.apply(Skin::neon);
    EXPECT_TRUE(settle(Skin::neon));
}

TEST_F(DesktopWallpaperMemoryTest, WhatWasOvertakenButShowsIsWhatComesBack)
{
    picture.isDeferred = true;
    wallpaper.apply(Skin::neon);
    ASSERT_TRUE(waitUntil([&] {
        if (picture.sets.isEmpty())
            picture.answer();
        return !picture.sets.isEmpty();
    }));
    std::optional<DesktopWallpaper::Memory> before;
    const auto keep = [&](const DesktopWallpaper::Memory& memory) { before = memory; };
    wallpaper.apply(Skin::mono, host.screens(), {}, keep); // while the desktop is busy with the first
    ASSERT_TRUE(waitUntil([&] {
        picture.answer();
        return wallpaper.currentSkin() == Skin::mono;
    }));
    ASSERT_TRUE(before);
    EXPECT_EQ(before->current, path(u"neon-r16-801x600.png"_s));
    EXPECT_EQ(before->files.value(u"RIGHT"_s), path(u"neon-r16-640x480.png"_s));
}

/// As after a kill while it was painted: the program's end waits for the painter, so an answer that never comes does
/// for it.
TEST_F(DesktopWallpaperMemoryTest, WhatCouldNotBeFinishedIsShownByTheNextStart)
{
    const QString dunes = folder.write(u"Extras/dunes.jpg"_s, "sand");
    const QString garden = folder.write(u"garden.jpg"_s, "green");
    const QString older = u"/home/user/holiday.jpg"_s;
    struct Case {
        const char* what;
        std::function<void(DesktopWallpaper&)> ask;
        QString shown; ///< on the left screen at the next start
        QString left, right; ///< what shows in the end
    };
    const auto askForKyoto = [](DesktopWallpaper& asked) { asked.apply(Skin::kyoto); };
    const QString kyotoLeft = path(u"kyoto-r16-801x600.png"_s);
    const QString kyotoRight = path(u"kyoto-r16-640x480.png"_s);
    for (const Case& c : {
             Case{"a skin's", askForKyoto, older, kyotoLeft, kyotoRight},
             Case{"on one screen", [this](auto& asked) { asked.apply(Skin::kyoto, {host.screens().last()}); }, older,
                 older, kyotoRight},
             Case{"a shipped one", [&](auto& asked) { asked.applyExtra(dunes); }, older, path(u"extra-dunes.jpg"_s),
                 path(u"extra-dunes.jpg"_s)},
             Case{"the user's own", [&](auto& asked) { asked.apply(garden); }, older, garden, garden},
             Case{"the user chose one meanwhile", askForKyoto, garden, garden, kyotoRight},
             Case{"the last of two", [&](auto& asked) { asked.apply(garden), asked.apply(Skin::kyoto); }, older,
                 kyotoLeft, kyotoRight},
         }) {
        SCOPED_TRACE(c.what);
        UserDefaults store = UserDefaults::temporary();
        picture.shown = {{u"LEFT"_s, older}, {u"RIGHT"_s, older}};
        {
            DesktopWallpaper killed(painter, host, picture, store, folders);
            killed.refresh([] {});
            c.ask(killed);
        }
        picture.shown[u"LEFT"_s] = c.shown;
        QDir(folder.filePath(u"Wallpapers"_s)).removeRecursively();
        DesktopWallpaper next(painter, host, picture, store, folders);
        next.restore();
        EXPECT_TRUE(waitUntil(
            [&] { return picture.shown.value(u"LEFT"_s) == c.left && picture.shown.value(u"RIGHT"_s) == c.right; }));
        picture.sets.clear();
        DesktopWallpaper later(painter, host, picture, store, folders);
        later.restore();
        EXPECT_EQ(later.wantedSkin(), later.currentSkin()) << "it is not asked for again";
    }
}

TEST_F(DesktopWallpaperMemoryTest, APictureThatEndsEveryStartIsGivenUp)
{
    int starts = 0;
    wallpaper.apply(Skin::kyoto);
    for (bool isWanted = true; isWanted && starts < 10; ++starts) {
        DesktopWallpaper next(painter, host, picture, defaults, folders);
        next.restore();
        isWanted = next.wantedSkin() == Skin::kyoto;
    }
    EXPECT_EQ(starts, 4);
}

} // namespace
} // namespace ambrelle
