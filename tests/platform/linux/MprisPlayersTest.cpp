// SPDX-License-Identifier: MIT

#include "platform/linux/PlayerBus.h"

#include <QPoint>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

class MprisPlayersTest : public PlayerBusTest { };

TEST_F(MprisPlayersTest, KnowsWhoRuns)
{
    const auto spotify = fake(u"spotify"_s, u"Spotify"_s);
    auto vlc = fake(u"vlc.instance7"_s, u"VLC media player"_s);
    ASSERT_TRUE(bus.connection(u"stranger"_s).registerService(u"org.mpris.MediaPlayer2x.other"_s));
    EXPECT_TRUE(players.players().isEmpty());
    players.start();
    players.start();
    ASSERT_TRUE(waitUntil([this] { return names().size() == 2; }));
    EXPECT_THAT(names(), ElementsAre(u"VLC media player"_s, u"Spotify"_s));

    const auto nameless = fake(u"web.instance12"_s, {});
    const auto amarok = fake(u"amarok"_s, u"Amarok"_s);
    ASSERT_TRUE(waitUntil([this] { return names().size() == 4; }));
    EXPECT_THAT(names(), ElementsAre(u"Amarok"_s, u"VLC media player"_s, u"web"_s, u"Spotify"_s));

    vlc.reset();
    ASSERT_TRUE(waitUntil([this] { return names().size() == 3; }));
    EXPECT_THAT(names(), ElementsAre(u"Amarok"_s, u"web"_s, u"Spotify"_s));
}

TEST_F(MprisPlayersTest, ASecondPlayerTakesOver)
{
    const auto music = fake(u"music"_s, u"Music"_s);
    const auto spotify = fake(u"spotify"_s, u"Spotify"_s);
    spotify->self[u"DesktopEntry"_s] = u"spotify-client"_s;
    service.start();
    music->play(u"one"_s);
    ASSERT_TRUE(waitForTitle(u"one"_s));
    const int before = music->asked;
    spotify->play(u"two"_s);
    ASSERT_TRUE(waitUntil([&] { return music->asked > before; }));
    EXPECT_EQ(title(), u"one"_s); // the first that plays stays
    music->play(u"one"_s, false);
    ASSERT_TRUE(waitForTitle(u"two"_s));
    EXPECT_EQ(service.track()->app, u"Spotify"_s);
    for (const auto command :
        {PlayerCommand::playPause, PlayerCommand::next, PlayerCommand::previous, PlayerCommand::raise})
        service.send(command);
    ASSERT_TRUE(waitUntil([&spotify] { return spotify->commands.size() == 4; }));
    EXPECT_THAT(
        spotify->commands, ElementsAre(u"Player.PlayPause"_s, u"Player.Next"_s, u"Player.Previous"_s, u"Raise"_s));
    EXPECT_EQ(service.player()->program, u"spotify-client"_s);
    EXPECT_TRUE(music->commands.isEmpty());

    spotify->play(u"two"_s, false);
    ASSERT_TRUE(waitForTitle(u"one"_s)); // both pause: the first
    EXPECT_FALSE(service.track()->isPlaying);
}

TEST_F(MprisPlayersTest, AsksOnlyAboutWhatItShows)
{
    const auto music = fake(u"music"_s, u"Music"_s);
    music->play(u"one"_s, false);
    int changes = 0;
    QObject::connect(&players, &PlayerSource::changed, [&changes] { ++changes; });
    players.start();
    ASSERT_TRUE(waitUntil([&changes] { return changes == 1; }));
    music->tell({{u"Volume"_s, 0.5}});
    music->tell({{u"Position"_s, qint64{5}}});
    music->tell({{u"Rate"_s, 2.0}});
    ASSERT_TRUE(waitUntil([&changes] { return changes > 1; }));
    EXPECT_EQ(changes, 2);

    music->state[u"Rate"_s] = 2.0;
    const QString id = players.players().first().id;
    EXPECT_TRUE(players.keepsTime(id));
    bool answered = false;
    players.query(id, &players, [&answered](const auto&) { answered = true; });
    ASSERT_TRUE(waitUntil([&answered] { return answered; }));
    EXPECT_FALSE(players.keepsTime(id));
}

