// SPDX-License-Identifier: MIT

#include "app/WidgetActions.h"

#include "foundation/ManualClock.h"
#include "platform/headless/HeadlessPorts.h"
#include "platform/recording/RecordingMachine.h"
#include "services/NowPlayingService.h"

#include <gmock/gmock.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WidgetActionsTest : public ::testing::Test {
protected:
    QStringList opened(WidgetKind kind, const QStringList& installed, const QStringList& desktops = {})
    {
        launcher.installed = installed;
        launcher.opened.clear();
        complaint = WidgetActions(launcher, player, desktops).open(kind);
        EXPECT_TRUE(complaint.isEmpty() || launcher.opened.isEmpty()) << "it was opened all the same";
        return launcher.opened;
    }
    void play(const Player& running)
    {
        players.running = {running};
        players.answers[running.id] = PlayerTrack{.isPlaying = true, .title = u"Song"_s};
        player.start();
        player.poll();
    }

    QString complaint;
    RecordingPrograms launcher;
    RecordingPlayers players;
    HeadlessHttpClient http;
    ManualClock clock;
    NowPlayingService player{players, http, clock};
};

TEST_F(WidgetActionsTest, TheRunningDesktopsOwnProgramComesFirst)
{
    const QStringList installed{u"org.gnome.Calendar"_s, u"org.kde.korganizer"_s, u"thunderbird"_s};
    EXPECT_THAT(opened(WidgetKind::events, installed, {u"KDE"_s}), ElementsAre(u"org.kde.korganizer"_s));
    EXPECT_THAT(opened(WidgetKind::events, installed, {u"ubuntu"_s, u"GNOME"_s}), ElementsAre(u"org.gnome.Calendar"_s));
    EXPECT_THAT(opened(WidgetKind::events, {u"thunderbird"_s}, {u"KDE"_s}), ElementsAre(u"thunderbird"_s))
        << "another desktop's program is better than none";
    EXPECT_THAT(
        opened(WidgetKind::clock, {u"gnome-datetime-panel"_s}, {u"GNOME"_s}), ElementsAre(u"gnome-datetime-panel"_s))
        << "without a clock the settings of date and time";
    EXPECT_THAT(opened(WidgetKind::clock, {u"gnome-datetime-panel"_s, u"org.kde.kclock"_s}, {u"GNOME"_s}),
        ElementsAre(u"org.kde.kclock"_s))
        << "a clock of another desktop is one";
    EXPECT_EQ(complaint, QString());
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        EXPECT_THAT(opened(kind, {}), IsEmpty());
        EXPECT_EQ(complaint.isEmpty(), !WidgetActions::hasAction(kind)) << "a click does nothing, and says nothing";
    }
    opened(WidgetKind::events, {});
    EXPECT_EQ(complaint, u"No calendar program found"_s);
}

TEST_F(WidgetActionsTest, KindsWithoutAnActionOpenNothing)
{
    const QStringList everything{u"org.gnome.Music"_s, u"org.gnome.Calendar"_s, u"org.gnome.clocks"_s};
    for (const WidgetKind kind : {WidgetKind::photo, WidgetKind::focus, WidgetKind::quote}) {
        EXPECT_FALSE(WidgetActions::hasAction(kind));
        EXPECT_THAT(opened(kind, everything), IsEmpty());
    }
    EXPECT_TRUE(WidgetActions::hasAction(WidgetKind::activity)) << "whatever is installed";
}

TEST_F(WidgetActionsTest, ThePlayerOfTheShownTrackComesForward)
{
    const QStringList installed{u"org.gnome.Music"_s, u"mpv"_s};
    EXPECT_THAT(opened(WidgetKind::nowPlaying, installed), ElementsAre(u"org.gnome.Music"_s)) << "nothing plays";

    play({.id = u"a"_s, .name = u"A"_s, .canRaise = true, .program = u"a"_s});
    EXPECT_THAT(opened(WidgetKind::nowPlaying, installed), IsEmpty());
    EXPECT_THAT(players.commands, ElementsAre(std::pair(u"a"_s, PlayerCommand::raise)));

    play({.id = u"b"_s, .name = u"B"_s, .canRaise = false, .program = u"mpv"_s});
    EXPECT_THAT(opened(WidgetKind::nowPlaying, installed), ElementsAre(u"mpv"_s));
    EXPECT_EQ(players.commands.size(), 1);

    for (const QString& program : {QString(), u"not.installed"_s}) {
        play({.id = u"c"_s, .name = u"C"_s, .canRaise = false, .program = program});
        EXPECT_THAT(opened(WidgetKind::nowPlaying, installed), ElementsAre(u"org.gnome.Music"_s))
            << "it can neither come forward nor be opened: " << qPrintable(program);
    }
}

} // namespace
} // namespace ambrelle
