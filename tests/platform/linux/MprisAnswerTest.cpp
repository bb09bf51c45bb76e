#include "platform/linux/bus/MprisAnswer.h"

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
    map[QLatin1String(name)] = value;
    return map;
}

TEST(MprisAnswerTest, TellsStateTextsAndTimes)
{
    const QVariantMap song{{u"xesam:title"_s, u"Northern Lights"_s}, {u"xesam:artist"_s, QStringList{u"A"_s, u"B"_s}},
        {u"mpris:length"_s, qint64{221'500'000}}, {u"xesam:url"_s, u"file:///music/north%20lights.mp3"_s}};
    const QVariantMap untitled = with(song, "xesam:title", u" "_s);
    const auto largest = std::numeric_limits<qint64>::max();
    struct Case {
        const char* what;
        QVariantMap properties;
        const char* lines;
    };
    const Case cases[] = {
        {"a song", playing(song), "playing\nNorthern Lights\nA, B\n221.500\n1.118"},
        {"pause", with(playing(song), "PlaybackStatus", u"Paused"_s), "paused\nNorthern Lights\nA, B\n221.500\n1.118"},
        {"stopped", with(playing(song), "PlaybackStatus", u"Stopped"_s), "stopped"},
        {"nothing at all", {}, "stopped"},
        {"no title", playing(untitled), "playing\nnorth lights.mp3\nA, B\n221.500\n1.118"},
        {"neither title nor file", playing({}), "playing\nPlayer\n\n0.000\n1.118"},
        {"nothing loaded", with(playing({}), "PlaybackStatus", u"Paused"_s), "stopped"},
        {"a picture", playing(with(song, "mpris:artUrl", u"https://p.example/a"_s)),
            "playing\nNorthern Lights\nA, B\n221.500\n1.118\nhttps://p.example/a"},
        {"texts of several lines", playing(with(song, "xesam:title", u"paused\nTitle\r\n\u2028of\t many "_s)),
            "playing\npaused Title of many\nA, B\n221.500\n1.118"},
        {"an address of several lines", playing(with(song, "mpris:artUrl", u"https://p.example\nhttps://q"_s)),
            "playing\nNorthern Lights\nA, B\n221.500\n1.118"},
        {"one artist, not in a list", playing(with(song, "xesam:artist", u"Solo"_s)),
            "playing\nNorthern Lights\nSolo\n221.500\n1.118"},
        {"times of other types", with(playing(with(song, "mpris:length", u"3000000"_s)), "Position", 2e6),
            "playing\nNorthern Lights\nA, B\n3.000\n2.000"},
        {"absurd times", with(playing(with(song, "mpris:length", largest)), "Position", qint64{-5}),
            "playing\nNorthern Lights\nA, B\n9223372036854.775\n0.000"},
        {"wrong types", with(playing({{u"xesam:title"_s, QVariantMap()}, {u"xesam:artist"_s, 5}}), "Position", u"x"_s),
            "playing\nPlayer\n\n0.000\n0.000"},
        {"metadata of a wrong type", with(playing({}), "Metadata", 5), "playing\nPlayer\n\n0.000\n1.118"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(mprisAnswer(each.properties, u"Player"_s).lines.toStdString(), each.lines) << each.what;

    const QString endless(1'000'000, u'a');
    const QVariantMap flood{{u"xesam:title"_s, endless}, {u"mpris:artUrl"_s, endless}, {u"xesam:artist"_s, endless}};
    EXPECT_LT(mprisAnswer(playing(flood), u"Player"_s).lines.size(), 2000);
}

TEST(MprisAnswerTest, TellsTheRate)
{
    EXPECT_EQ(mprisAnswer(with(playing({}), "Rate", 1.5), u"Player"_s).rate, 1.5);
    for (const QVariant& none : {QVariant(), QVariant(u"fast"_s), QVariant(std::nan(""))})
        EXPECT_EQ(mprisAnswer(with(playing({}), "Rate", none), u"Player"_s).rate, 1);
}

} // namespace
} // namespace ambrelle
