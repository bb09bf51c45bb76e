// SPDX-License-Identifier: MIT

#include "services/NowPlayingService.h"

#include "platform/recording/RecordingHttpClient.h"
#include "platform/recording/RecordingPlayers.h"
#include "services/ServiceTest.h"
#include "support/WaitUntil.h"

#include <QBuffer>

namespace ambrelle {
namespace {

PlayerTrack withPicture(PlayerTrack track, const QString& picture)
{
    track.picture = picture;
    return track;
}

PlayerTrack paused(PlayerTrack track)
{
    track.isPlaying = false;
    return track;
}

const PlayerTrack song{.isPlaying = true,
    .title = u"Northern Lights"_s,
    .artist = u"The Harbour Lamps"_s,
    .duration = 221.5,
    .position = 84};
const auto pausedSong = paused(song);
const PlayerTrack otherSong{.isPlaying = true, .title = u"South"_s, .artist = u"The Harbour Lamps"_s, .duration = 100};
const auto picturedSong = withPicture(song, u"https://pictures.example/north.png"_s);

QByteArray picture(QSize size, const char* format = "PNG")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    image.save(&bytes, format);
    return bytes.data();
}

struct NowPlayingServiceTest : ServiceTest {
    NowPlayingServiceTest() { count(service); }

    /// The only player plays that now, and says so.
    void play(const std::optional<PlayerTrack>& track)
    {
        players.running = {{u"mpv"_s, u"mpv"_s}};
        players.answers[u"mpv"_s] = track;
        service.start();
        Q_EMIT players.changed();
        clock.advance(100ms);
    }
    /// Lets pictures be decoded until one has arrived, or none.
    bool waitForArtwork(bool present)
    {
        return waitUntil([this, present] { return service.artwork().isNull() != present; });
    }

