// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"
#include "platform/recording/RecordingAnnouncer.h"
#include "platform/recording/RecordingCalendarStore.h"
#include "platform/recording/RecordingDevices.h"
#include "platform/recording/RecordingHttpClient.h"
#include "platform/recording/RecordingInputMonitor.h"
#include "platform/recording/RecordingPlayers.h"
#include "services/ActivityTracker.h"
#include "services/DevicesService.h"
#include "services/EventsService.h"
#include "services/FocusTimer.h"
#include "services/NowPlayingService.h"
#include "services/PhotoAlbum.h"
#include "services/RemindersService.h"
#include "services/ServiceTest.h"
#include "support/WaitUntil.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

namespace ambrelle {
namespace {

struct FocusReadingTest : ServiceTest {
    FocusReading read() const { return focusReading(timer, clock.now()); }
    void finishPeriod()
    {
        timer.start();
        clock.advance(std::chrono::seconds(static_cast<int>(timer.remaining(clock.now()))));
    }

    RecordingAnnouncer announcer;
    FocusTimer timer{announcer, settings, defaults, clock};
};

TEST_F(FocusReadingTest, CountsDownInWholeSeconds)
{
    EXPECT_EQ(read(), (FocusReading{.phase = u"Focus"_s, .remaining = u"25:00"_s}));
    timer.start();
    EXPECT_EQ(read().remaining, u"25:00"_s);
    clock.advance(300ms);
    EXPECT_EQ(read().remaining, u"25:00"_s) << "a second is shown until it is over";
    clock.advance(15min);
    EXPECT_EQ(read().remaining, u"10:00"_s);
    EXPECT_TRUE(read().running);
    EXPECT_NEAR(read().progress, 0.6, 0.001);
    settings.focusMinutes.set(180);
    timer.reset();
    EXPECT_EQ(read().remaining, u"180:00"_s);
    settings.focusMinutes.set(-3);
    EXPECT_EQ(read().remaining, u"0:00"_s);
}

TEST_F(FocusReadingTest, TheFourthDotStaysLitUntilWorkBeginsAgain)
{
    for (const int lit : {1, 2, 3, 4}) {
        finishPeriod();
        EXPECT_EQ(read().sessions, lit);
        EXPECT_EQ(read().phase, lit == 4 ? u"Long break"_s : u"Break"_s);
        finishPeriod();
        EXPECT_EQ(read().phase, u"Focus"_s);
        EXPECT_EQ(read().sessions, lit);
    }
    timer.start();
    EXPECT_EQ(read().sessions, 0);
    clock.advance(1min);
    timer.pause();
    EXPECT_EQ(read().sessions, 0) << "a pause does not undo the beginning";
    timer.reset();
    EXPECT_EQ(read().sessions, 4);
    finishPeriod();
    EXPECT_EQ(read().sessions, 1);
}

TEST(DevicesReadingTest, EveryStateHasItsSentence)
{
    ManualClock clock;
    RecordingDevices bluetooth;
    DevicesService service({&bluetooth}, clock);
    service.start();
    EXPECT_EQ(devicesReading(service).notice, (Notice{u"headphones"_s, u"Looking for devices…"_s}));
    bluetooth.tell({});
    EXPECT_EQ(devicesReading(service).notice.sentence, u"No devices connected"_s);
    bluetooth.tellWhyNot(u"Bluetooth is off."_s);
    EXPECT_EQ(devicesReading(service).notice.sentence, u"Bluetooth is off."_s);

    bluetooth.tell({{.name = u"Buds"_s, .left = 0.1, .charging = true}, {.name = u"Mouse"_s, .level = 0.125},
        {.name = u"Thing"_s}});
    const DevicesReading reading = devicesReading(service);
    EXPECT_FALSE(reading.notice);
    const QList<DevicesReading::Row> rows{
        {.symbol = u"airpodspro"_s, .name = u"Buds"_s, .detail = u"L 10"_s, .charging = true},
        {.symbol = u"magicmouse"_s, .name = u"Mouse"_s, .level = 0.125, .percent = u"13%"_s},
        {.symbol = u"dot.radiowaves.left.and.right"_s, .name = u"Thing"_s}};
    EXPECT_EQ(reading.rows, rows);
}

struct ActivityReadingTest : ServiceTest {
    ActivityReading reading(double seconds, double metres, int clicks)
    {
        QJsonArray hours;
        for (int hour = 0; hour < 24; ++hour)
            hours.append(hour == 14 ? seconds : hour == 15 ? 59.9 : 0);
        defaults.set(u"activity.today"_s,
            QJsonObject{{u"day"_s, u"2025-6-2"_s}, {u"hours"_s, hours}, {u"metres"_s, metres}, {u"clicks"_s, clicks}});
        return activityReading(ActivityTracker(monitor, defaults, clock), clock.now(), british);
    }

