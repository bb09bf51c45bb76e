// SPDX-License-Identifier: MIT

#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"

#include <QJsonObject>
#include <QLocale>
#include <QSet>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

TEST(AppSettingsTest, MalformedValuesLoadAsTheirDefaults)
{
    UserDefaults defaults = UserDefaults::temporary();
    defaults.set(u"layer"_s, u"Floating"_s);
    defaults.set(u"overlap"_s, u"shrink"_s);
    defaults.set(u"defaultSkin"_s, u"concept"_s);
    defaults.set(u"interval"_s, -1);
    defaults.set(u"focusMinutes"_s, u"50"_s);
    defaults.set(u"breakMinutes"_s, 7.5);
    defaults.set(u"showScene"_s, 0);
    defaults.set(u"locked"_s, u"yes"_s);
    defaults.set(u"weatherCity"_s, 12);
    defaults.set(u"excludedCalendars"_s, u"one"_s);
    defaults.set(u"editing"_s, true);
    const AppSettings settings(defaults);
    EXPECT_EQ(settings.layer(), WidgetLayer::desktop);
    EXPECT_EQ(settings.overlap(), OverlapBehavior::fade);
    EXPECT_EQ(settings.defaultSkin(), Skin::glass);
    EXPECT_EQ(settings.interval(), 2.0);
    EXPECT_EQ(settings.focusMinutes(), 25);
    EXPECT_EQ(settings.breakMinutes(), 5);
    EXPECT_TRUE(settings.showScene());
    EXPECT_FALSE(settings.locked());
    EXPECT_EQ(settings.weatherCity(), QString());
    EXPECT_EQ(settings.excludedCalendars(), QStringList());
    EXPECT_FALSE(settings.editing());
}

TEST(AppSettingsTest, ChangesAreStoredToldAndLoadedAgain)
{
    UserDefaults defaults = UserDefaults::temporary();
    QStringList told;
    {
        AppSettings settings(defaults);
        QObject::connect(&settings, &AppSettings::changed, [&](const QString& key) { told << key; });
        settings.layer.set(WidgetLayer::floating);
        settings.layer.set(WidgetLayer::floating);
        settings.interval.set(5);
        settings.defaultSkin.set(Skin::fieldDark);
        settings.overlap.set(OverlapBehavior::hide);
        settings.customWallpapers.set({u"/a"_s, u"/b"_s});
        settings.longBreakMinutes.set(20);
        settings.installUpdates.set(false);
        settings.weatherCity.set(u"Z\u00FCrich"_s);
        settings.editing.set(true);
        EXPECT_FALSE(settings.hasLaunchedBefore());
        settings.setHasLaunchedBefore(true);
    }
    EXPECT_EQ(told.join(u' '),
        u"layer interval defaultSkin overlap customWallpapers longBreakMinutes installUpdates "
        "weatherCity editing");
    EXPECT_EQ(defaults.string(u"layer"_s), u"floating"_s);
    EXPECT_EQ(defaults.string(u"defaultSkin"_s), u"fieldDark"_s);
    const AppSettings again(defaults);
    EXPECT_EQ(again.layer(), WidgetLayer::floating);
    EXPECT_EQ(again.interval(), 5.0);
    EXPECT_EQ(again.defaultSkin(), Skin::fieldDark);
    EXPECT_EQ(again.overlap(), OverlapBehavior::hide);
    EXPECT_EQ(again.customWallpapers(), (QStringList{u"/a"_s, u"/b"_s}));
    EXPECT_EQ(again.longBreakMinutes(), 20);
    EXPECT_FALSE(again.installUpdates());
    EXPECT_EQ(again.weatherCity(), u"Z\u00FCrich"_s);
    EXPECT_FALSE(again.editing());
    EXPECT_TRUE(again.hasLaunchedBefore());
}

// Whatever its type, each value is found in the store; those that stay are listed.
TEST(AppSettingsTest, ResettingTakesBackEveryChoiceAndCanBeUndone)
{
    UserDefaults defaults = UserDefaults::temporary();
    for (const auto& [key, number] : {std::pair(u"interval"_s, 7), {u"downloadResetMinutes"_s, 7},
             {u"wallpaperShuffleMinutes"_s, 7}, {u"focusMinutes"_s, 7}, {u"breakMinutes"_s, 7}})
        defaults.set(key, number);
    for (const auto& [key, on] : {std::pair(u"locked"_s, true), {u"followAppearance"_s, true}, {u"showScene"_s, false},
             {u"clickToOpen"_s, false}, {u"animations"_s, false}, {u"focusSound"_s, false},
             {u"checkForUpdates"_s, false}, {u"installUpdates"_s, false},
             {u"useFahrenheit"_s, !AppSettings(defaults).useFahrenheit()}})
        defaults.set(key, on);
    for (const auto& [key, text] : {std::pair(u"layer"_s, u"floating"_s), {u"overlap"_s, u"hide"_s},
             {u"defaultSkin"_s, u"neon"_s}, {u"weatherCity"_s, u"Bergen"_s}, {u"windowSystem"_s, u"x11"_s}})
        defaults.set(key, text);
    defaults.set(u"excludedCalendars"_s, QStringList{u"work"_s});
    defaults.set(u"customWallpapers"_s, QStringList{u"/a"_s});
    const auto standardBreak = u"longBreakMinutes"_s;
    AppSettings settings(defaults);
    defaults.set(standardBreak, settings.longBreakMinutes()); // chosen, though it is the standard
    settings.setHasLaunchedBefore(true);
    settings.editing.set(true);
    const QJsonObject chosen = settings.snapshot();
    EXPECT_EQ(chosen.size(), 21);

    QStringList told;
    QObject::connect(&settings, &AppSettings::changed, [&](const QString& key) { told << key; });
    const auto isAllTold = [&] { return QSet(told.begin(), told.end()).size() == 20 && told.size() == 20; };
    settings.reset();
    EXPECT_EQ(settings.snapshot(), QJsonObject()) << "the country decides again";
    EXPECT_EQ(settings.focusMinutes(), 25);
    EXPECT_TRUE(isAllTold()) << told.join(u' ').toStdString();
    EXPECT_TRUE(settings.editing() && settings.hasLaunchedBefore());
    EXPECT_EQ(settings.customWallpapers(), QStringList{u"/a"_s});
    told.clear();
    settings.restore(chosen);
    EXPECT_TRUE(isAllTold()) << told.join(u' ').toStdString();
    EXPECT_EQ(settings.snapshot(), chosen);
    EXPECT_EQ(AppSettings(defaults).focusMinutes(), 7);
}

