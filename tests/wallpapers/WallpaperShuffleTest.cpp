// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperShuffle.h"

#include "foundation/UserDefaults.h"
#include "platform/recording/RecordingDesktopPicture.h"
#include "platform/recording/RecordingWindowHost.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"
#include "wallpapers/DesktopWallpaper.h"

using namespace ambrelle;
using namespace Qt::StringLiterals;
using WallpaperShuffle::Candidate;
using WallpaperShuffle::Custom;
using WallpaperShuffle::Extra;

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
        extra = home.write(u"extras/fjord.jpg"_s, {});
    }

    QList<Candidate> candidatesWhileShowing(const QString& file)
    {
        picture.shown.insert(u"MAIN"_s, file);
        wallpaper.refresh([] {});
        return WallpaperShuffle::candidates(wallpaper, custom);
    }
    /// Shuffles, choosing the last or the first, and gives the file shown then.
    QString shuffled(bool last)
    {
        const qsizetype before = picture.sets.size();
        WallpaperShuffle::shuffle(wallpaper, custom, [last](qsizetype count) { return last ? count - 1 : 0; });
        EXPECT_TRUE(waitUntil([&] { return picture.sets.size() != before; }));
        return picture.shown.value(u"MAIN"_s);
    }

    const TestFolder home;
    RecordingWindowHost host;
    RecordingDesktopPicture picture;
    UserDefaults defaults = UserDefaults::temporary();
    DesktopWallpaper wallpaper{Wallpaper([](Skin) -> WallpaperRecipe { return paintNothing; }, {}), host, picture,
        defaults, {home.filePath(u"wallpapers"_s), home.filePath(u"extras"_s)}};
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

} // namespace