    RecordingInputMonitor monitor;
};

TEST_F(ActivityReadingTest, CountsInWholeMinutesAndFittingUnits)
{
    struct Case {
        double seconds, metres;
        int clicks;
        const char *active, *distance, *clickText;
    };
    for (const Case& each : {
             Case{0, 0, 0, "0 min", "0 m", "0 clicks"},
             Case{3500, 0.49, 1, "59 min", "0 m", "1 click"},
             Case{3540.1, 999.49, 999, "1 h 0 min", "999 m", "999 clicks"},
             Case{3600, 999.6, 1204, "1 h 0 min", "1.00 km", "1,204 clicks"},
             Case{11460.1, 12345, 12345678, "3 h 12 min", "12.35 km", "12,345,678 clicks"},
         }) {
        const ActivityReading shown = reading(each.seconds, each.metres, each.clicks);
        EXPECT_EQ(shown.active.toStdString(), each.active);
        EXPECT_EQ(shown.metres.toStdString(), each.distance);
        EXPECT_EQ(shown.clicks.toStdString(), each.clickText);
        EXPECT_TRUE(shown.hint.isEmpty());
        EXPECT_FALSE(shown.notice);
        EXPECT_EQ(shown.hour, 10);
    }
    EXPECT_EQ(reading(1800, 5, 5), reading(1800.05, 5.4, 5)) << "nothing to repaint";
    const QList<double> hours = reading(7200, 0, 0).hours;
    EXPECT_EQ(hours.size(), 24);
    EXPECT_EQ(hours.at(14), 1) << "an hour that came twice";
    EXPECT_EQ(hours.at(15), 0) << "no whole minute yet";
}

TEST_F(ActivityReadingTest, SaysWhatIsNotMeasured)
{
    monitor.currentTellsPointer = false;
    const ActivityReading blind = reading(600, 77, 7);
    EXPECT_EQ(blind.metres + blind.clicks, QString());
    EXPECT_EQ(blind.hint, u"Active time only"_s);
    EXPECT_FALSE(blind.notice);

    monitor.currentWhyNot = u"Nothing is told."_s;
    EXPECT_EQ(reading(600, 77, 7).notice, (Notice{u"figure.walk.motion"_s, u"Nothing is told."_s}));
}

struct NowPlayingReadingTest : ServiceTest {
    NowPlayingReading readingOf(const std::optional<PlayerTrack>& track, qint64 milliseconds = 0)
    {
        players.running = {{u"mpv"_s, u"mpv"_s}};
        players.answers[u"mpv"_s] = track;
        service.poll();
        return nowPlayingReading(service, clock.now().addMSecs(milliseconds));
    }

