// SPDX-License-Identifier: MIT

#include "model/ThemeStore.h"
#include "foundation/Json.h"
#include "foundation/UserDefaults.h"
#include "support/FullDisk.h"
#include "support/TestFolder.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

#include <limits>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

const QString themesKey = u"savedThemes.v1"_s;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

SavedTheme namedTheme(const QString& name)
{
    return {QUuid::createUuid(), name, QDateTime(QDate(2026, 11, 14), QTime(8, 30, 0, 125), Qt::UTC), Skin::neon,
        {{WidgetConfig(WidgetKind::clock, Skin::neon), 0.25, 1.0 / 3}}};
}

std::string names(const ThemeStore& store)
{
    QStringList list;
    for (const SavedTheme& theme : store.themes())
        list << theme.name;
    return list.join(u' ').toStdString();
}

QJsonArray storedThemes(const UserDefaults& defaults)
{
    return QJsonDocument::fromJson(defaults.data(themesKey).value_or(QByteArray())).array();
}

TEST(SavedThemeTest, IsStoredInTheExchangedForm)
{
    SavedTheme theme = namedTheme(u"Evening"_s);
    theme.id = QUuid(u"a0b1c2d3-0000-4000-8000-00000000000f"_s);
    const QJsonObject json = theme.encode();
    EXPECT_EQ(json[u"id"_s], u"A0B1C2D3-0000-4000-8000-00000000000F"_s);
    EXPECT_EQ(json[u"created"_s].toDouble(), 816337800.125);
    EXPECT_EQ(json[u"wallpaper"_s], u"neon"_s);
    EXPECT_EQ(json[u"widgets"_s].toArray().first(),
        (QJsonObject{{u"config"_s, theme.widgets[0].config.encode()}, {u"fx"_s, 0.25}, {u"fy"_s, 1.0 / 3}}));
    theme.wallpaper.reset();
    EXPECT_EQ(theme.encode().keys(), (QStringList{u"created"_s, u"id"_s, u"name"_s, u"widgets"_s}));
}

// Each member in turn is missing or another thing; what a screen cannot hold comes back as what it can.
TEST(SavedThemeTest, AFaultAnywhereRefusesTheWholeThemeAndIsNamed)
{
    const QJsonObject good = namedTheme(u"Evening"_s).encode();
    const std::pair<QString, QJsonValue> faults[] = {{u"id"_s, QJsonValue()}, {u"id"_s, u"7"_s}, {u"name"_s, 3},
        {u"created"_s, u"2026"_s}, {u"created"_s, 1e300}, {u"wallpaper"_s, u"vapour"_s}, {u"widgets"_s, QJsonValue()},
        {u"widgets"_s, QJsonObject()}};
    for (const auto& [key, value] : faults) {
        QJsonObject bad = good;
        bad.insert(key, value);
        JsonReader reader(bad);
        EXPECT_FALSE(SavedTheme::decode(reader)) << key.toStdString();
        EXPECT_TRUE(reader.fault().startsWith(key + u": "_s)) << reader.fault().toStdString();
    }
    const QJsonObject widget = good[u"widgets"_s][0].toObject();
    const std::pair<QString, QJsonValue> widgetFaults[] = {
        {u"config"_s, QJsonValue()}, {u"config"_s, QJsonObject()}, {u"fx"_s, QJsonValue()}, {u"fy"_s, u"0"_s}};
    for (const auto& [key, value] : widgetFaults) {
        QJsonObject bad = widget;
        bad.insert(key, value);
        QJsonObject theme = good;
        theme.insert(u"widgets"_s, QJsonArray{widget, bad, widget});
        JsonReader reader(theme);
        EXPECT_FALSE(SavedTheme::decode(reader)) << key.toStdString();
        EXPECT_TRUE(reader.fault().startsWith(u"widgets[1]."_s + key)) << reader.fault().toStdString();
    }
    for (const auto& [part, stored] : {std::pair(notANumber, 0.0), {1e300, 50.0}, {-0.25, -0.25}, {-1e9, -50.0}}) {
        SavedTheme theme = namedTheme(u"Evening"_s);
        theme.widgets[0].fx = part;
        JsonReader reader(theme.encode());
        const std::optional<SavedTheme> again = SavedTheme::decode(reader);
        ASSERT_TRUE(again) << part;
        EXPECT_EQ(again->widgets[0].fx, stored);
    }
}

TEST(ThemeStoreTest, EveryChangeIsThereAfterARestart)
{
    UserDefaults defaults = UserDefaults::temporary();
    ThemeStore store(defaults);
    int told = 0;
    QObject::connect(&store, &ThemeStore::changed, [&] { ++told; });
    const auto expectNames = [&](const char* expected) {
        EXPECT_EQ(names(store), expected);
        EXPECT_EQ(ThemeStore(defaults).themes(), store.themes()) << expected;
    };
    const SavedTheme first = namedTheme(u"first"_s);
    const SavedTheme second = namedTheme(u"second"_s);
    EXPECT_TRUE(store.add(first) && store.add(second) && store.add(namedTheme(u"third"_s)));
    expectNames("third second first");
    store.remove(second.id);
    expectNames("third first");
    EXPECT_TRUE(store.insert(second, 1));
    EXPECT_EQ(store.themes()[1], second);
    EXPECT_TRUE(store.insert(namedTheme(u"last"_s), 99) && store.insert(namedTheme(u"newest"_s), -1));
    store.rename(second.id, u" \t"_s + QString(58, u'x') + u" \U0001F468 "_s);
    EXPECT_EQ(store.themes()[2].name, QString(58, u'x')) << "no half letter, no space before it";
    store.rename(second.id, u" 2nd "_s);
    expectNames("newest third 2nd first last");
    EXPECT_EQ(store.themes()[2].created, second.created);
    EXPECT_EQ(told, 9);
    store.rename(second.id, u"  "_s);
    store.rename(second.id, u"2nd"_s);
    store.rename(QUuid::createUuid(), u"nobody"_s);
    store.remove(QUuid::createUuid());
    EXPECT_EQ(told, 9) << "nothing was changed";
    EXPECT_TRUE(store.add(first));
    EXPECT_NE(store.themes()[0].id, first.id) << "it is there already";
    expectNames("first newest third 2nd first last");
}

