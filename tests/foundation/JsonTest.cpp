// SPDX-License-Identifier: MIT

#include "foundation/Json.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

TEST(JsonReaderTest, TheFirstFaultTellsWhereItIs)
{
    const QJsonObject widget = QJsonDocument::fromJson(R"({"origin": [1], "name": 3, "null": null})").object();
    JsonReader reader(widget, u"widgets[3]"_s);
    EXPECT_FALSE(reader.optional<QString>("absent"_L1));
    EXPECT_EQ(reader.valueOr<int>("null"_L1, 4), 4);
    EXPECT_TRUE(reader.ok());
    reader.optional<QPointF>("origin"_L1);
    reader.required<QString>("name"_L1);
    EXPECT_EQ(reader.fault(), u"widgets[3].origin: expected an array of two numbers"_s);

    JsonReader missing(widget);
    missing.required<QString>("id"_L1);
    EXPECT_EQ(missing.fault(), u"id: missing"_s);
    EXPECT_EQ(JsonReader(QJsonValue(4), missing.path("widgets"_L1, 2)).fault(), u"widgets[2]: expected an object"_s);
    JsonReader outer(widget);
    outer.adopt(missing);
    EXPECT_EQ(outer.fault(), missing.fault());
}

TEST(JsonFormTest, MalformedValuesAreRefused)
{
    const auto parsed = [](const char* text) { return QJsonDocument::fromJson(text).array().at(0); };
    for (const char* text :
        {"[[1, 2, 3]]", "[[1]]", "[[true, 1]]", "[[1e7, 0]]", "[[0, -1000001]]", "[{\"x\": 1}]", "[null]"})
        EXPECT_FALSE(JsonForm<QPointF>::read(parsed(text))) << text;
    for (const char* text : {R"(["{67c8770b-44f1-410a-ab9a-f9b5446f13ee}"])", R"(["67c8770b44f1410aab9af9b5446f13ee"])",
             R"(["67c8770b-44f1-410a-ab9a-f9b5446f13eg"])", R"(["00000000-0000-0000-0000-000000000000"])", "[1]"})
        EXPECT_FALSE(JsonForm<QUuid>::read(parsed(text))) << text;
    EXPECT_TRUE(JsonForm<QUuid>::read(parsed(R"(["67c8770b-44f1-410a-ab9a-f9b5446f13ee"])")))
        << "small letters are fine";
    for (const char* text : {"[1e300]", "[-1e12]", "[\"2025-01-01\"]", "[true]"})
        EXPECT_FALSE(JsonForm<QDateTime>::read(parsed(text))) << text;
}

TEST(JsonFormTest, DatesCountFrom2001)
{
    const QDateTime date(QDate(2025, 6, 2), QTime(10, 0, 0, 250), Qt::UTC);
    EXPECT_EQ(ReferenceDate::date(0)->toSecsSinceEpoch(), 978307200);
    EXPECT_DOUBLE_EQ(JsonForm<QDateTime>::write(date).toDouble(), 770551200.25);
    EXPECT_EQ(JsonForm<QDateTime>::read(JsonForm<QDateTime>::write(date)), date);
    const QDateTime before(QDate(1850, 1, 1), QTime(0, 0, 0, 1), Qt::UTC);
    EXPECT_EQ(JsonForm<QDateTime>::read(JsonForm<QDateTime>::write(before)), before);
}

} // namespace
} // namespace ambrelle