TEST(AppSettingsTest, TheCountryDecidesTheTemperatureUnitUntilTheUserDoes)
{
    const QLocale before;
    UserDefaults defaults = UserDefaults::temporary();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_TRUE(AppSettings(defaults).useFahrenheit());
    AppSettings(defaults).useFahrenheit.set(false);
    EXPECT_FALSE(AppSettings(defaults).useFahrenheit());
    defaults.remove(u"useFahrenheit"_s);
    for (const QLocale& metric :
        {QLocale(QLocale::German, QLocale::Germany), QLocale(QLocale::English, QLocale::UnitedKingdom)}) {
        QLocale::setDefault(metric);
        EXPECT_FALSE(AppSettings(defaults).useFahrenheit());
    }
    QLocale::setDefault(before);
}

TEST(ThemeAccentTest, HexTextsAreStrict)
{
    EXPECT_EQ(colorFromHex(u"#0aF3b9"), QColor(0x0A, 0xF3, 0xB9));
    for (const char16_t* text :
        {u"", u"#", u"0AF3B9", u"#0AF3B", u"#0AF3B90", u"#0AF3BG", u"#+AF3B9", u"#0AF3B\uFF19", u"red", u"#FFF"})
        EXPECT_FALSE(colorFromHex(text)) << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(hexText(QColor::fromRgbF(1, 0.7f, 0.1f)), u"#FFB31A"); // 178.5 and 25.5 round up
    EXPECT_EQ(hexText(QColor::fromHsv(120, 255, 255)), u"#00FF00");
    EXPECT_EQ(hexText(QColor()), u"");
}

TEST(ThemeAccentTest, AccentsSurviveARestartBesideThoseOfUnknownSkins)
{
    UserDefaults defaults = UserDefaults::temporary();
    const auto key = u"themeAccents"_s;
    defaults.set(key, QJsonObject{{u"vapour"_s, u"#112233"_s}, {u"paper"_s, u"#abcdef"_s}, {u"neon"_s, 4}});
    int told = 0;
    {
        ThemeAccent accent(defaults);
        QObject::connect(&accent, &ThemeAccent::changed, [&] { ++told; });
        EXPECT_EQ(accent.color(Skin::paper), QColor(0xAB, 0xCD, 0xEF));
        EXPECT_FALSE(accent.color(Skin::neon));
        accent.set(QColor(1, 2, 3), Skin::glass);
        accent.set(QColor(1, 2, 3), Skin::glass);
        accent.set(std::nullopt, Skin::paper);
        accent.set(QColor(), Skin::chalk);
        EXPECT_EQ(accent.revision(), 2);
    }
    EXPECT_EQ(told, 2);
    EXPECT_EQ(defaults.object(key), (QJsonObject{{u"vapour"_s, u"#112233"_s}, {u"glass"_s, u"#010203"_s}}));
    ThemeAccent accent(defaults);
    EXPECT_EQ(accent.hexOverrides(), (QMap<QString, QString>{{u"glass"_s, u"#010203"_s}}));
    accent.apply({{u"mono"_s, u"#ffffff"_s}, {u"nothing"_s, u"#000000"_s}, {u"slate"_s, u"white"_s}});
    EXPECT_EQ(accent.hexOverrides(), (QMap<QString, QString>{{u"mono"_s, u"#FFFFFF"_s}}));
    EXPECT_TRUE(defaults.object(key)->contains(u"vapour"_s));
}

TEST(ThemeAccentTest, APreviewIsSeenWhileItLasts)
{
    UserDefaults defaults = UserDefaults::temporary();
    ThemeAccent accent(defaults);
    accent.set(QColor(Qt::red), Skin::paper);
    const int revision = accent.revision();
    accent.withPreview(QColor(Qt::green), Skin::paper, [&] {
        EXPECT_EQ(accent.color(Skin::paper), QColor(Qt::green));
        EXPECT_FALSE(accent.color(Skin::mono));
        accent.withPreview(std::nullopt, Skin::paper, [&] { EXPECT_FALSE(accent.color(Skin::paper)); });
        EXPECT_EQ(accent.color(Skin::paper), QColor(Qt::green));
    });
    EXPECT_EQ(accent.color(Skin::paper), QColor(Qt::red));
    EXPECT_EQ(accent.revision(), revision);
}

} // namespace
} // namespace ambrelle
