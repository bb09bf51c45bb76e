// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

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
    NowPlayingReading readingOf(const std::optional<PlayerTrack>& track, qint64 milliseconds = 0)
    {
        players.running = {{u"mpv"_s, u"mpv"_s}};
        players.answers[u"mpv"_s] = track;
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
        bool isPlaying;
        double duration, position; ///< seconds, as the player answers
        qint64 after; ///< milliseconds
        QString elapsed, total;
        double progress;
    };
    const Case cases[] = {
        {"at the answer", true, 200, 84.2, 0, u"1:24"_s, u"3:20"_s, 0.42},
        {"within the same second", true, 200, 84.2, 799, u"1:24"_s, u"3:20"_s, 0.42},
        {"in the next second", true, 200, 84.2, 800, u"1:25"_s, u"3:20"_s, 0.425},
        {"paused", false, 200, 84.2, 60'000, u"1:24"_s, u"3:20"_s, 0.42},
        {"not beyond the end", true, 200, 199, 60'000, u"3:20"_s, u"3:20"_s, 1},
        {"not back with the clock", true, 200, 84.2, -60'000, u"1:24"_s, u"3:20"_s, 0.42},
        {"an endless stream", true, 0, 84, 6'000, u"1:30"_s, {}, 0},
        {"one that tells an absurd length", true, 9223372036854, 84, 0, u"1:24"_s, {}, 0},
        {"absurd numbers", true, -5, -1e300, 0, u"0:00"_s, {}, 0},
        {"over an hour", false, 5400, 3725, 0, u"62:05"_s, u"90:00"_s, 3725.0 / 5400},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const PlayerTrack track{.isPlaying = each.isPlaying,
            .title = u"a"_s,
            .artist = u"b"_s,
            .duration = each.duration,
            .position = each.position};
        const NowPlayingReading reading = readingOf(track, each.after);
        EXPECT_EQ(reading.playing, each.isPlaying);
        EXPECT_EQ(reading.elapsed, each.elapsed);
        EXPECT_EQ(reading.total, each.total);
        EXPECT_DOUBLE_EQ(reading.progress, each.progress);
        EXPECT_EQ(reading.title, u"a"_s);
        EXPECT_EQ(reading.artist, u"b"_s);
        EXPECT_FALSE(reading.notice);
    }
}

TEST_F(NowPlayingReadingTest, SaysWhyThereIsNothing)
{
    EXPECT_EQ(readingOf({}), (NowPlayingReading{.notice = {u"music.note"_s, u"Nothing playing"_s}}));
    players.sentence = u"There is no bus."_s;
    EXPECT_EQ(readingOf({}).notice.sentence, u"There is no bus."_s);
}

} // namespace
} // namespace ambrelle
