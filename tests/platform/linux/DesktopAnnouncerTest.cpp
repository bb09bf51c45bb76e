// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/DesktopAnnouncer.h"

#include "support/MockBus.h"
#include "support/TestFolder.h"
#include "support/Variable.h"

#include <QElapsedTimer>
#include <QLibrary>

#include <csignal>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

TEST(DesktopAnnouncerTest, TheDesktopShowsWhatIsNotified)
{
    MockBus bus;
    if (!bus.isRunning())
        GTEST_SKIP() << "dbus-daemon is not installed";
    QProcess* daemon = bus.start(u"notification_daemon"_s, u"org.freedesktop.Notifications"_s);
    if (!daemon)
        GTEST_SKIP() << "python3-dbusmock is not installed";

    DesktopAnnouncer announcer(bus.opener());
    const auto pid = static_cast<pid_t>(daemon->processId());
    ::kill(pid, SIGSTOP); // a desktop that hangs
    QElapsedTimer time;
    time.start();
    announcer.notify(u"Break's over"_s, u"Ready? Gr\u00fc\u00dfe"_s);
    EXPECT_LT(time.elapsed(), 10'000) << "a call on the bus waits for 25 seconds";
    ::kill(pid, SIGCONT);

    QByteArray log;
    const auto notified = [&log, daemon] {
        log += daemon->readAllStandardOutput();
        return log.contains("Notify") && log.endsWith('\n');
    };
    ASSERT_TRUE(waitUntil(notified)) << log.constData();
    // The name, no other replaced, the icon, the texts, no actions.
    EXPECT_TRUE(log.contains(R"(Notify "Ambrelle" 0 "org.ambrelle.Ambrelle" "Break's over" "Ready? Grüße" [] )"))
        << log.constData();
    EXPECT_TRUE(log.contains(R"("desktop-entry": "org.ambrelle.Ambrelle")")) << log.constData();
    EXPECT_TRUE(log.contains(R"("suppress-sound": True)")) << log.constData();
    EXPECT_TRUE(log.contains("} -1\n")) << log.constData();
    EXPECT_TRUE(announcer.isAvailable());

    bus.stop(daemon);
    announcer.notify(u"Nobody"_s, u"listens"_s);
    EXPECT_TRUE(waitUntil([&announcer] { return !announcer.isAvailable(); }));
    EXPECT_FALSE(announcer.whyNot().isEmpty());
}

TEST(DesktopAnnouncerTest, WithoutABusNothingHappens)
{
    DesktopAnnouncer announcer([] { return QDBusConnection(u"none"_s); });
    EXPECT_TRUE(announcer.isAvailable());
    announcer.notify(u"Nobody"_s, u"listens"_s);
    EXPECT_FALSE(announcer.isAvailable());
}

/// A machine whose sound card is a file.
class EventSoundsTest : public ::testing::Test {
protected:
    void configure(const QByteArray& text) const { folder.write(u"asound.conf"_s, text); }
    void play(AnnouncedSound sound)
    {
        sounds.play(soundEvent(sound));
        EXPECT_TRUE(waitUntil([this] { return !sounds.isBusy(); }));
    }
    /// What the sound card got to hear, once the sound was played.
    QByteArray heard(AnnouncedSound sound)
    {
        QFile::remove(card);
        const int before = sounds.played();
        play(sound);
        EXPECT_TRUE(waitUntil([this, before] { return sounds.played() > before; }));
        return folder.read(u"heard.raw"_s);
    }
    static bool isSilent(const QByteArray& samples) { return samples.count('\0') == samples.size(); }

    const TestFolder folder;
    const QString card = folder.filePath(u"heard.raw"_s);
    const test::Variable driver{"CANBERRA_DRIVER", "alsa"};
    const test::Variable configuration{"ALSA_CONFIG_PATH", QFile::encodeName(folder.filePath(u"asound.conf"_s))};
    EventSounds sounds{{u"Test"_s, u"org.example.Test"_s}};
};

TEST_F(EventSoundsTest, PlaysTheSoundsOfTheTheme)
{
    if (!QLibrary(u"canberra"_s, 0).load() || !QFileInfo::exists(u"/usr/share/sounds/freedesktop/stereo"_s))
        GTEST_SKIP() << "libcanberra or sound-theme-freedesktop is not installed";
    configure("pcm.!default { type file slave.pcm nowhere file \"" + QFile::encodeName(card)
        + "\" format raw }\npcm.nowhere { type null }\n");
    const QByteArray glass = heard(AnnouncedSound::glass);
    const QByteArray hero = heard(AnnouncedSound::hero);
    EXPECT_FALSE(isSilent(glass));
    EXPECT_FALSE(isSilent(hero));
    EXPECT_NE(glass, hero);
    EXPECT_EQ(sounds.played(), 2);
}

TEST_F(EventSoundsTest, AMachineWithoutSoundStaysSilent)
{
    configure({});
    play(AnnouncedSound::glass);
    EXPECT_EQ(sounds.played(), 0);
    EventSounds without({u"Test"_s, u"org.example.Test"_s}, u"/nowhere/libcanberra.so"_s);
    without.play(u"bell"_s);
    EXPECT_TRUE(waitUntil([&without] { return !without.isBusy(); }));
    EXPECT_EQ(without.played(), 0);
}

} // namespace
} // namespace ambrelle
