// SPDX-License-Identifier: MIT

#include "wallpapers/DesktopWallpaper.h"

#include "foundation/UserDefaults.h"
#include "platform/recording/RecordingDesktopPicture.h"
#include "platform/recording/RecordingWindowHost.h"
#include "support/AnswerOf.h"
#include "support/FullDisk.h"
#include "support/PlainWallpaper.h"
#include "support/TestFolder.h"

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

struct DesktopWallpaperTest : testing::Test {
    DesktopWallpaperTest()
    {
        ScreenInfo left;
        left.connector = u"LEFT"_s;
        left.frame = QRectF(0, 0, 400.5, 300);
        left.pixelRatio = 2;
        ScreenInfo right;
        right.connector = u"RIGHT"_s;
        right.frame = QRectF(400, 0, 640, 480);
        host.setScreens({left, right});
        picture.shown = {{u"LEFT"_s, u"/home/user/holiday.jpg"_s}, {u"RIGHT"_s, u"/home/user/holiday.jpg"_s}};
        picture.memory = {{u"uri"_s, u"holiday"_s}};
        wallpaper.fitScreens(); // they came
    }

    QString path(const QString& name) const { return folder.filePath(u"Wallpapers/"_s + name); }
    QStringList files() const { return QDir(folder.filePath(u"Wallpapers"_s)).entryList(QDir::Files | QDir::Hidden); }

    /// With a skin or a file; gives what went wrong.
    QString apply(const auto& what)
    {
        return answerOf<QString>([&](const auto& done) { wallpaper.apply(what, done); }, Answered::anyTime);
    }
    QString giveBackPrevious()
    {
        return answerOf<QString>([this](const auto& done) { wallpaper.giveBackPrevious(done); }, Answered::anyTime);
    }

    const TestFolder folder;
    RecordingWindowHost host;
    RecordingDesktopPicture picture;
    UserDefaults defaults = UserDefaults::temporary();
    const PlainWallpaper plain;
    const Wallpaper painter = plain.painter();
    DesktopWallpaper::Folders folders{folder.filePath(u"Wallpapers"_s), folder.filePath(u"Extras"_s)};
    DesktopWallpaper wallpaper{painter, host, picture, defaults, folders};
};

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

TEST_F(DesktopWallpaperTest, ANewerRequestMakesTheOlderVoid)
{
    QString first = u"no answer"_s;
    wallpaper.apply(Skin::mono, [&](const QString& error) { first = error; });
    EXPECT_EQ(apply(Skin::neon), QString());
    EXPECT_EQ(first, QString());
    EXPECT_EQ(picture.sets.size(), 1);
    EXPECT_EQ(wallpaper.currentSkin(), Skin::neon);
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

TEST_F(DesktopWallpaperTest, TheUsersOwnPictureCanBeGivenBack)
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

TEST_F(DesktopWallpaperTest, APictureThatTheUserSetLaterIsRememberedInstead)
{
    ASSERT_EQ(apply(Skin::mono), QString());
    picture.shown[u"LEFT"_s] = u"/home/user/garden.jpg"_s;
    picture.memory = {{u"uri"_s, u"garden"_s}};
    ASSERT_EQ(apply(Skin::neon), QString());
    ASSERT_EQ(giveBackPrevious(), QString());
    EXPECT_EQ(picture.givenBack.last(), (QJsonObject{{u"uri"_s, u"garden"_s}}));
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

TEST_F(DesktopWallpaperTest, NewScreensGetTheirSizeOnlyOfOurPictures)
{
    ASSERT_EQ(apply(Skin::kyoto), QString());
    ScreenInfo large = host.screens().last();
    large.frame = QRectF(400, 0, 1000, 700);
    host.setScreens({host.screens().first(), large});
    wallpaper.fitScreens();
    ASSERT_TRUE(waitUntil([this] { return picture.sets.size() == 2; }));
    EXPECT_EQ(picture.sets.last().last().file, path(u"kyoto-r16-1000x700.png"_s));

    ASSERT_EQ(apply(path(u"kyoto-r16-640x480.png"_s)), QString());
    picture.shown[u"LEFT"_s] = u"/home/user/garden.jpg"_s;
    wallpaper.fitScreens();
    EXPECT_EQ(picture.sets.size(), 3);
}

TEST_F(DesktopWallpaperTest, AMainScreenThatWasNeverSeenGetsTheWallpaper)
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

TEST_F(DesktopWallpaperTest, OnlyScreensThatChangedAndShowOursAreFitted)
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

TEST_F(DesktopWallpaperTest, AScreenThatChangesWhileAPictureComesGetsItsSizeOfThat)
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

TEST_F(DesktopWallpaperTest, IsRestoredWhenTheFirstScreenComes)
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

TEST_F(DesktopWallpaperTest, ScreensThatAreServedInTurnAllGetTheirs)
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

TEST_F(DesktopWallpaperTest, WhatShowedAtAnyMomentComesBack)
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

TEST_F(DesktopWallpaperTest, WhatIsGivenBackAndWhatIsAppliedComeInTheirOrder)
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

} // namespace