    RecordingPlayers players;
    RecordingHttpClient http;
    NowPlayingService service{players, http, clock};
};

TEST_F(NowPlayingServiceTest, TellsWhatThePlayerAnswered)
{
    players.running = {{u"mpv"_s, u"mpv"_s}};
    players.answers[u"mpv"_s] = picturedSong;
    service.start();
    EXPECT_EQ(service.track(),
        (NowPlaying{.app = u"mpv"_s,
            .title = u"Northern Lights"_s,
            .artist = u"The Harbour Lamps"_s,
            .duration = 221.5,
            .position = 84,
            .isPlaying = true,
            .sampledAt = clock.now(),
            .artworkURL = u"https://pictures.example/north.png"_s}));
    play(withPicture(song, u"file:///a.jpg"_s));
    EXPECT_FALSE(service.track()->artworkURL);
}

TEST_F(NowPlayingServiceTest, ChoosesAmongThePlayers)
{
    struct Case {
        const char* what;
        QStringList running;
        QHash<QString, PlayerTrack> answers;
        QString shown; ///< none: no track
        QStringList asked;
    };
    const auto a = u"A"_s;
    const auto b = u"B"_s;
    const auto c = u"C"_s;
    const Case cases[] = {
        {"the first that plays wins, and no later one is asked", {a, b, c}, {{a, song}, {b, otherSong}}, a, {a}},
        {"one that plays wins over one before it that pauses", {a, b, c}, {{a, pausedSong}, {b, song}}, b, {a, b}},
        {"the first one that pauses", {a, b, c}, {{b, pausedSong}, {c, pausedSong}}, b, {a, b, c}},
        {"nobody has a track", {a, b}, {}, {}, {a, b}},
        {"one that does not run is not asked", {b}, {{a, song}, {b, pausedSong}}, b, {b}},
        {"nobody runs", {}, {{a, song}}, {}, {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        RecordingPlayers source;
        NowPlayingService chooser(source, http, clock);
        for (const QString& name : each.running)
            source.running.append({u"id:"_s + name, name});
        for (const auto& [name, answer] : each.answers.asKeyValueRange())
            source.answers[u"id:"_s + name] = answer;
        chooser.start();
        EXPECT_EQ(chooser.track() ? chooser.track()->app : QString(), each.shown);
        QStringList asked = source.queries;
        EXPECT_EQ(asked.replaceInStrings(u"id:"_s, QString()), each.asked);

        chooser.send(PlayerCommand::next);
        if (each.shown.isEmpty())
            EXPECT_THAT(source.commands, ElementsAre());
        else
            EXPECT_THAT(source.commands, ElementsAre(std::pair(u"id:"_s + each.shown, PlayerCommand::next)));
    }
}

TEST_F(NowPlayingServiceTest, ASlowPlayerIsNotAskedTwiceButNoChangeIsMissed)
{
    players.byHand = true;
    players.running = {{u"mpv"_s, u"mpv"_s}};
    service.start();
    service.start();
    service.poll();
    EXPECT_EQ(players.starts, 1);
    ASSERT_EQ(players.queries.size(), 1);

    Q_EMIT players.changed();
    Q_EMIT players.changed();
    clock.advance(1s);
    EXPECT_EQ(players.queries.size(), 1);
    players.answer(song);
    EXPECT_EQ(service.track()->title, u"Northern Lights"_s);
    clock.advance(1s);
    ASSERT_EQ(players.queries.size(), 2);
    players.answer(otherSong);
    EXPECT_EQ(service.track()->title, u"South"_s);
    EXPECT_EQ(changes, 2);

    // The player ends before it has answered.
    Q_EMIT players.changed();
    clock.advance(1s);
    players.running.clear();
    players.answer({});
    EXPECT_FALSE(service.track());
}

TEST_F(NowPlayingServiceTest, AsksRegularlyOnlyWhereItMust)
{
    struct Case {
        const char* what;
        bool notifies, keepsTime, shown;
        std::optional<PlayerTrack> answer;
        int queries; ///< in ten minutes
    };
    const Case cases[] = {
        {"a paused track of a player that tells", true, true, true, pausedSong, 0},
        {"no track", true, true, true, {}, 0},
        {"the position is reckoned and corrected every minute", true, true, true, song, 10},
        {"it cannot be reckoned", true, false, true, song, 300},
        {"but nobody looks", true, false, false, song, 0},
        {"paused, it stands still", true, false, true, pausedSong, 0},
        {"a player that tells nothing", false, true, true, {}, 300},
        {"whom nobody looks at", false, true, false, song, 0},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        RecordingPlayers source;
        NowPlayingService poller(source, http, clock);
        source.notifying = each.notifies;
        source.timekeeping = each.keepsTime;
        source.running = {{u"mpv"_s, u"mpv"_s}};
        source.answers[u"mpv"_s] = each.answer;
        poller.start();
        poller.setShown(each.shown);
        const auto before = source.queries.size();
        clock.advance(10min);
        EXPECT_EQ(source.queries.size() - before, each.queries);
    }
}

TEST_F(NowPlayingServiceTest, CatchesUpWhenItIsShownAgain)
{
    play(song);
    service.setShown(false);
    play(otherSong);
    EXPECT_EQ(service.track()->title, u"Northern Lights"_s);
    service.setShown(true);
    clock.advance(100ms);
    EXPECT_EQ(service.track()->title, u"South"_s);
}

TEST_F(NowPlayingServiceTest, CorrectsThePositionWhenTheClockIsSet)
{
    play(song);
    clock.setNow(clock.now().addSecs(7200));
    EXPECT_EQ(service.track()->sampledAt, clock.now());
}

TEST_F(NowPlayingServiceTest, TellsOnlyWhatLooksDifferent)
{
    play(pausedSong);
    EXPECT_EQ(changes, 1);
    play(pausedSong);
    EXPECT_EQ(changes, 1);
    play(song);
    EXPECT_EQ(changes, 2);
    play({});
    play({});
    EXPECT_EQ(changes, 3);
}

TEST_F(NowPlayingServiceTest, LoadsTheArtworkOfEachTrackOnce)
{
    play(picturedSong);
    EXPECT_THAT(http.addresses, ElementsAre(u"https://pictures.example/north.png"_s));
    EXPECT_EQ(http.ofStrangers, http.addresses) << "any peer on the bus may name an address";
    EXPECT_THAT(http.bounds, ElementsAre(NowPlayingService::mostArtworkBytes));
    http.answer({.body = picture({30, 20})});
    ASSERT_TRUE(waitForArtwork(true));
    EXPECT_EQ(service.artwork().size(), QSize(30, 20));

    // A jump within the track, and a pause.
    auto later = picturedSong;
    later.position = 120;
    play(later);
    play(paused(later));
    EXPECT_EQ(http.addresses.size(), 1);
    EXPECT_FALSE(service.artwork().isNull());

    // The next track has a picture of the player's own, and it cannot be had.
    play(withPicture(otherSong, u"file:///cover.png"_s));
    EXPECT_THAT(players.pictures, ElementsAre(u"mpv"_s));
    EXPECT_THAT(players.bounds, ElementsAre(NowPlayingService::mostArtworkBytes));
    players.deliver({});
    EXPECT_TRUE(service.artwork().isNull());

    // Then it turns up after all; and goes with the track.
    play(withPicture(otherSong, u"file:///other.png"_s));
    players.deliver(picture({4, 4}));
    ASSERT_TRUE(waitForArtwork(true));
    play({});
    EXPECT_TRUE(service.artwork().isNull());
}

TEST_F(NowPlayingServiceTest, DropsALateArtwork)
{
    play(picturedSong);
    play(otherSong);
    http.answer({.body = picture({30, 20})});
    players.deliver(picture({7, 7}));
    ASSERT_TRUE(waitForArtwork(true));
    EXPECT_EQ(service.artwork().size(), QSize(7, 7));

    // Late only after the decoding began.
    play(picturedSong);
    http.answer({.body = picture({30, 20})});
    play(withPicture(otherSong, u"file:///x.png"_s));
    players.deliver(picture({9, 9}));
    EXPECT_TRUE(waitUntil([this] {
        EXPECT_NE(service.artwork().width(), 30);
        return service.artwork().width() == 9;
    }));
}

TEST_F(NowPlayingServiceTest, BoundsForeignPictures)
{
    play(picturedSong);
    http.answer({.body = picture({2000, 1000})});
    ASSERT_TRUE(waitForArtwork(true));
    EXPECT_EQ(service.artwork().size(), QSize(768, 384));

    QByteArray vast = picture({8, 8}, "BMP");
    vast.replace(18, 8, QByteArray::fromHex("ffff0000ffff0000")); // width and height in the header
    const QByteArray hostile[] = {
        "no picture", vast, QByteArray(NowPlayingService::mostArtworkBytes + 1, 'x'), picture({8, 8}).left(20), {}};
    for (qsizetype number = 0; const QByteArray& bytes : hostile) {
        SCOPED_TRACE(number);
        play(PlayerTrack{.isPlaying = true, .title = u"Fine %1"_s.arg(number)});
        players.deliver(picture({4, 4}));
        ASSERT_TRUE(waitForArtwork(true));
        play(PlayerTrack{.isPlaying = true, .title = u"Hostile %1"_s.arg(number++)});
        players.deliver(bytes);
        EXPECT_TRUE(waitForArtwork(false));
    }
}

TEST_F(NowPlayingServiceTest, TheSampleObeysNoCommand)
{
    const QImage picture(4, 4, QImage::Format_RGB32);
    service.loadPreviewData(picture);
    ASSERT_TRUE(service.track());
    EXPECT_EQ(service.artwork(), picture);
    EXPECT_EQ(changes, 1);
    service.send(PlayerCommand::playPause);
    EXPECT_TRUE(players.commands.isEmpty());
    EXPECT_TRUE(players.queries.isEmpty());
}

} // namespace
} // namespace ambrelle
