#include "platform/linux/MprisPlayers.h"

#include "foundation/SystemClock.h"
#include "platform/recording/RecordingHttpClient.h"
#include "services/NowPlayingService.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QPoint>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtEndian>
#include <QTimer>

#include <gmock/gmock.h>

#include <memory>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using ::testing::ElementsAre;

const auto family = u"org.mpris.MediaPlayer2"_s;
const auto path = u"/org/mpris/MediaPlayer2"_s;

/// A player that says what the test wants.
class FakePlayer final : public QDBusVirtualObject {
public:
    FakePlayer(const QString& address, const QString& name, const QString& identity)
        : m_bus(QDBusConnection::connectToBus(address, name))
        , m_identity(identity)
    {
        m_bus.registerVirtualObject(path, this);
        m_bus.registerService(family + u'.' + name);
    }
    ~FakePlayer() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        if (message.member() == "Get"_L1)
            m_bus.send(message.createReply(QVariant::fromValue(QDBusVariant(m_identity))));
        else if (message.member() == "GetAll"_L1)
            answer(message);
        else
            commands.append(message.member());
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
        auto signal = QDBusMessage::createSignal(path, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        signal.setArguments({family + u".Player"_s, properties, QStringList()});
        m_bus.send(signal);
    }

    QVariantMap state;
    bool hangs = false;
    int asked = 0;
    QStringList commands;

private:
    void answer(const QDBusMessage& message)
    {
        ++asked;
        if (!hangs)
            m_bus.send(message.createReply(QVariant(state)));
    }

    QDBusConnection m_bus;
    QVariant m_identity;
};

class MprisPlayersTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const auto daemon = QStandardPaths::findExecutable(u"dbus-daemon"_s);
        if (daemon.isEmpty())
            GTEST_SKIP() << "dbus-daemon is not installed";
        m_daemon.start(daemon, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        ASSERT_TRUE(m_daemon.waitForReadyRead(5000));
        address = QString::fromLatin1(m_daemon.readLine().trimmed());
    }
    void TearDown() override
    {
        QDBusConnection::disconnectFromBus(u"client"_s);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    std::unique_ptr<FakePlayer> fake(const QString& name, const QString& identity) const
    {
        return std::make_unique<FakePlayer>(address, name, identity);
    }
    QStringList names() const
    {
        QStringList names;
        for (const Player& player : players.players())
            names.append(player.name);
        return names;
    }
    QString title() const { return service.track() ? service.track()->title : QString(); }
    static bool waitUntil(const std::function<bool()>& condition)
    {
        const QDeadlineTimer deadline(20'000);
        QTimer look;
        look.start(10);
        while (!condition() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return condition();
    }
    bool waitForTitle(const QString& wanted) const
    {
        return waitUntil([this, &wanted] { return title() == wanted; });
    }

    QString address;
    SystemClock clock;
    RecordingHttpClient http;
    MprisPlayers players{[this] { return QDBusConnection::connectToBus(address, u"client"_s); }};
    NowPlayingService service{players, http, clock};

private:
    QProcess m_daemon;
};

TEST_F(MprisPlayersTest, KnowsWhoRuns)
{
    const auto spotify = fake(u"spotify"_s, u"Spotify"_s);
    auto vlc = fake(u"vlc.instance7"_s, u"VLC media player"_s);
    const auto stranger = QDBusConnection::connectToBus(address, u"stranger"_s);
    ASSERT_TRUE(QDBusConnection(stranger).registerService(u"org.mpris.MediaPlayer2x.other"_s));
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
    QDBusConnection::disconnectFromBus(u"stranger"_s);
}

TEST_F(MprisPlayersTest, ASecondPlayerTakesOver)
{
    const auto music = fake(u"music"_s, u"Music"_s);
    const auto spotify = fake(u"spotify"_s, u"Spotify"_s);
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
    for (const auto command : {PlayerCommand::playPause, PlayerCommand::next, PlayerCommand::previous})
        service.send(command);
    ASSERT_TRUE(waitUntil([&spotify] { return spotify->commands.size() == 3; }));
    EXPECT_THAT(spotify->commands, ElementsAre(u"PlayPause"_s, u"Next"_s, u"Previous"_s));
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
    players.query(id, &players, [&answered](const QString&) { answered = true; });
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
        QString answer;
        players.query(id, &players, [&answer](const QString& lines) { answer = lines; });
        ASSERT_TRUE(waitUntil([&answer] { return !answer.isEmpty(); }));
        EXPECT_TRUE(answer.startsWith(u"playing\nBroken\n"_s)) << answer.toStdString();
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
        {QUrl::fromLocalFile(folder.path()).toString(), 5, {}}, {u"file:///missing"_s, 5, {}},
        {u"ftp://p.example/a.png"_s, 5, {}}, {{}, 5, {}}};
    for (const Case& each : cases) {
        SCOPED_TRACE(each.address.toStdString());
        music->state = {{u"PlaybackStatus"_s, u"Paused"_s},
            {u"Metadata"_s, QVariantMap{{u"xesam:title"_s, u"a"_s}, {u"mpris:artUrl"_s, each.address}}}};
        std::optional<QByteArray> picture;
        players.query(id, &players, [&](const QString&) {
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
    nowhere.query(u"org.mpris.MediaPlayer2.mpv"_s, &nowhere, [&answered](const QString& lines) {
        EXPECT_TRUE(lines.isEmpty());
        answered = true;
    });
    EXPECT_TRUE(waitUntil([&answered] { return answered; }));
}

/// A minute of silence with title and artist.
QByteArray waveFile(const QByteArray& title, const QByteArray& artist)
{
    constexpr quint32 rate = 8000; // bytes a second
    const auto chunk = [](const QByteArray& name, QByteArray content) {
        QByteArray length(4, 0);
        qToLittleEndian(static_cast<quint32>(content.size()), length.data());
        if (content.size() % 2 == 1)
            content.append('\0');
        return name + length + content;
    };
    QByteArray format;
    QDataStream stream(&format, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16{1} << quint16{1} << rate << rate << quint16{1} << quint16{8};
    return chunk("RIFF",
        "WAVE" + chunk("fmt ", format) + chunk("LIST", "INFO" + chunk("INAM", title) + chunk("IART", artist))
            + chunk("data", QByteArray(60 * rate, '\x80')));
}

class RealPlayerTest : public MprisPlayersTest {
protected:
    void SetUp() override
    {
        MprisPlayersTest::SetUp();
        if (IsSkipped())
            return;
        const auto program = QStandardPaths::findExecutable(u"mpv"_s);
        const auto plugin = u"/usr/lib/mpv-mpris/mpris.so"_s;
        if (program.isEmpty() || !QFileInfo::exists(plugin))
            GTEST_SKIP() << "mpv and mpv-mpris are not installed";
        write(u"1.wav"_s, waveFile("Northern Lights", "The Harbour Lamps"));
        write(u"2.wav"_s, waveFile("South", "The Harbour Lamps"));
        QImage cover(600, 600, QImage::Format_RGB32);
        cover.fill(QColor(200, 30, 40));
        ASSERT_TRUE(cover.save(m_folder.filePath(u"cover.png"_s)));

        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, address);
        environment.insert(u"HOME"_s, m_folder.path());
        mpv.setProcessEnvironment(environment);
        mpv.start(program,
            {u"--no-config"_s, u"--no-terminal"_s, u"--ao=null"_s, u"--vo=null"_s, u"--script="_s + plugin,
                m_folder.filePath(u"1.wav"_s), m_folder.filePath(u"2.wav"_s)});
        ASSERT_TRUE(mpv.waitForStarted());
    }
    void TearDown() override
    {
        mpv.kill();
        mpv.waitForFinished();
        MprisPlayersTest::TearDown();
    }
    bool waitForState(bool playing) const
    {
        return waitUntil([this, playing] { return service.track() && service.track()->isPlaying == playing; });
    }
    /// Asks the player itself to jump that many seconds on.
    void seek(qint64 seconds) const
    {
        auto bus = QDBusConnection::connectToBus(address, u"client"_s);
        auto message =
            QDBusMessage::createMethodCall(u"org.mpris.MediaPlayer2.mpv"_s, path, family + u".Player"_s, u"Seek"_s);
        message.setArguments({seconds * 1'000'000});
        bus.send(message);
    }

    QProcess mpv;

private:
    void write(const QString& name, const QByteArray& content)
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir m_folder;
};

TEST_F(RealPlayerTest, IsFoundShownPausedResumedSkippedAndQuit)
{
    service.start();
    ASSERT_TRUE(waitForTitle(u"Northern Lights"_s));
    ASSERT_TRUE(waitForState(true));
    EXPECT_EQ(service.track()->app, u"mpv"_s);
    EXPECT_EQ(service.track()->artist, u"The Harbour Lamps"_s);
    EXPECT_NEAR(service.track()->duration, 60, 0.1);
    ASSERT_TRUE(waitUntil([this] { return !service.artwork().isNull(); }));
    EXPECT_EQ(service.artwork().size(), NowPlayingService::artworkSize);
    EXPECT_EQ(service.artwork().pixelColor(100, 100), QColor(200, 30, 40));

    service.send(PlayerCommand::playPause);
    ASSERT_TRUE(waitForState(false));
    const double pausedAt = service.track()->position;
    seek(20);
    ASSERT_TRUE(waitUntil([&] { return service.track()->position > pausedAt + 19; }));
    EXPECT_LT(service.track()->position, pausedAt + 21);
    service.send(PlayerCommand::playPause);
    ASSERT_TRUE(waitForState(true));

    service.send(PlayerCommand::next);
    ASSERT_TRUE(waitForTitle(u"South"_s));
    ASSERT_TRUE(waitUntil([this] { return service.track()->position < 10; }));
    service.send(PlayerCommand::previous);
    ASSERT_TRUE(waitForTitle(u"Northern Lights"_s));

    mpv.terminate();
    ASSERT_TRUE(waitUntil([this] { return !service.track(); }));
    EXPECT_TRUE(service.artwork().isNull());
}

TEST_F(RealPlayerTest, GivesWayToASecondPlayer)
{
    service.start();
    ASSERT_TRUE(waitForTitle(u"Northern Lights"_s));
    ASSERT_TRUE(waitForState(true));
    const auto spotify = fake(u"spotify"_s, u"Spotify"_s);
    spotify->play(u"Second"_s);
    service.send(PlayerCommand::playPause);
    ASSERT_TRUE(waitForTitle(u"Second"_s));
    mpv.kill(); // the paused player ends without a word
    ASSERT_TRUE(waitUntil([this] { return names() == QStringList{u"Spotify"_s}; }));
    spotify->play(u"Second"_s, false);
    EXPECT_TRUE(waitForState(false));
    EXPECT_EQ(title(), u"Second"_s);
}

} // namespace
} // namespace ambrelle
