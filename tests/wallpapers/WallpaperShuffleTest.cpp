// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperShuffle.h"

#include "foundation/UserDefaults.h"
#include "platform/recording/RecordingDesktopPicture.h"
#include "platform/recording/RecordingWindowHost.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"
#include "wallpapers/DesktopWallpaper.h"

#include <QCoreApplication>
#include <QThread>

#include <atomic>
#include <semaphore>

using namespace ambrelle;
using namespace Qt::StringLiterals;
using Candidate = WallpaperShuffle::Candidate;
using Custom = WallpaperShuffle::Custom;
using Extra = WallpaperShuffle::Extra;

namespace {

void paintNothing(Painting&, SeededRandom&) { }

struct WallpaperShuffleTest : testing::Test {
    WallpaperShuffleTest()
    {
        ScreenInfo screen;
        screen.connector = u"MAIN"_s;
        screen.frame = QRectF(0, 0, 40, 30);
        host.setScreens({screen});
        custom = {home.write(u"custom/one.png"_s, {}), home.write(u"custom/two.png"_s, {}),
            home.filePath(u"custom/gone.png"_s)};
        extra = home.write(u"extras/fjord.jpg"_s, "a picture");
    }

    QList<Candidate> candidatesWhileShowing(const QString& file)
    {
        picture.shown.insert(u"MAIN"_s, file);
        wallpaper.refresh([] {});
        return WallpaperShuffle::candidates(wallpaper, WallpaperShuffle::look(wallpaper.extrasFolder(), custom));
    }
    /// Shuffles, choosing the last or the first, and gives the file shown then.
    QString shuffled(bool last)
    {
        const qsizetype before = picture.sets.size();
        shuffle.shuffle(custom, [last](qsizetype count) { return last ? count - 1 : 0; });
        EXPECT_TRUE(waitUntil([&] { return picture.sets.size() != before; }));
        return picture.shown.value(u"MAIN"_s);
    }

    const TestFolder home;
    RecordingWindowHost host;
    RecordingDesktopPicture picture;
    UserDefaults defaults = UserDefaults::temporary();
    DesktopWallpaper wallpaper{Wallpaper([](Skin) -> WallpaperRecipe { return paintNothing; }, {}), host, picture,
        defaults, {home.filePath(u"wallpapers"_s), home.filePath(u"extras"_s)}};
    WallpaperShuffle shuffle{wallpaper};
    QStringList custom;
    QString extra;
};

TEST_F(WallpaperShuffleTest, EverythingButWhatShowsIsACandidate)
{
    const qsizetype skins = static_cast<qsizetype>(allCases<Skin>().size());
    const struct {
        QString shown;
        std::optional<Candidate> missing;
    } cases[] = {
        {u"/home/user/holiday.jpg"_s, std::nullopt},
        {QString(), std::nullopt},
        {u"/anywhere/neon-r3-800x600.png"_s, Skin::neon},
        {wallpaper.installedURL(extra), Extra{extra}},
        {custom.at(1), Custom{custom.at(1)}},
    };
    for (const auto& each : cases) {
        const QList<Candidate> list = candidatesWhileShowing(each.shown);
        EXPECT_EQ(list.size(), skins + 3 - (each.missing ? 1 : 0)) << qPrintable(each.shown);
        EXPECT_FALSE(each.missing && list.contains(*each.missing));
    }
    custom.append(custom.first());
    EXPECT_EQ(candidatesWhileShowing({}).size(), skins + 3) << "none is twice as likely";
}

TEST_F(WallpaperShuffleTest, PutsTheChosenOneOnTheDesktop)
{
    picture.shown.insert(u"MAIN"_s, custom.at(0)); // set by the user, behind our back
    EXPECT_EQ(shuffled(true), custom.at(1)) << "the last candidate, and not the picture that shows";
    EXPECT_EQ(shuffled(true), custom.at(0));
    const Skin first = allCases<Skin>().front();
    EXPECT_EQ(Wallpaper::skinOf(shuffled(false)), first);
    EXPECT_NE(Wallpaper::skinOf(shuffled(false)), first);
    custom.clear();
    EXPECT_EQ(shuffled(true), wallpaper.installedURL(extra));
}

TEST_F(WallpaperShuffleTest, ADiskThatDoesNotAnswerHoldsNobodyUp)
{
    std::binary_semaphore answers{0};
    std::atomic<bool> isElsewhere = false;
    std::atomic<int> looks = 0;
    WallpaperShuffle slow(wallpaper, [&](const QString&, const QStringList& own) {
        ++looks;
        isElsewhere = QThread::currentThread() != QCoreApplication::instance()->thread();
        if (isElsewhere)
            answers.acquire();
        return WallpaperShuffle::Pictures{{}, own};
    });
    const auto last = [](qsizetype count) { return count - 1; };
    custom.removeLast(); // the one that has gone
    slow.shuffle(custom, last);
    slow.shuffle({}, last); // while the first one still waits
    EXPECT_TRUE(picture.sets.isEmpty());
    answers.release();
    ASSERT_TRUE(waitUntil([this] { return !picture.sets.isEmpty(); }));
    EXPECT_TRUE(isElsewhere);
    EXPECT_EQ(looks, 1);
    EXPECT_EQ(picture.shown.value(u"MAIN"_s), custom.last());
}

} // namespace
