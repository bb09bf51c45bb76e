// SPDX-License-Identifier: MIT

#include "platform/linux/bus/MprisAnswer.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// As mpv tells it.
QVariantMap playing(const QVariantMap& metadata)
{
    return {{u"PlaybackStatus"_s, u"Playing"_s}, {u"Rate"_s, 1.0}, {u"Position"_s, qint64{1'117'637}},
        {u"Metadata"_s, metadata}, {u"Volume"_s, 1.0}};
}

QVariantMap with(QVariantMap map, const char* name, const QVariant& value)
{
    map[QLatin1StringView(name)] = value;
    return map;
}

TEST(MprisAnswerTest, TellsStateTextsAndTimes)
{
    const QVariantMap song{{u"xesam:title"_s, u"Northern Lights"_s}, {u"xesam:artist"_s, QStringList{u"A"_s, u"B"_s}},
        {u"mpris:length"_s, qint64{221'500'000}}, {u"xesam:url"_s, u"file:///music/north%20lights.mp3"_s}};
    const QVariantMap untitled = with(song, "xesam:title", u" "_s);
    const auto largest = std::numeric_limits<qint64>::max();
    const PlayerTrack played{
        .isPlaying = true, .title = u"Northern Lights"_s, .artist = u"A, B"_s, .duration = 221.5, .position = 1.117637};
    const PlayerTrack nameless{.isPlaying = true, .title = u"Player"_s, .position = 1.117637};
    const auto changed = [](PlayerTrack track, auto member, const auto& value) {
        track.*member = value;
        return track;
    };
    const PlayerTrack timeless = changed(changed(played, &PlayerTrack::duration, 0.0), &PlayerTrack::position, 0.0);
    struct Case {
        const char* what;
        QVariantMap properties;
        std::optional<PlayerTrack> track;
    };
    const Case cases[] = {
        {"a song", playing(song), played},
        {"pause", with(playing(song), "PlaybackStatus", u"Paused"_s), changed(played, &PlayerTrack::isPlaying, false)},
        {"stopped", with(playing(song), "PlaybackStatus", u"Stopped"_s), {}},
        {"nothing at all", {}, {}},
        {"no title", playing(untitled), changed(played, &PlayerTrack::title, u"north lights.mp3"_s)},
        {"neither title nor file", playing({}), nameless},
        {"nothing loaded", with(playing({}), "PlaybackStatus", u"Paused"_s), {}},
        {"a picture", playing(with(song, "mpris:artUrl", u"https://p.example/a"_s)),
            changed(played, &PlayerTrack::picture, u"https://p.example/a"_s)},
        {"texts of several lines", playing(with(song, "xesam:title", u"paused\nTitle\r\n\u2028of\t many "_s)),
            changed(played, &PlayerTrack::title, u"paused Title of many"_s)},
        {"an address of several lines", playing(with(song, "mpris:artUrl", u"https://p.example\nhttps://q"_s)), played},
        {"one artist, not in a list", playing(with(song, "xesam:artist", u"Solo"_s)),
            changed(played, &PlayerTrack::artist, u"Solo"_s)},
        {"times of other types", with(playing(with(song, "mpris:length", u"3000000"_s)), "Position", 2e6),
            changed(changed(played, &PlayerTrack::duration, 3.0), &PlayerTrack::position, 2.0)},
        {"absurd times", with(playing(with(song, "mpris:length", largest)), "Position", qint64{-5}), timeless},
        {"more absurd times", with(playing(with(song, "mpris:length", ~quint64{0})), "Position", largest), timeless},
        {"no times", with(playing(with(song, "mpris:length", std::nan(""))), "Position", ~quint64{0}), timeless},
        {"texts that turn and hide letters",
            playing(with(song, "xesam:title", u"\u202Enrae\u200Bl \u2066cod\u0007.exe"_s)),
            changed(played, &PlayerTrack::title, u"nrael cod.exe"_s)},
        {"wrong types", with(playing({{u"xesam:title"_s, QVariantMap()}, {u"xesam:artist"_s, 5}}), "Position", u"x"_s),
            changed(nameless, &PlayerTrack::position, 0.0)},
        {"metadata of a wrong type", with(playing({}), "Metadata", 5), nameless},
    };
    for (const Case& each : cases)
        EXPECT_EQ(mprisAnswer(each.properties, u"Player"_s).track, each.track) << each.what;

    const QString endless(1'000'000, u'a');
    const QVariantMap flood{{u"xesam:title"_s, endless}, {u"mpris:artUrl"_s, endless}, {u"xesam:artist"_s, endless}};
    const PlayerTrack cut = mprisAnswer(playing(flood), u"Player"_s).track.value();
    EXPECT_EQ(cut.title.size(), 500);
    EXPECT_EQ(cut.artist.size(), 500);
    EXPECT_TRUE(cut.picture.isEmpty());
}

/// Values of every kind in every place; what it finds are crashes and what sanitizers see.
TEST(MprisAnswerTest, NonsenseHarmsNothing)
{
    QRandomGenerator random(20250603);
    const auto text = [&random] {
        QString letters(random.bounded(700), u' ');
        for (QChar& letter : letters)
            letter = QChar(static_cast<char16_t>(random.bounded(0x10000)));
        return letters;
    };
    const auto value = [&]() -> QVariant {
        switch (random.bounded(9)) {
        case 0: return text();
        case 1: return QStringList{text(), text()};
        case 2: return static_cast<qint64>(random.generate64());
        case 3: return random.generate64();
        case 4: return random.generateDouble() * std::pow(10, random.bounded(600) - 290);
        case 5: return std::numeric_limits<double>::infinity();
        case 6: return QVariantMap{{text(), text()}};
        case 7: return QByteArray("\xFF\xFE");
        default: return {};
        }
    };
    const int rounds = qEnvironmentVariable("AMBRELLE_MUTATIONS", u"200"_s).toInt();
    for (int round = 0; round < rounds; ++round) {
        QVariantMap metadata;
        for (const char* name : {"xesam:title", "xesam:artist", "xesam:url", "mpris:artUrl", "mpris:length"})
            metadata.insert(QLatin1StringView(name), value());
        const QVariantMap properties = with(with(playing(metadata), "Rate", value()), "Position", value());
        const MprisAnswer answer = mprisAnswer(properties, u"Player"_s);
        ASSERT_TRUE(answer.track && std::isfinite(answer.rate));
        EXPECT_LE(answer.track->title.size(), 500);
        EXPECT_LE(answer.track->artist.size(), 500);
        for (const double time : {answer.track->duration, answer.track->position})
            EXPECT_TRUE(time >= 0 && time <= 360'000) << time;
    }
}

TEST(MprisAnswerTest, TellsTheRate)
{
    EXPECT_EQ(mprisAnswer(with(playing({}), "Rate", 1.5), u"Player"_s).rate, 1.5);
    for (const QVariant& none : {QVariant(), QVariant(u"fast"_s), QVariant(std::nan(""))})
        EXPECT_EQ(mprisAnswer(with(playing({}), "Rate", none), u"Player"_s).rate, 1);
}

} // namespace
} // namespace ambrelle
