// SPDX-License-Identifier: MIT

#include "model/WidgetConfig.h"
#include "foundation/Json.h"

#include <QJsonDocument>
#include <QSet>

#include <gtest/gtest.h>

#include <limits>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

WidgetConfig everyFieldSet()
{
    WidgetConfig config(WidgetKind::nowPlaying, Skin::fieldDark, WidgetScale::doubled, QPointF(-1280.5, 0.1));
    config.pinned = true;
    config.backdrop = Backdrop::dim;
    config.border = true;
    config.opacity = 1.0 / 3;
    config.fit = 0.7123456789;
    config.timeZone = u"Asia/Tokyo"_s;
    config.city = u"T\u014Dky\u014D"_s;
    config.photoFolder = u"/pictures/a \"b\""_s;
    config.photoInterval = std::numeric_limits<int>::max();
    config.photoFill = false;
    config.countdownTitle = QString();
    config.countdownDate = QDateTime(QDate(2031, 12, 31), QTime(23, 59, 59, 999), Qt::UTC);
    config.countdownStart = QDateTime(QDate(1999, 1, 1), QTime(0, 0), Qt::UTC);
    config.quoteWords = true;
    config.display = u"DEL-1234"_s;
    config.displayOffset = QPointF(12.25, -3);
    return config;
}

std::optional<WidgetConfig> decodeOne(const QByteArray& object)
{
    const auto list = WidgetConfig::decodeList('[' + object + ']');
    return list && list->size() == 1 ? std::optional(list->front()) : std::nullopt;
}

TEST(WidgetConfigTest, EveryFieldSurvivesARoundTrip)
{
    const QList<WidgetConfig> configs{everyFieldSet(), WidgetConfig(WidgetKind::clock, Skin::paper)};
    const auto decoded = WidgetConfig::decodeList(WidgetConfig::encodeList(configs));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(*decoded, configs);
    EXPECT_EQ(configs[0].encode().size(), 21);
    EXPECT_EQ(configs[1].encode().size(), 13) << "fields without a value are left out";
    const QJsonObject json = configs[0].encode();
    EXPECT_EQ(json[u"scale"_s], u"double"_s);
    EXPECT_EQ(json[u"origin"_s], (QJsonArray{-1280.5, 0.1}));
    EXPECT_DOUBLE_EQ(json[u"countdownStart"_s].toDouble(), -63158400.0);
    EXPECT_EQ(json[u"id"_s].toString(), configs[0].id.toString(QUuid::WithoutBraces).toUpper());
}

TEST(WidgetConfigTest, EveryFieldCountsForEquality)
{
    const WidgetConfig full = everyFieldSet();
    const QJsonObject json = full.encode();
    for (const QString& key : json.keys()) {
        if (key == u"kind" || key == u"origin")
            continue;
        QJsonObject without = json;
        without.remove(key);
        JsonReader reader(without);
        const auto decoded = WidgetConfig::decode(reader);
        ASSERT_TRUE(decoded) << key.toStdString() << " is not required";
        EXPECT_NE(*decoded, full) << key.toStdString();
    }
}

TEST(WidgetConfigTest, AbsentAndForgivenFieldsTakeTheirDefaults)
{
    for (const char* skin :
        {R"(, "skin": "vapour")", R"(, "skin": 7)", R"(, "skin": null)", "", R"(, "skin": "minimal")"}) {
        const auto config =
            decodeOne(R"({"kind": "clock", "origin": [10, 20], "unheard": {"of": 1})" + QByteArray(skin) + '}');
        ASSERT_TRUE(config) << skin;
        WidgetConfig expected(WidgetKind::clock, Skin::glass, WidgetScale::medium, QPointF(10, 20));
        expected.id = config->id;
        EXPECT_EQ(*config, expected) << skin;
        EXPECT_FALSE(config->id.isNull());
    }
    EXPECT_EQ(decodeOne(R"({"kind": "sky", "origin": [0, 0], "opacity": 7})")->opacity, 1);
    EXPECT_EQ(decodeOne(R"({"kind": "sky", "origin": [0, 0], "opacity": -1})")->opacity, 0);
    for (const auto& [stored, fit] :
        {std::pair("0", 0.01), {"-1", 0.01}, {"0.02", 0.02}, {"11", 10.0}, {"1e300", 10.0}})
        EXPECT_EQ(decodeOne(R"({"kind": "sky", "origin": [0, 0], "fit": )" + QByteArray(stored) + '}')->fit, fit);
    EXPECT_EQ(
        decodeOne(R"({"kind": "sky", "origin": [0, 0], "photoInterval": 10.0, "city": null})")->photoInterval, 10);
}

