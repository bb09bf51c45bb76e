// SPDX-License-Identifier: MIT

#include "platform/linux/PlayerBus.h"

#include <QDataStream>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtEndian>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace {

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

class RealPlayerTest : public PlayerBusTest {
protected:
    void SetUp() override
    {
        PlayerBusTest::SetUp();
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
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
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
    }
    bool waitForState(bool playing) const
    {
        return waitUntil([this, playing] { return service.track() && service.track()->isPlaying == playing; });
    }
    /// Asks the player itself to jump that many seconds on.
    void seek(qint64 seconds) const
    {
        auto client = bus.connection(u"client"_s);
        auto message = QDBusMessage::createMethodCall(
            u"org.mpris.MediaPlayer2.mpv"_s, playerPath, playerFamily + u".Player"_s, u"Seek"_s);
        message.setArguments({seconds * 1'000'000});
        client.send(message);
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
