// SPDX-License-Identifier: MIT

#include "platform/linux/bus/MprisPlayers.h"

#include "platform/linux/kernel/SystemClock.h"
#include "platform/recording/RecordingHttpClient.h"
#include "services/NowPlayingService.h"
#include "support/AnswerOf.h"
#include "support/BusTest.h"
#include "support/TestFolder.h"

#include <QDBusVirtualObject>
#include <QPoint>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

const auto fakeFamily = u"org.mpris.MediaPlayer2"_s;
const auto fakePath = u"/org/mpris/MediaPlayer2"_s;

/// A player that says what the test wants.
class FakePlayer final : public QDBusVirtualObject {
public:
    FakePlayer(QDBusConnection bus, const QString& name, const QString& identity)
        : self{{u"Identity"_s, identity}}
        , m_bus(std::move(bus))
    {
        m_bus.registerVirtualObject(fakePath, this);
        m_bus.registerService(fakeFamily + u'.' + name);
    }
    ~FakePlayer() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        if (message.arguments().value(0) == fakeFamily)
            m_bus.send(message.createReply(QVariant(self)));
        else if (message.member() == "GetAll"_L1)
            answer(message);
        else
            commands.append(QString(message.interface() + u'.' + message.member()).mid(fakeFamily.size() + 1));
        return true;
    }
    /// Plays or pauses a song, and says so.
    void play(const QString& title, bool plays = true)
    {
        state[u"PlaybackStatus"_s] = plays ? u"Playing"_s : u"Paused"_s;
        state[u"Metadata"_s] = QVariantMap{{u"xesam:title"_s, title}};
        tell(state);
    }
    void tell(const QVariantMap& properties)
    {
        send(u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
            {fakeFamily + u".Player"_s, properties, QStringList()});
    }
    void seek(qint64 position) { send(fakeFamily + u".Player"_s, u"Seeked"_s, {position}); }

    QVariantMap self; ///< what it says of itself
    QVariantMap state;
    bool hangs = false;
    int asked = 0;
    QStringList commands; ///< with what follows the family in the name of their interface

private:
    void send(const QString& interface, const QString& name, const QVariantList& arguments)
    {
        auto signal = QDBusMessage::createSignal(fakePath, interface, name);
        signal.setArguments(arguments);
        m_bus.send(signal);
    }
    void answer(const QDBusMessage& message)
    {
        ++asked;
        if (!hangs)
            m_bus.send(message.createReply(QVariant(state)));
    }

    QDBusConnection m_bus;
};

/// A bus of the test's own, and the service that asks the players on it.
class MprisPlayersTest : public BusTest {
protected:
    std::unique_ptr<FakePlayer> fake(const QString& name, const QString& identity) const
    {
        return std::make_unique<FakePlayer>(bus.connection(name), name, identity);
    }
    QStringList names() const
    {
        QStringList names;
        for (const Player& player : players.players())
            names.append(player.name);
        return names;
    }
    /// The name on the bus of the only player.
    QString only() const
    {
        EXPECT_TRUE(waitUntil([this] { return names().size() == 1; }));
        return players.players().value(0).id;
    }
    static std::optional<PlayerTrack> query(MprisPlayers& asked, const QString& id)
    {
        return answerOf<std::optional<PlayerTrack>>(
            [&](const auto& take) { asked.query(id, &asked, take); }, Answered::anyTime);
    }
    QString title() const { return service.track() ? service.track()->title : QString(); }
    bool waitForTitle(const QString& wanted) const
    {
        return waitUntil([this, &wanted] { return title() == wanted; });
    }

    SystemClock clock;
    RecordingHttpClient http;
    MprisPlayers players{bus.opener()};
    NowPlayingService service{players, http, clock};
};

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
    music->seek(20'000'000);
    EXPECT_TRUE(waitUntil([&changes] { return changes == 3; })) << "it jumped to another place";

    music->state[u"Rate"_s] = 2.0;
    const QString id = only();
    EXPECT_TRUE(players.keepsTime(id));
    query(players, id);
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
        const std::optional<PlayerTrack> answer = query(players, id);
        ASSERT_TRUE(answer);
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
    const TestFolder folder;
    const QString file = QUrl::fromLocalFile(folder.write(u"a picture.png"_s, "bytes")).toString(QUrl::FullyEncoded);
    const QString pipe = folder.filePath(u"pipe"_s); // somebody writes into it for ever
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe), 0600), 0);
    QFile writer(pipe);
    ASSERT_TRUE(writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    writer.write("bytes");
    const auto music = fake(u"music"_s, u"Music"_s);
    players.start();
    const QString id = only();
    struct Case {
        QString address;
        qint64 mostBytes;
        QByteArray picture;
    };
    const Case cases[] = {{file, 5, "bytes"}, {file, 4, {}}, {u"file:///dev/zero"_s, 5, {}},
        {QUrl::fromLocalFile(pipe).toString(), 5, {}}, {QUrl::fromLocalFile(folder.path()).toString(), 5, {}},
        {u"file:///missing"_s, 5, {}}, {u"ftp://p.example/a.png"_s, 5, {}}, {{}, 5, {}}};
    for (const Case& each : cases) {
        SCOPED_TRACE(each.address.toStdString());
        music->state = {{u"PlaybackStatus"_s, u"Paused"_s},
            {u"Metadata"_s, QVariantMap{{u"xesam:title"_s, u"a"_s}, {u"mpris:artUrl"_s, each.address}}}};
        query(players, id);
        EXPECT_EQ(answerOf<QByteArray>([&](const auto& take) { players.artwork(id, each.mostBytes, &players, take); },
                      Answered::anyTime),
            each.picture);
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
    EXPECT_FALSE(query(nowhere, u"org.mpris.MediaPlayer2.mpv"_s));
}

} // namespace
} // namespace ambrelle