TEST(WidgetConfigTest, AMalformedFieldDropsItsElementAndNoOther)
{
    const char* bad[] = {R"("id": "x")", R"("id": 5)", R"("kind": "Clock")", R"("kind": 1)", R"("scale": "tiny")",
        R"("scale": 1)", R"("origin": [1])", R"("origin": [1, "2"])", R"("origin": {"x": 1, "y": 2})",
        R"("origin": [1e9, 0])", R"("pinned": 1)", R"("backdrop": "blur")", R"("border": "yes")", R"("opacity": "1")",
        R"("opacity": true)", R"("fit": "1")", R"("timeZone": 3)", R"("city": [])", R"("photoFolder": false)",
        R"("photoInterval": 2.5)", R"("photoInterval": 1e12)", R"("photoFill": 0)", R"("countdownTitle": 1)",
        R"("countdownDate": "tomorrow")", R"("countdownDate": 1e300)", R"("countdownStart": [])", R"("quoteWords": 1)",
        R"("display": 1)", R"("displayOffset": [1])"};
    const QByteArray good = R"({"kind": "cpu", "skin": "paper", "origin": [1, 2]})";
    for (const char* member : bad) {
        QJsonObject element = QJsonDocument::fromJson(good).object();
        const QJsonObject fault = QJsonDocument::fromJson('{' + QByteArray(member) + '}').object();
        ASSERT_EQ(fault.size(), 1) << member;
        element.insert(fault.begin().key(), fault.begin().value());
        const QByteArray list = '[' + good + ',' + QJsonDocument(element).toJson() + ',' + good + ']';
        const auto decoded = WidgetConfig::decodeList(list);
        ASSERT_TRUE(decoded) << member;
        EXPECT_EQ(decoded->size(), 2) << member;
        JsonReader reader(element, u"widgets[1]"_s);
        EXPECT_FALSE(WidgetConfig::decode(reader));
        EXPECT_TRUE(reader.fault().startsWith(u"widgets[1]."_s + fault.begin().key() + u": expected"_s)) << member;
    }
}

TEST(WidgetConfigTest, ListsThatAreNoneAndListsOfRubbish)
{
    for (const char* json : {"", "{}", "null", "\"[]\"", "[", "[{}", R"({"widgets": []})"})
        EXPECT_FALSE(WidgetConfig::decodeList(json)) << json;
    EXPECT_EQ(WidgetConfig::decodeList("[]"), QList<WidgetConfig>());
    EXPECT_EQ(WidgetConfig::decodeList(R"([null, 1, "clock", [], {}, {"origin": [1, 2]}, {"kind": "clock"}])"),
        QList<WidgetConfig>());
}

TEST(WidgetConfigTest, TwoWidgetsNeverShareAnIdentity)
{
    const QByteArray one = QJsonDocument(everyFieldSet().encode()).toJson();
    const auto decoded = WidgetConfig::decodeList('[' + one + ',' + one + ',' + one + ']');
    ASSERT_EQ(decoded->size(), 3);
    EXPECT_EQ(decoded->front().id, JsonForm<QUuid>::read(QJsonDocument::fromJson(one)[u"id"_s]));
    EXPECT_EQ((QSet<QUuid>{decoded->at(0).id, decoded->at(1).id, decoded->at(2).id}).size(), 3);
}

TEST(WidgetConfigTest, SizesAreWholePointsHalvesAwayFromZero)
{
    struct Row {
        WidgetKind kind;
        Skin skin;
        WidgetScale scale;
        double fit, width, height;
    };
    using enum WidgetKind;
    const Row rows[] = {
        {clock, Skin::glass, WidgetScale::doubled, 1, 721, 350},
        {cpu, Skin::glass, WidgetScale::doubled, 1, 350, 350},
        {cpu, Skin::glass, WidgetScale::small, 1, 128, 128},
        {clock, Skin::glass, WidgetScale::small, 1, 263, 128}, // 262.5 and 127.5
        {memory, Skin::classic, WidgetScale::medium, 0.5, 175, 85},
        {memory, Skin::paper, WidgetScale::medium, 0.5, 85, 85},
        {downloads, Skin::neon, WidgetScale::large, 1, 438, 213}, // 437.5 and 212.5
        {downloads, Skin::grove, WidgetScale::large, 1, 213, 213},
        {quote, Skin::classic, WidgetScale::huge, 1, 525, 255},
        {sky, Skin::paper, WidgetScale::huge, 1, 255, 255},
    };
    for (const Row& row : rows) {
        WidgetConfig config(row.kind, row.skin, row.scale, QPointF(3, 4));
        config.fit = row.fit;
        EXPECT_EQ(config.frame(), QRectF(3, 4, row.width, row.height))
            << rawValue(row.kind).data() << " in " << rawValue(row.skin).data();
    }
}

} // namespace
} // namespace ambrelle
