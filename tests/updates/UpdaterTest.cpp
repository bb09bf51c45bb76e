// SPDX-License-Identifier: MIT

#include "updates/UpdaterDesk.h"

#include <QElapsedTimer>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

struct UpdaterTest : UpdaterDesk {
    /// What was done in the folder, once it is so much: the last of it may still be under way.
    QStringList steps(qsizetype count) const
    {
        QStringList done;
        EXPECT_TRUE(waitUntil([&] {
            done += folder->takeSteps();
            return done.size() >= count;
        }));
        return done;
    }
};

const QStringList wholeCourse{u"stage"_s, u"open signature one,two org.ambrelle.Ambrelle 1.10"_s, u"starts 1.10"_s};

TEST_F(UpdaterTest, OnlyAHigherNumberIsNewer)
{
    struct Case {
        const char* version;
        const char* current;
        bool newer;
    };
    for (const Case& each : {Case{"1.10", "1.4.9", true}, {"1.4.9", "1.10", false}, {"1.4.0", "1.4", false},
             {"1.4", "1.4.0", false}, {"1.4.0.1", "1.4", true}, {"2", "1.9.9", true}, {"v9", "1", false},
             {"9v", "1", false}, {"1.-1", "1.0", false}, {"1.+1", "1.0", false}, {"1. 1", "1.0", false},
             {"", "0.1", false}, {"0.2", "", true}, {"1..2", "1.2", false}, {".2", "1", true}, {"...", "0", false},
             {"02", "1", true}, {"9223372036854775807", "1", true}, {"9223372036854775808", "1", false},
             {"999999999999999999999999999999", "1", false}, {"1.\u0664", "1.3", false}})
        EXPECT_EQ(Updater::isNewer(QString::fromUtf8(each.version), QString::fromUtf8(each.current)), each.newer)
            << each.version << " " << each.current;
}