TEST_F(MprisPlayersTest, BearsPlayersThatMisbehave)
{
    const auto broken = fake(u"a_broken"_s, u"Broken"_s);
    const auto hanging = fake(u"b_hanging"_s, u"Hanging"_s);
    const auto good = fake(u"good"_s, u"Good"_s);
    hanging->hangs = true;
    good->play(u"song"_s);
    players.start();
    ASSERT_TRUE(waitUntil([this] { return names().size() == 3; }));
    const QVariant wrong[] = {QStringList{u"a"_s}, QVariant::fromValue(QPoint(1, 2)), 5,
        QVariantMap{{u"xesam:title"_s, QVariant::fromValue(QPoint(1, 2))}, {u"xesam:artist"_s, QVariantMap()}}};
    const QString id = players.players().first().id;
    for (const QVariant& metadata : wrong) {
        broken->state = {{u"PlaybackStatus"_s, u"Playing"_s}, {u"Metadata"_s, metadata}, {u"Position"_s, metadata}};
        std::optional<PlayerTrack> answer;
        players.query(id, &players, [&answer](const auto& track) { answer = track; });
        ASSERT_TRUE(waitUntil([&answer] { return answer.has_value(); }));
        EXPECT_TRUE(answer->isPlaying);
        EXPECT_EQ(answer->title, u"Broken"_s);
    }
    broken->state.clear();
    service.start();
    EXPECT_TRUE(waitForTitle(u"song"_s));
    EXPECT_GT(hanging->asked, 0);
}

TEST_F(MprisPlayersTest, HandsOutPicturesInFiles)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a picture.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("bytes");
    file.close();
    const QString pipe = folder.filePath(u"pipe"_s); // somebody writes into it for ever
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe), 0600), 0);
    QFile writer(pipe);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    writer.write("bytes");
    const auto music = fake(u"music"_s, u"Music"_s);
    players.start();
    ASSERT_TRUE(waitUntil([this] { return names().size() == 1; }));
    const QString id = players.players().first().id;
    struct Case {
        QString address;
        qint64 mostBytes;
        QByteArray picture;
    };
    const Case cases[] = {{QUrl::fromLocalFile(file.fileName()).toString(QUrl::FullyEncoded), 5, "bytes"},
        {QUrl::fromLocalFile(file.fileName()).toString(QUrl::FullyEncoded), 4, {}}, {u"file:///dev/zero"_s, 5, {}},
        {QUrl::fromLocalFile(pipe).toString(), 5, {}}, {QUrl::fromLocalFile(folder.path()).toString(), 5, {}},
        {u"file:///missing"_s, 5, {}}, {u"ftp://p.example/a.png"_s, 5, {}}, {{}, 5, {}}};
    for (const Case& each : cases) {
        SCOPED_TRACE(each.address.toStdString());
        music->state = {{u"PlaybackStatus"_s, u"Paused"_s},
            {u"Metadata"_s, QVariantMap{{u"xesam:title"_s, u"a"_s}, {u"mpris:artUrl"_s, each.address}}}};
        std::optional<QByteArray> picture;
        players.query(id, &players, [&](const auto&) {
            players.artwork(id, each.mostBytes, &players, [&picture](const QByteArray& bytes) { picture = bytes; });
        });
        ASSERT_TRUE(waitUntil([&picture] { return picture.has_value(); }));
        EXPECT_EQ(*picture, each.picture);
    }
}

TEST_F(MprisPlayersTest, SaysThatThereIsNoBus)
{
    MprisPlayers nowhere([] { return QDBusConnection(u"none"_s); });
    nowhere.start();
    EXPECT_FALSE(nowhere.isAvailable());
    EXPECT_FALSE(nowhere.whyNot().isEmpty());
    EXPECT_TRUE(nowhere.players().isEmpty());
    nowhere.command(u"org.mpris.MediaPlayer2.mpv"_s, PlayerCommand::next);
    bool answered = false;
    nowhere.query(u"org.mpris.MediaPlayer2.mpv"_s, &nowhere, [&answered](const auto& track) {
        EXPECT_FALSE(track);
        answered = true;
    });
    EXPECT_TRUE(waitUntil([&answered] { return answered; }));
}

} // namespace
} // namespace ambrelle