TEST(ThemeStoreTest, WhatCannotBeReadHarmsNothingAndStays)
{
    UserDefaults defaults = UserDefaults::temporary();
    QJsonObject known = namedTheme(u"known"_s).encode();
    known.insert(u"mood"_s, u"calm"_s);
    QJsonObject foreign = namedTheme(u"foreign"_s).encode();
    foreign.insert(u"wallpaper"_s, u"vapour"_s);
    const QJsonArray before{u"rubbish"_s, known, foreign, known, QJsonValue(), QJsonObject{{u"spots"_s, 3}}};
    defaults.setData(themesKey, QJsonDocument(before).toJson());
    ThemeStore store(defaults);
    ASSERT_EQ(names(store), "known known");
    EXPECT_NE(store.themes()[0].id, store.themes()[1].id);
    store.rename(store.themes()[1].id, u"later"_s);
    EXPECT_EQ(names(store), "known later") << "the one that was meant";
    EXPECT_TRUE(store.insert(namedTheme(u"between"_s), 1));
    store.remove(store.themes()[0].id);
    const QJsonArray after = storedThemes(defaults);
    ASSERT_EQ(after.size(), 6);
    EXPECT_EQ(after[2][u"name"_s], u"between"_s);
    EXPECT_EQ(after[3][u"mood"_s], u"calm"_s);
    for (const auto& [was, is] : {std::pair(0, 0), {2, 1}, {4, 4}, {5, 5}})
        EXPECT_EQ(after[is], before[was]) << was;

    for (const char* noList : {"{\"themes\": []}", "[{]", "[{]", "text"}) {
        defaults.setData(themesKey, noList);
        ThemeStore empty(defaults);
        EXPECT_EQ(names(empty), "");
        EXPECT_TRUE(empty.add(namedTheme(u"new"_s)) && empty.add(namedTheme(u"newer"_s)));
        EXPECT_EQ(names(ThemeStore(defaults)), "newer new");
    }
    EXPECT_EQ(defaults.data(u"savedThemes.unreadable"_s), "{\"themes\":[]}");
    EXPECT_EQ(defaults.data(u"savedThemes.unreadable-2"_s), "[{]") << "each is kept, once";
    EXPECT_EQ(defaults.data(u"savedThemes.unreadable-3"_s), "text");
}

TEST(ThemeStoreTest, WhatIsPutBackIsAsItWas)
{
    UserDefaults defaults = UserDefaults::temporary();
    QJsonObject known = namedTheme(u"known"_s).encode();
    known.insert(u"mood"_s, u"calm"_s);
    const QJsonArray before{namedTheme(u"first"_s).encode(), u"rubbish"_s, known, namedTheme(u"last"_s).encode()};
    defaults.setData(themesKey, QJsonDocument(before).toJson());
    ThemeStore store(defaults);
    const std::optional<ThemeStore::Taken> taken = store.remove(store.themes()[1].id);
    ASSERT_TRUE(taken);
    EXPECT_EQ(names(store), "first last");
    EXPECT_TRUE(store.putBack(*taken));
    EXPECT_EQ(storedThemes(defaults), before);
    EXPECT_TRUE(store.putBack(*taken)) << "a second one of it";
    EXPECT_NE(store.themes()[1].id, store.themes()[2].id);
    EXPECT_FALSE(store.remove(QUuid::createUuid()));
}

TEST(ThemeStoreTest, AFullDiskIsToldAndLosesNothing)
{
    const TestFolder folder;
    const QString path = folder.filePath(u"defaults.json"_s);
    int told = 0;
    {
        UserDefaults defaults(path);
        ThemeStore store(defaults);
        QObject::connect(&store, &ThemeStore::refused, [&] {
            ++told;
            EXPECT_EQ(names(store), "Evening") << "as it is from now on";
        });
        {
            const test::FullDisk disk;
            EXPECT_TRUE(store.add(namedTheme(u"Evening"_s)));
            EXPECT_FALSE(store.storeAgain());
        }
        EXPECT_EQ(told, 1);
        EXPECT_TRUE(store.storeAgain());
    }
    UserDefaults again(path);
    EXPECT_EQ(names(ThemeStore(again)), "Evening");
}

TEST(ThemeStoreTest, RefusesWhatWouldNotComeBackOrFillsTheSettings)
{
    UserDefaults defaults = UserDefaults::temporary();
    ThemeStore store(defaults);
    SavedTheme nowhere = namedTheme(u"nowhere"_s);
    nowhere.widgets[0].config.origin.setX(notANumber);
    EXPECT_FALSE(store.add(nowhere));
    SavedTheme vast = namedTheme(u"vast"_s);
    vast.widgets[0].config.photoFolder = QString(5'000'000, u'x');
    EXPECT_TRUE(store.add(vast));
    EXPECT_FALSE(store.add(vast));
    EXPECT_EQ(names(ThemeStore(defaults)), "vast");
    SavedTheme crowded = namedTheme(u"crowded"_s);
    crowded.widgets = QList<SavedWidget>(1000, crowded.widgets[0]);
    EXPECT_TRUE(store.add(crowded)) << "a thousand widgets are fine";
}

} // namespace
} // namespace ambrelle
