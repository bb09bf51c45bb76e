// SPDX-License-Identifier: MIT

#include "platform/mac/ScriptPlayers.h"
#include "support/AnswerOf.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr qint64 plenty = 1000; // bytes

/// A runner of the test's own stands where the system's would. It writes down what it was given.
class ScriptPlayersTest : public ::testing::Test {
protected:
    /// Lets the runner do that, in the language of the shell; the script is $2.
    void runnerDoes(const QByteArray& commands) const
    {
        folder.writeScript(
            u"runner"_s, "printf '%s\\n' \"$@\" >> '" + QFile::encodeName(log) + "'\n" + commands + '\n');
    }
    std::string given() const { return folder.read(u"log"_s).toStdString(); }
    std::optional<QString> run(const QString& source, const QString& program)
    {
        return answerOf<std::optional<QString>>(
            [&](const auto& take) { runAppleScript(source, &players, take, program); });
    }
    std::optional<PlayerTrack> query(const QString& player)
    {
        return answerOf<std::optional<PlayerTrack>>([&](const auto& take) { players.query(player, &players, take); });
    }
    const TestFolder folder;
    QString runner = folder.filePath(u"runner"_s);
    QString log = folder.filePath(u"log"_s);
    QString pictureFile = folder.filePath(u"ambrelle-artwork"_s);
    QStringList running{u"com.spotify.client"_s, u"com.apple.Music"_s};
    ScriptPlayers players{[this](const QString& bundle) { return running.contains(bundle); }, runner, folder.path()};
};

TEST_F(ScriptPlayersTest, RunsScripts)
{
    struct Case {
        const char* what;
        const char* commands;
        std::optional<QString> output;
    };
    const Case cases[] = {
        {"trimmed, with the line breaks inside", "printf ' \\n a\\nb \\n\\n'; echo lost >&2", u"a\nb"_s},
        {"UTF-8", "printf 'Reykjav\\303\\255k'", u"Reykjavík"_s},
        {"nothing", "", u""_s},
        {"more than a pipe holds", "head -c 300000 /dev/zero | tr '\\0' x", QString(300'000, u'x')},
        {"a failure", "echo a; exit 1", {}},
        {"a crash", "echo a; kill -9 $$", {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        runnerDoes(each.commands);
        EXPECT_EQ(run(u"say \"a b\"\nsay $HOME"_s, runner), each.output);
    }
    EXPECT_THAT(given(), ::testing::StartsWith("-e\nsay \"a b\"\nsay $HOME\n-e\n"));
    EXPECT_EQ(run(u"x"_s, folder.filePath(u"missing"_s)), std::nullopt);
}

TEST_F(ScriptPlayersTest, AsksAndCommandsTheRunningPlayers)
{
    EXPECT_FALSE(players.isAvailable());
    EXPECT_FALSE(players.whyNot().isEmpty());
    runnerDoes("printf 'playing\\na\\nb\\n1\\n2\\n'");
    EXPECT_TRUE(players.isAvailable());
    EXPECT_THAT(players.players(), ElementsAre(Player{u"Music"_s, u"Music"_s}, Player{u"Spotify"_s, u"Spotify"_s}));
    EXPECT_EQ(query(u"Spotify"_s),
        (PlayerTrack{.isPlaying = true, .title = u"a"_s, .artist = u"b"_s, .duration = 1, .position = 2}));
    EXPECT_THAT(given(), HasSubstr("tell application \"Spotify\"\n"));
    EXPECT_THAT(given(), HasSubstr("(((duration of t) / 1000) as string)")) << "one player counts in milliseconds";
    query(u"Music"_s);
    EXPECT_THAT(given(), HasSubstr("linefeed & ((duration of t) as string)"));
    players.command(u"Music"_s, PlayerCommand::previous);
    ASSERT_TRUE(waitUntil([this] { return given().ends_with("tell application \"Music\" to previous track\n"); }));

    runnerDoes("exit 1");
    EXPECT_EQ(query(u"Music"_s), std::nullopt);
    running.clear();
    EXPECT_TRUE(players.players().isEmpty());
}

TEST_F(ScriptPlayersTest, ReadsAnswers)
{
    struct Case {
        const char* what;
        QString answer;
        std::optional<PlayerTrack> track;
    };
    const Case cases[] = {
        {"a failed query", {}, {}},
        {"no track", u"stopped"_s, {}},
        {"four lines", u"playing\na\nb\n3"_s, {}},
        {"five lines", u"playing\nTitle\nArtist\n 180.5 \n\t2"_s,
            PlayerTrack{
                .isPlaying = true, .title = u"Title"_s, .artist = u"Artist"_s, .duration = 180.5, .position = 2}},
        {"any state but playing is a pause", u"Playing\na\nb\n1\n2"_s,
            PlayerTrack{.title = u"a"_s, .artist = u"b"_s, .duration = 1, .position = 2}},
        {"a decimal comma does not count", u"playing\na\n\n200\n12,5"_s,
            PlayerTrack{.isPlaying = true, .title = u"a"_s, .duration = 200}},
        {"neither do words and infinities", u"paused\na\nb\ninf\nmissing value"_s,
            PlayerTrack{.title = u"a"_s, .artist = u"b"_s}},
        {"an address", u"paused\na\nb\n1\n2\nhttps://p.example/a.jpg\nmore"_s,
            PlayerTrack{.title = u"a"_s,
                .artist = u"b"_s,
                .duration = 1,
                .position = 2,
                .picture = u"https://p.example/a.jpg"_s}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(parseScriptTrack(each.answer), each.track) << each.what;
}

TEST_F(ScriptPlayersTest, TakesExportedPictures)
{
    const QByteArray exports = "printf '%s' picture > '" + QFile::encodeName(pictureFile) + "'; ";
    struct Case {
        const char* what;
        QString player;
        QByteArray commands;
        qint64 mostBytes;
        QByteArray picture;
    };
    const Case cases[] = {
        {"a picture", u"Music"_s, exports + "echo ok", plenty, "picture"},
        {"one that is too large", u"Music"_s, exports + "echo ok", 6, {}},
        {"no picture, but one of an earlier track", u"Music"_s, exports + "echo none", plenty, {}},
        {"a failure", u"Music"_s, exports + "echo ok; exit 1", plenty, {}},
        {"a player that exports none", u"Spotify"_s, exports + "echo ok", plenty, {}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        runnerDoes(each.commands);
        EXPECT_EQ(answerOf<QByteArray>(
                      [&](const auto& take) { players.artwork(each.player, each.mostBytes, &players, take); }),
            each.picture);
    }
    EXPECT_THAT(given(), HasSubstr("(POSIX file \"" + pictureFile.toStdString() + "\") with write permission\n"));
}

TEST_F(ScriptPlayersTest, ExportsDoNotMeetInTheFile)
{
    // Each run exports its number, slowly.
    runnerDoes("n=$(grep -c '^-e$' '" + QFile::encodeName(log) + "'); printf 1 > '" + QFile::encodeName(pictureFile)
        + "'; sleep 0.1; printf %s $n > '" + QFile::encodeName(pictureFile) + "'; echo ok");
    QByteArrayList delivered;
    for (int round = 0; round < 3; ++round)
        players.artwork(
            u"Music"_s, plenty, &players, [&delivered](const QByteArray& bytes) { delivered.append(bytes); });
    ASSERT_TRUE(waitUntil([&delivered] { return delivered.size() == 3; }));
    EXPECT_THAT(delivered, ElementsAre("1", "2", "3"));
    EXPECT_FALSE(QFile::exists(pictureFile));
}

} // namespace
} // namespace ambrelle