    RecordingPlayers players;
    RecordingHttpClient http;
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

TEST(PhotoReading, ShowsThePictureOrSaysWhyThereIsNone)
{
    QTemporaryDir folder;
    ManualClock clock;
    PhotoAlbum album(clock);
    WidgetConfig config(WidgetKind::photo, Skin::glass);
    const auto sentence = [&] { return photoReading(album, config).notice.sentence; };
    const auto configure = [&](const QString& path) {
        config.photoFolder = path;
        album.configure(config.id, path, 0, {4, 4});
    };
    const auto settle = [&] { return waitUntil([&] { return !album.isLoading(config.id); }); };
    EXPECT_EQ(sentence(), u"Choose a folder in the widget's settings"_s);
    configure(folder.path());
    if (album.isLoading(config.id)) { // the folder may be listed already
        EXPECT_EQ(sentence(), u"Loading…"_s);
    }
    ASSERT_TRUE(settle());
    EXPECT_EQ(sentence(), u"No images in this folder"_s);
    EXPECT_EQ(photoReading(album, config).notice.symbol, u"photo"_s);

    ASSERT_TRUE(QFile(folder.filePath(u"damaged.png"_s)).open(QIODevice::WriteOnly));
    configure(folder.path() + u'/'); // another folder to it
    ASSERT_TRUE(settle());
    EXPECT_EQ(sentence(), u"This image cannot be shown"_s);
    EXPECT_EQ(photoReading(album, config).description, QString());

    QImage image(9, 9, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(QFile::remove(folder.filePath(u"damaged.png"_s)));
    ASSERT_TRUE(image.save(folder.filePath(u"At\u202E the lake.png"_s)));
    configure(folder.path());
    ASSERT_TRUE(settle());
    EXPECT_EQ(photoReading(album, config).description, u"Picture “At the lake”"_s);
    config.photoFill = false;
    const PhotoReading shown = photoReading(album, config);
    EXPECT_FALSE(shown.notice);
    EXPECT_EQ(shown.picture.image.size(), QSize(4, 4));
    EXPECT_FALSE(shown.fills);
    EXPECT_EQ(shown, photoReading(album, config));

    album.setSample([image] { return image; });
    const WidgetConfig fresh(WidgetKind::photo, Skin::glass);
    album.configure(fresh.id, std::nullopt, 0, {4, 4});
    ASSERT_TRUE(waitUntil([&] { return !album.isLoading(fresh.id); }));
    EXPECT_EQ(photoReading(album, fresh).description, u"Sample picture"_s);
}

struct EventsReadingsTest : ServiceTest {
    EventsReadingsTest() { store.currentCalendars = {{u"c"_s, u"C"_s, QColor(Qt::red), true, true}}; }

    void add(const char* title, const char* start, const char* end, bool allDay = false)
    {
        const auto moment = [](const char* text) {
            return QDateTime::fromString(QLatin1StringView(text) + u'Z', Qt::ISODate);
        };
        const auto name = QString::fromLatin1(title);
        store.currentEvents.append({name, u"c"_s, name, moment(start), moment(end), allDay});
    }
    EventsReading reading(const QLocale& locale = QLocale::c())
    {
        service.start();
        store.answer();
        return eventsReading(service, clock.now(), locale);
    }

    RecordingCalendarStore store;
    EventsService service{store, settings, clock};
    RemindersService reminders{store, clock};
};

TEST_F(EventsReadingsTest, RowsSayWhen)
{
    add("since last week", "2025-05-30T09:00", "2025-06-04T09:00");
    add("since yesterday", "2025-06-01T22:00", "2025-06-02T11:30");
    add("today", "2025-06-02T00:00", "2025-06-03T00:00", true);
    add("afternoon", "2025-06-02T14:05", "2025-06-02T15:00");
    add("tomorrow", "2025-06-03T00:00", "2025-06-04T00:00", true);
    add("Thursday", "2025-06-05T14:00", "2025-06-05T15:00");
    const EventsReading shown = reading();
    EXPECT_FALSE(shown.notice);
    EXPECT_EQ(shown.day, u"Monday 2"_s);
    QStringList rows;
    for (const auto& row : shown.rows) {
        rows.append(row.title + u": "_s + row.time);
        EXPECT_EQ(row.colour, QColor(Qt::red));
    }
    EXPECT_THAT(rows,
        ElementsAre(u"since last week: All day"_s, u"since yesterday: Until 11:30"_s, u"today: All day"_s,
            u"afternoon: 14:05"_s, u"tomorrow: Tue, all day"_s, u"Thursday: Thu 14:00"_s));
    EXPECT_EQ(reading(american).rows.at(3).time, u"2:05"_s);
}

TEST_F(EventsReadingsTest, SentencesInPlaceOfEvents)
{
    service.start();
    EXPECT_EQ(eventsReading(service, clock.now(), QLocale::c()).notice,
        (Notice{u"calendar.badge.clock"_s, u"Requesting calendar access…"_s}));
    EXPECT_EQ(reading().notice.sentence, u"No more events today"_s);
    // It takes the place of today only.
    add("Thursday", "2025-06-05T14:00", "2025-06-05T15:00");
    Q_EMIT store.changed();
    const EventsReading shown = reading();
    EXPECT_FALSE(shown.notice);
    ASSERT_EQ(shown.rows.size(), 2);
    EXPECT_EQ(shown.rows.first().time, u"Today"_s);
    EXPECT_EQ(shown.rows.first().title, u"No more events today"_s);
    EXPECT_EQ(shown.rows.last(), (EventsReading::Row{u"Thu 14:00"_s, u"Thursday"_s, Qt::red}));
    // The same rows on another day.
    EXPECT_EQ(eventsReading(service, clock.now().addDays(3), QLocale::c()).rows.size(), 1);
    store.currentWhyNot = u"Put calendars here."_s;
    Q_EMIT store.changed();
    EXPECT_EQ(reading().notice.sentence, u"Put calendars here."_s);
}

TEST_F(EventsReadingsTest, RemindersWithTheirMarks)
{
    const auto shown = [this] {
        store.answer();
        return remindersReading(reminders, clock.now(), british);
    };
    reminders.start();
    EXPECT_EQ(remindersReading(reminders, clock.now(), QLocale::c()).notice,
        (Notice{u"checklist"_s, u"Requesting Reminders access…"_s}));
    EXPECT_EQ(shown().notice, (Notice{u"checklist"_s, u"All done"_s}));

    store.currentReminders = {
        {u"1"_s, u"c"_s, u"Late"_s, clock.now().addDays(-1), true}, {u"2"_s, u"c"_s, u"Some day"_s, {}, false}};
    Q_EMIT store.changed();
    RemindersReading expected;
    expected.rows = {{.id = u"1"_s,
                         .title = u"Late"_s,
                         .due = u"Yesterday, 10:00"_s,
                         .dueDay = u"Yesterday"_s,
                         .overdue = true,
                         .colour = Qt::red},
        {.id = u"2"_s, .title = u"Some day"_s, .due = {}, .colour = Qt::red}};
    EXPECT_EQ(shown(), expected);
    reminders.complete(u"2"_s);
    expected.rows[1].done = true;
    EXPECT_EQ(shown(), expected);
    const QDateTime elsewhere = clock.now().toTimeZone(QTimeZone("America/New_York")).addSecs(8 * 3600);
    EXPECT_EQ(remindersReading(reminders, elsewhere, american).rows.first().due, u"Yesterday, 6:00"_s);
}

} // namespace
} // namespace ambrelle