TEST_F(UpdaterTest, AFeedIsOneObjectWithThreeTexts)
{
    const Release release{u"2.0"_s, QUrl(u"https://u.example/a.zip?x=1"_s), u"AbC"_s};
    const QByteArray good = R"({"version": "2.0", "url": "https://u.example/a.zip?x=1", "sha256": "AbC")";
    EXPECT_EQ(Release::decode(good + "}"), release);
    EXPECT_EQ(Release::decode(good + R"(, "notes": [1], "sha256": "AbC"})"), release);
    EXPECT_EQ(Release::decode(good + "}" + QByteArray(60'000, ' ')), release);
    for (const QByteArray& bad : {QByteArray(), QByteArray("null"), QByteArray("[" + good + "}]"), good,
             good + R"(, "version": 2})", good + R"(, "sha256": null})", good + R"(, "url": ""})",
             good + R"(, "url": "https://a b/"})", good + R"(, "url": "https://x:port/"})",
             good + R"(, "version": ")" + QByteArray(65, '1') + "\"}", good + R"(, "version": "2\n0"})",
             good + R"(, "version": "2\u202e0"})", good + "}" + QByteArray(70'000, ' '), QByteArray(10'000, '['),
             QByteArray(R"({"version": "2.0", "sha256": "AbC"})")})
        EXPECT_FALSE(Release::decode(bad)) << bad.left(120).constData();
}

TEST_F(UpdaterTest, IsOfNoUseWithoutSafeFeedKeyServerAndFolder)
{
    EXPECT_TRUE(updater->isEnabled());
    for (const char* feed :
        {"", "http://updates.example/feed.json", "ftp://updates.example/", "https:///feed", "file:///feed"})
        EXPECT_FALSE(make({QUrl(QLatin1StringView(feed)), trust.keys})->isEnabled()) << feed;
    EXPECT_FALSE(make({trust.feed, {}})->isEnabled());
    const auto aside = std::exchange(folder, nullptr);
    const auto disabled = make(trust);
    EXPECT_FALSE(disabled->isEnabled());
    folder = aside;
    const auto unserved = std::exchange(server, nullptr);
    EXPECT_FALSE(make(trust)->isEnabled());
    server = unserved;
    disabled->start();
    clock.advance(24h);
    disabled->check();
    disabled->install();
    QString line;
    disabled->dryRun([&](const QString& told) { line = told; });
    EXPECT_EQ(line, u"This copy of Ambrelle doesn't update itself (this is 1.4.9)"_s);
    EXPECT_EQ(disabled->phase(), UpdatePhase());
    EXPECT_THAT(server->asked(), IsEmpty());
}

TEST_F(UpdaterTest, SaysHowThingsStand)
{
    EXPECT_EQ(updater->status(), u"Checks the website for new versions"_s);
    server->hold();
    updater->check();
    EXPECT_EQ(updater->status(), u"Checking…"_s);
    server->offer(u"1.4.9.0"_s);
    server->release();
    EXPECT_EQ(settled().kind, Kind::upToDate);
    EXPECT_EQ(updater->status(), u"Up to date · checked just now"_s);
    clock.advance(60s);
    EXPECT_EQ(updater->status(), u"Up to date · checked 1 minute ago"_s);
    clock.advance(59min);
    EXPECT_EQ(updater->status(), u"Up to date · checked 1 hour ago"_s);
    clock.advance(47h);
    EXPECT_EQ(updater->status(), u"Up to date · checked 2 days ago"_s);
    clock.setNow(clock.now().addDays(-10));
    EXPECT_EQ(updater->status(), u"Up to date · checked just now"_s) << "the clock was set back";
    EXPECT_FALSE(updater->available());

    server->offer(u"1.10"_s);
    EXPECT_EQ(checked().kind, Kind::available);
    EXPECT_EQ(updater->status(), u"Version 1.10 is available"_s);
    EXPECT_EQ(updater->available(), updater->latest());
    EXPECT_EQ(updater->lastChecked(), clock.now());
    server->hold();
    updater->install();
    EXPECT_EQ(updater->status(), u"Downloading version 1.10…"_s);
    QString installing;
    QObject::connect(updater.get(), &Updater::changed, updater.get(), [&] { installing = updater->status(); });
    server->release();
    settled();
    EXPECT_EQ(installing, u"Installing…"_s);
}

TEST_F(UpdaterTest, AFeedThatFailsIsToldApart)
{
    const FeedAnswer good = server->answer;
    struct Case {
        FeedAnswer answer;
        const char* status;
    };
    const char* offline = "Couldn't check for updates. Are you online?";
    const char* wrong = "The update server didn't answer.";
    for (const Case& each : {Case{{}, offline}, {{false, 200, good.body}, offline}, {{true, 404, good.body}, wrong},
             {{true, 204, {}}, wrong}, {{true, 206, good.body}, wrong}, {{true, 302, {}}, wrong},
             {{true, 200, "<html>"}, wrong}, {{true, 200, "{}"}, wrong}}) {
        server->answer = each.answer;
        EXPECT_EQ(checked(), (UpdatePhase{Kind::failed, QString::fromUtf8(each.status)})) << each.answer.status;
        EXPECT_EQ(updater->status(), QString::fromUtf8(each.status));
        EXPECT_FALSE(updater->lastChecked());
        updater->install();
        EXPECT_FALSE(updater->isBusy()) << "there is nothing to install";
    }
    server->answer = good;
    checked();
    server->answer = {};
    checked();
    EXPECT_TRUE(updater->available()) << "what was found stays found";
    EXPECT_EQ(installed().kind, Kind::installing);
}

TEST_F(UpdaterTest, InstallsInOrderAndRestarts)
{
    checked();
    EXPECT_EQ(installed().kind, Kind::installing);
    EXPECT_EQ(relaunches, 1);
    EXPECT_EQ(folder->takeSteps(), wholeCourse + QStringList({u"exchange 1.4.9 1.10"_s, u"gone"_s}));
    EXPECT_THAT(kinds, ElementsAre(Kind::checking, Kind::available, Kind::downloading, Kind::installing));
    EXPECT_THAT(server->asked(),
        ElementsAre(u"https://updates.example/feed.json"_s, u"https://updates.example/Ambrelle.zip"_s));
}

TEST_F(UpdaterTest, EveryFailureOfAnInstallationHasItsSentence)
{
    using Opened = StagedProgram::Opened;
    const char* unverified = "The update couldn't be unpacked or verified.";
    const char* unexpected = "The download isn't the expected version of Ambrelle.";
    const char* unwritable = "Ambrelle can't write to /opt. Download the new version from the website instead.";
    const auto identity = [this](const char* identifier, const char* version) {
        return [this, identifier, version] {
            folder->course.identity = {QLatin1StringView(identifier), QLatin1StringView(version)};
        };
    };
    struct Case {
        const char* message;
        int steps; ///< of the whole course, before it ended
        std::function<void()> spoil;
    };
    const Case cases[] = {
        {"The update isn't served securely.", 0,
            [this] { server->offer(u"1.10"_s, u"http://updates.example/a.zip"_s); }},
        {"The update isn't served securely.", 0, [this] { server->offer(u"1.10"_s, u"file:///a.zip"_s); }},
        {"The update isn't served securely.", 0, [this] { server->offer(u"1.10"_s, u"https:///a.zip"_s); }},
        {unwritable, 0, [this] { folder->writable = false; }},
        {"The update couldn't be installed.", 0, [this] { folder->parentPath.clear(); }},
        {"The update couldn't be installed.", 1, [this] { folder->course.stages = false; }},
        {"The download failed.", 1, [this] { folder->course.archive = -1; }},
        {"The download failed.", 1, [this] { server->archive.reset(); }},
        {"The download didn't match its checksum, so it wasn't installed.", 1,
            [this] { server->archive->sha256 += u'0'; }},
        {unexpected, 2, [this] { folder->course.opened = Opened::otherRelease; }},
        {unverified, 2, [this] { folder->course.opened = Opened::refused; }},
        {unverified, 2, [this] { folder->course.identity.reset(); }},
        {unexpected, 2, identity("org.example.Other", "1.10")},
        {unexpected, 2, identity("org.ambrelle.Ambrelle", "1.4.10")},
        {unexpected, 2, identity("org.ambrelle.Ambrelle", "1.10.0")},
        {unverified, 3, [this] { folder->course.starts = false; }},
        {"The update couldn't be installed.", 4, [this] { folder->course.exchanges = false; }},
    };
    const RecordingProgramFolder::Course course = folder->course;
    const auto archive = server->archive;
    for (const Case& each : cases) {
        SCOPED_TRACE(each.message);
        folder->course = course;
        folder->writable = true;
        folder->parentPath = u"/opt"_s;
        server->archive = archive;
        server->offer(u"1.10"_s);
        each.spoil();
        checked();
        EXPECT_EQ(installed(), (UpdatePhase{Kind::failed, QString::fromUtf8(each.message)}));
        QStringList expected = (wholeCourse + QStringList{u"exchange 1.4.9 1.10"_s}).mid(0, each.steps);
        if (each.steps > 0 && folder->course.stages)
            expected += u"gone"_s;
        EXPECT_EQ(folder->takeSteps(), expected);
        EXPECT_TRUE(updater->available()) << "it can be tried again";
    }
    EXPECT_EQ(relaunches, 0);
}

TEST_F(UpdaterTest, APlaceThatIsClosedMeanwhileIsLeftAlone)
{
    checked();
    server->hold();
    updater->install();
    ASSERT_TRUE(waitUntil([this] { return server->asked().size() == 2; }));
    folder->writable = false;
    server->release();
    EXPECT_EQ(settled().message, u"Ambrelle can't write to /opt. Download the new version from the website instead."_s);
    EXPECT_THAT(kinds, ElementsAre(Kind::checking, Kind::available, Kind::downloading, Kind::installing, Kind::failed));
    EXPECT_EQ(steps(4), wholeCourse + QStringList{u"gone"_s});
    EXPECT_EQ(relaunches, 0);
}

TEST_F(UpdaterTest, OneThingAtATime)
{
    server->hold();
    updater->check();
    updater->check();
    updater->install();
    updater->checkInBackground();
    QString line;
    updater->dryRun([&](const QString& told) { line = told; });
    EXPECT_EQ(line, u"Checking… (this is 1.4.9)"_s);
    server->release();
    settled();
    server->hold();
    updater->install();
    updater->install();
    updater->check();
    EXPECT_EQ(updater->phase().kind, Kind::downloading);
    server->release();
    settled();
    EXPECT_EQ(server->asked().size(), 2);
    EXPECT_EQ(relaunches, 1);
}

TEST_F(UpdaterTest, InstallsUnaskedOnlyWhenNobodyIsDisturbed)
{
    for (int bits = 0; bits < 32; ++bits) {
        SCOPED_TRACE(bits);
        const bool checks = (bits & 1) != 0;
        const bool installs = (bits & 2) != 0;
        const bool edits = (bits & 4) != 0;
        inUse = (bits & 8) != 0;
        const bool rejected = (bits & 16) != 0;
        settings.checkForUpdates.set(checks);
        settings.installUpdates.set(installs);
        settings.editing.set(edits);
        folder->rejected = rejected ? u"1.10"_s : u"1.9"_s;
        folder->takeSteps();
        relaunches = 0;
        updater = make(trust);
        updater->start();
        clock.advance(29s);
        EXPECT_EQ(updater->phase().kind, Kind::idle);
        clock.advance(1s);
        EXPECT_EQ(updater->phase().kind, checks ? Kind::checking : Kind::idle);
        settled();
        const bool expected = checks && installs && !edits && !inUse && !rejected;
        EXPECT_EQ(relaunches, expected ? 1 : 0);
        EXPECT_EQ(folder->takeSteps().isEmpty(), !expected);
        if (!checks || expected)
            continue;
        EXPECT_EQ(updater->phase().kind, Kind::available);
        if (rejected) {
            installed();
            EXPECT_EQ(relaunches, 1) << "the user commands it";
            continue;
        }
        settings.installUpdates.set(true);
        settings.editing.set(false);
        inUse = false;
        clock.advance(Updater::period - 31s);
        EXPECT_EQ(updater->phase().kind, Kind::available);
        clock.advance(1s);
        settled();
        EXPECT_EQ(relaunches, 1) << "with the next check";
    }
}

TEST_F(UpdaterTest, WhoBeganToUseItMeanwhileIsNotDisturbed)
{
    const std::pair<const char*, std::function<void()>> starts[] = {
        {"editing", [this] { settings.editing.set(true); }},
        {"in use", [this] { inUse = true; }},
        {"no longer wished", [this] { settings.installUpdates.set(false); }},
    };
    std::function<void()> meanwhile;
    QObject::connect(updater.get(), &Updater::changed, updater.get(), [&] {
        if (updater->phase().kind == Kind::downloading)
            meanwhile();
    });
    for (const auto& [what, begin] : starts) {
        SCOPED_TRACE(what);
        settings.editing.set(false);
        settings.installUpdates.set(true);
        inUse = false;
        meanwhile = begin;
        updater->checkInBackground();
        EXPECT_EQ(settled().kind, Kind::available);
        EXPECT_EQ(steps(4), wholeCourse + QStringList{u"gone"_s}) << "what was unpacked does not stay";
    }
    EXPECT_EQ(relaunches, 0);
    installed();
    EXPECT_EQ(relaunches, 1) << "the user commands it";
}

TEST_F(UpdaterTest, WhatWouldFailAgainIsNotTriedUnaskedAgain)
{
    using Opened = StagedProgram::Opened;
    struct Case {
        bool isTriedAgain;
        std::function<void()> spoil;
    };
    const Case cases[] = {
        {false, [this] { folder->course.opened = Opened::otherRelease; }},
        {false, [this] { folder->course.opened = Opened::refused; }},
        {false, [this] { folder->course.starts = false; }},
        {false, [this] { folder->course.exchanges = false; }},
        {true, [this] { folder->course.stages = false; }},
        {true, [this] { folder->course.archive = -1; }},
        {true, [this] { server->archive->sha256 += u'0'; }},
    };
    const RecordingProgramFolder::Course course = folder->course;
    const auto archive = server->archive;
    const auto inBackground = [this] {
        folder->takeSteps();
        updater->checkInBackground();
        settled();
        return !folder->takeSteps().isEmpty();
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(&each - cases);
        updater = make(trust);
        folder->course = course;
        server->archive = archive;
        server->offer(u"1.10"_s);
        each.spoil();
        EXPECT_TRUE(inBackground());
        EXPECT_EQ(updater->phase().kind, Kind::failed);
        EXPECT_EQ(inBackground(), each.isTriedAgain);
        installed();
        EXPECT_FALSE(folder->takeSteps().isEmpty()) << "the user commands it";
        server->offer(u"1.11"_s);
        EXPECT_TRUE(inBackground()) << "another release may do";
    }
}

TEST_F(UpdaterTest, ADryRunGoesAsFarAsItCan)
{
    const auto line = [this] {
        QString heard;
        updater->dryRun([&heard](const QString& told) { heard = told; });
        EXPECT_TRUE(waitUntil([&heard] { return !heard.isEmpty(); }));
        return heard;
    };
    folder->writable = false; // nothing of it matters
    EXPECT_EQ(line(), u"Version 1.10 downloaded, verified and unpacked at /tmp/Ambrelle-update-1"_s);
    EXPECT_EQ(steps(5), QStringList(u"stage rehearsal"_s) + wholeCourse.mid(1) + QStringList({u"keep"_s, u"gone"_s}));
    folder->course.starts = false;
    EXPECT_EQ(line(), u"Failed: The update couldn't be unpacked or verified."_s);
    server->offer(u"1.4.9"_s);
    EXPECT_EQ(line(), u"Up to date · checked just now (this is 1.4.9)"_s);
    server->answer = {};
    EXPECT_EQ(line(), u"Failed: Couldn't check for updates. Are you online?"_s);
    EXPECT_EQ(relaunches, 0);
}

TEST_F(UpdaterTest, TheEndWaitsForNothing)
{
    server->hold();
    QElapsedTimer timer;
    updater->check();
    ASSERT_TRUE(waitUntil([this] { return server->asked().size() == 1; }));
    timer.start();
    updater.reset();
    EXPECT_LT(timer.elapsed(), SerialWorker::usualPatience.count());
    EXPECT_EQ(server.use_count(), 1) << "a thread is left behind";

    server->release();
    updater = make(trust);
    checked();
    server->hold();
    updater->install();
    ASSERT_TRUE(waitUntil([this] { return server->asked().size() == 3; }));
    timer.start();
    updater.reset();
    EXPECT_LT(timer.elapsed(), SerialWorker::usualPatience.count());
    EXPECT_EQ(folder->takeSteps(), QStringList({u"stage"_s, u"gone"_s}));
}

} // namespace
} // namespace ambrelle
