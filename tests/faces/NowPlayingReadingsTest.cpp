#include "faces/NowPlayingReadings.h"

#include "foundation/ManualClock.h"
#include "platform/recording/RecordingHttpClient.h"
#include "platform/recording/RecordingPlayers.h"
#include "services/NowPlayingService.h"

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

class NowPlayingReadingTest : public ::testing::Test {
protected:
    NowPlayingReading readingOf(const QString& answer, qint64 milliseconds = 0)
    {
        players.running = {{u"mpv"_s, u"mpv"_s}};
        players.answers[u"mpv"_s] = answer;
        service.poll();
        return nowPlayingReading(service, clock.now().addMSecs(milliseconds));
    }

    RecordingPlayers players;
    RecordingHttpClient http;
    ManualClock clock;
    NowPlayingService service{players, http, clock};
};

TEST_F(NowPlayingReadingTest, ThePositionGoesOnWhileTheTrackPlays)
{
    struct Case {
        const char* what;
        const char* answer;
        qint64 after; ///< milliseconds
        QString elapsed, total;
        double progress;
    };
    const Case cases[] = {
        {"at the answer", "playing\na\nb\n200\n84.2", 0, u"1:24"_s, u"3:20"_s, 0.42},
        {"within the same second", "playing\na\nb\n200\n84.2", 799, u"1:24"_s, u"3:20"_s, 0.42},
        {"in the next second", "playing\na\nb\n200\n84.2", 800, u"1:25"_s, u"3:20"_s, 0.425},
        {"paused", "paused\na\nb\n200\n84.2", 60'000, u"1:24"_s, u"3:20"_s, 0.42},
        {"not beyond the end", "playing\na\nb\n200\n199", 60'000, u"3:20"_s, u"3:20"_s, 1},
        {"not back with the clock", "playing\na\nb\n200\n84.2", -60'000, u"1:24"_s, u"3:20"_s, 0.42},
        {"an endless stream", "playing\na\nb\n0\n84", 6'000, u"1:30"_s, {}, 0},
        {"one that tells an absurd length", "playing\na\nb\n9223372036854\n84", 0, u"1:24"_s, {}, 0},
        {"absurd numbers", "playing\na\nb\n-5\n-1e300", 0, u"0:00"_s, {}, 0},
        {"over an hour", "paused\na\nb\n5400\n3725", 0, u"62:05"_s, u"90:00"_s, 3725.0 / 5400},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const NowPlayingReading reading = readingOf(QString::fromLatin1(each.answer), each.after);
        EXPECT_EQ(reading.elapsed, each.elapsed);
        EXPECT_EQ(reading.total, each.total);
        EXPECT_DOUBLE_EQ(reading.progress, each.progress);
        EXPECT_EQ(reading.title, u"a"_s);
        EXPECT_EQ(reading.artist, u"b"_s);
        EXPECT_FALSE(reading.notice);
    }
    EXPECT_FALSE(readingOf(u"paused\na\nb\n1\n1"_s).playing);
    EXPECT_TRUE(readingOf(u"playing\na\nb\n1\n1"_s).playing);
}

TEST_F(NowPlayingReadingTest, SaysWhyThereIsNothing)
{
    EXPECT_EQ(readingOf(u"stopped"_s), (NowPlayingReading{.notice = {u"music.note"_s, u"Nothing playing"_s}}));
    players.sentence = u"There is no bus."_s;
    EXPECT_EQ(readingOf({}).notice.sentence, u"There is no bus."_s);
}

} // namespace
} // namespace ambrelle
