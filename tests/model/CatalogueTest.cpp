// SPDX-License-Identifier: MIT

#include "model/NearestCity.h"
#include "model/Skin.h"
#include "model/WeatherCode.h"
#include "model/WidgetCategory.h"
#include "model/WorldCities.h"

#include <QSet>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

template <typename E> void expectNamesToReadBack()
{
    QSet<QString> names;
    for (const E each : allCases<E>()) {
        const QString raw = rawValue(each);
        EXPECT_EQ(parse<E>(raw), each) << raw.toStdString();
        EXPECT_FALSE(parse<E>(raw.toUpper())) << raw.toStdString();
        EXPECT_FALSE(title(each).isEmpty()) << raw.toStdString();
        names.insert(raw);
    }
    EXPECT_EQ(static_cast<std::size_t>(names.size()), allCases<E>().size()) << "two cases share a name";
    EXPECT_FALSE(parse<E>(u""));
}

TEST(CatalogueTest, EveryStoredNameReadsBackAsItself)
{
    expectNamesToReadBack<WidgetKind>();
    expectNamesToReadBack<WidgetCategory>();
    expectNamesToReadBack<WidgetScale>();
    expectNamesToReadBack<Backdrop>();
    expectNamesToReadBack<WidgetLayer>();
    expectNamesToReadBack<OverlapBehavior>();
    expectNamesToReadBack<Skin>();
    expectNamesToReadBack<ThemeGroup>();
    EXPECT_FALSE(parse<Skin>(u"minimal")) << "a group, not a skin";
}

TEST(CatalogueTest, ScalesCycle)
{
    WidgetScale scale = WidgetScale::small;
    for (const WidgetScale each : allCases<WidgetScale>()) {
        EXPECT_EQ(scale, each);
        scale = next(scale);
    }
    EXPECT_EQ(scale, WidgetScale::small);
}

TEST(CatalogueTest, EveryKindCanBeFoundThroughAFilter)
{
    QSet<WidgetKind> found;
    for (const WidgetCategory category : allCases<WidgetCategory>()) {
        const QList<WidgetKind> members = kinds(category);
        const QSet<WidgetKind> different(members.begin(), members.end());
        EXPECT_EQ(different.size(), members.size());
        EXPECT_LE(shortLabel(category).size(), 8) << "it would be cut";
        if (category == WidgetCategory::all)
            EXPECT_EQ(static_cast<std::size_t>(different.size()), allCases<WidgetKind>().size());
        else
            found.unite(different);
    }
    EXPECT_EQ(static_cast<std::size_t>(found.size()), allCases<WidgetKind>().size());
}

TEST(CatalogueTest, AppearancePartnersPairALightSkinWithADarkOne)
{
    for (const Skin skin : allCases<Skin>()) {
        if (const auto partner = appearancePartner(skin)) {
            EXPECT_EQ(appearancePartner(*partner), skin);
            EXPECT_NE(isLight(*partner), isLight(skin));
        }
    }
}

TEST(CatalogueTest, NoTwoSwatchesOfASkinLookTheSame)
{
    for (const Skin skin : allCases<Skin>()) {
        const QList<AccentChoice> choices = accentChoices(skin);
        EXPECT_FALSE(choices.front().color) << "the first one is the skin's own";
        QSet<QString> seen;
        for (const AccentChoice& choice : choices.mid(1)) {
            ASSERT_TRUE(choice.color && choice.color->isValid());
            seen.insert(choice.color->name());
        }
        EXPECT_EQ(seen.size(), choices.size() - 1) << rawValue(skin).data();
    }
}

TEST(WorldCitiesTest, EveryZoneIsKnown)
{
    EXPECT_EQ(worldCities().size(), 27U);
    for (const WorldCity& city : worldCities())
        EXPECT_TRUE(QTimeZone::isTimeZoneIdAvailable(QByteArray(city.zone.data(), city.zone.size()))) << city.name;
}

TEST(NearestCityTest, NamesThePlaceOrNone)
{
    struct Case {
        const char* what;
        double latitude;
        double longitude;
        const char* city;
    };
    const Case cases[] = {
        {"a palace outside", 48.805, 2.12, "Paris"},
        {"between two neighbours, nearer to the one across the bay", 37.81, -122.29, "Oakland"},
        {"one of two cities of a name", 42.99, -81.24, "London"},
        {"south of the equator, west of Greenwich", -22.95, -43.21, "Rio de Janeiro"},
        {"just beyond the city's reach", 48.86, 2.95, nullptr},
        {"the open sea", 0, 0, nullptr},
        {"the pole", 90, 0, nullptr},
        {"across the date line from Suva, far away", -18.12, -178.45, nullptr},
        {"nowhere", std::nan(""), 0, nullptr},
    };
    for (const Case& each : cases)
        EXPECT_EQ(
            nearestCity(each.latitude, each.longitude).value_or(QString()).toStdString(), each.city ? each.city : "")
            << each.what;
}

TEST(NearestCityTest, KnowsWhereTheCitiesOfClocksLie)
{
    for (const WorldCity& city : worldCities()) {
        const auto position = positionOf(QString::fromUtf8(city.name));
        ASSERT_TRUE(position) << city.name;
        EXPECT_EQ(nearestCity(position->latitude, position->longitude), QString::fromUtf8(city.name));
    }
    EXPECT_FALSE(positionOf(u"Atlantis"));
}

TEST(WeatherCodeTest, RangesAreInclusiveAndGapsUnknown)
{
    const std::pair<const char*, QList<int>> cases[] = {{"Clear", {0}}, {"Mostly Clear", {1}}, {"Partly Cloudy", {2}},
        {"Overcast", {3}}, {"Fog", {45, 48}}, {"Drizzle", {51, 52, 57}}, {"Rain", {61, 67}}, {"Snow", {71, 77}},
        {"Showers", {80, 82}}, {"Snow Showers", {85, 86}}, {"Thunderstorms", {95, 96, 99}},
        {"—", {std::numeric_limits<int>::min(), -1, 4, 44, 46, 50, 58, 70, 83, 100}}};
    for (const auto& [description, codes] : cases) {
        for (const int code : codes)
            EXPECT_EQ(WeatherCode::description(code).toStdString(), description) << code;
    }
    EXPECT_EQ(WeatherCode::symbol(1, true), u"cloud.sun.fill"_s);
    EXPECT_EQ(WeatherCode::symbol(1, false), u"cloud.moon.fill"_s);
}

} // namespace
} // namespace ambrelle
