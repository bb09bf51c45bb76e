// SPDX-License-Identifier: MIT

#include "platform/recording/RecordingHttpClient.h"
#include "platform/recording/RecordingLocation.h"
#include "window/frame/Sheets.h"
#include "window/look/Segments.h"
#include "window/settings/CalendarsSection.h"
#include "window/settings/GeneralSection.h"
#include "window/settings/SettingsFields.h"
#include "window/settings/SettingsList.h"
#include "window/settings/WeatherSection.h"
#include "window/SettingsDesk.h"
#include "window/themes/ThemeFileDialogs.h"
#include "window/wallpapers/ShuffleBox.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>

namespace ambrelle {
namespace {

using SettingsSectionsTest = SettingsDesk;

TEST_F(SettingsSectionsTest, GeneralStoresWhatIsChosenAndNamesWhatItDoesNotOffer)
{
    SettingsPage& shown = page(SettingsChapter::general);
    expectChoice(shown, u"Update figures every"_s, settings.interval, u"1 second"_s, 1.0);
    expectChoice(shown, u"Update figures every"_s, settings.interval, u"10 seconds"_s, 10.0);
    expectChoice(shown, u"Restart the download count"_s, settings.downloadResetMinutes, u"Every 6 hours"_s, 360);
    expectChoice(shown, u"Restart the download count"_s, settings.downloadResetMinutes, u"Every 30 days"_s, 43200);
    expectChoice(shown, u"Shuffle the wallpaper"_s, settings.wallpaperShuffleMinutes, u"Every hour"_s, 60);
    expectChoice(shown, u"Shuffle the wallpaper"_s, settings.wallpaperShuffleMinutes, u"Every 30 minutes"_s, 30);
    expectChoice(shown, u"Restart the download count"_s, settings.downloadResetMinutes, u"Never"_s, 0);
    expectChoice(shown, u"New widgets use"_s, settings.defaultSkin, u"Neon"_s, Skin::neon);
    settings.wallpaperShuffleMinutes.set(45);
    EXPECT_EQ(control<QComboBox>(shown, u"Shuffle the wallpaper"_s).currentText(), u"Every 45 minutes"_s);
    auto& shuffle = control<QComboBox>(shown, u"Shuffle the wallpaper"_s);
    ShuffleBox box(settings); // of the other tab
    for (const int minutes : {-5, 45, 60, 1440, 10080}) {
        settings.wallpaperShuffleMinutes.set(minutes);
        EXPECT_EQ(shuffle.currentText(), box.currentText());
        EXPECT_EQ(shuffle.count() == 7, box.count() == 7) << minutes;
    }
    settings.wallpaperShuffleMinutes.set(-5);
    EXPECT_EQ(shuffle.count(), 7) << "a second Never";
    EXPECT_EQ(shuffle.currentText(), u"Never"_s);
    settings.interval.set(2.5);
    EXPECT_EQ(control<QComboBox>(shown, u"Update figures every"_s).currentText(), u"2.5 seconds"_s);
    row(shown, u"Follow light and dark appearance"_s).work();
    EXPECT_TRUE(settings.followAppearance());
}

TEST_F(SettingsSectionsTest, TheLoginSwitchShowsWhatTheSystemSaysAndTellsARefusal)
{
    const QString name = u"Start Ambrelle when you log in"_s;
    SettingsPage& shown = page(SettingsChapter::general);
    auto& box = control<QCheckBox>(shown, name);
    box.click();
    EXPECT_TRUE(home.login.isEnabled);
    home.login.failure = u"The folder cannot be written."_s;
    box.click();
    EXPECT_TRUE(box.isChecked()) << "it is still on";
    ASSERT_TRUE(home.sheets.current());
    EXPECT_EQ(*home.sheets.current(), sheets::loginRefused(u"Couldn't change the login item: "_s + home.login.failure));
    home.sheets.answer({.button = sheets::accept});
    home.model.setSettingsChapter(SettingsChapter::focus);
    home.login.isEnabled = false;
    home.login.unavailable = u"Nobody logs in here."_s;
    home.model.setSettingsChapter(SettingsChapter::general);
    EXPECT_FALSE(box.isChecked());
    EXPECT_FALSE(box.isEnabled());
    EXPECT_EQ(row(shown, name).text().caption, u"Nobody logs in here."_s);
}

TEST_F(SettingsSectionsTest, TheWindowSystemIsChosenWhereThereIsAChoice)
{
    const QString name = u"Show windows by"_s;
    for (const bool none : {true, false}) {
        if (!none)
            home.facts.hasWindowSystems = [] { return false; };
        GeneralSection shown(home.context);
        shown.show();
        EXPECT_FALSE(names(shown).contains(name));
    }
    home.facts.hasWindowSystems = [] { return true; };
    {
        GeneralSection shown(home.context);
        shown.show();
        auto& choice = control<Segments>(shown, name);
        EXPECT_EQ(choice.chosen(), 0);
        for (const auto& [place, value] : {std::pair(2, u"x11"_s), {1, u"wayland"_s}, {0, u"automatic"_s}}) {
            choice.findChildren<QRadioButton*>().at(place)->click();
            EXPECT_EQ(home.desk.defaults.string(u"windowSystem"_s), value);
        }
        EXPECT_EQ(row(shown, name).text().caption, u"Holds from the next start"_s);
    }
    home.facts.isWindowSystemForced = true;
    GeneralSection forced(home.context);
    forced.show();
    EXPECT_FALSE(row(forced, name).control()->isEnabled());
    EXPECT_EQ(row(forced, name).text().caption, u"The variable QT_QPA_PLATFORM decides while it is set"_s);
}

TEST_F(SettingsSectionsTest, TheCityTellsHowItGoes)
{
    RecordingHttpClient network;
    RecordingLocation location;
    WeatherService weather(network, location, settings, home.desk.clock, {});
    WeatherSection shown(settings, weather);
    shown.show();
    SettingsRow& city = row(shown, u"City"_s);
    auto& entry = *qobject_cast<TextEntry*>(city.control());
    const auto save = [&](const QString& name) {
        entry.field()->setText(name);
        press(*entry.field(), Qt::Key_Return);
    };
    EXPECT_EQ(city.text().caption, u"Used as soon as a weather widget is on the desktop"_s);
    save(u" Bergen "_s);
    EXPECT_EQ(settings.weatherCity(), u"Bergen"_s);
    EXPECT_EQ(network.addresses.size(), 0) << "the window starts no service";
    weather.start();
    EXPECT_EQ(city.text().caption, u"Looking up Bergen…"_s);
    EXPECT_EQ(network.addresses.size(), 1);
    const auto answer = [&](const HttpAnswer& given) {
        network.answer(given);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !city.text().caption.startsWith(u"Looking"); }));
    };
    answer({.body = R"({"results":[]})"});
    EXPECT_EQ(city.text().caption, u"Couldn't find “Bergen”. Try another name from the More menu."_s);
    EXPECT_EQ(entry.field()->text(), u"Bergen"_s);
    save(u"Bargen"_s);
    EXPECT_EQ(network.addresses.size(), 2) << "looked up once";
    answer({.error = u"No network."_s});
    EXPECT_EQ(city.text().caption, u"Weather unavailable: No network."_s);
    weather.loadPreviewData();
    save(u"Os"_s);
    EXPECT_EQ(city.text().caption, u"Looking up Os…"_s) << "the figures are those of another place";
    answer({.error = u"No network."_s});
    EXPECT_EQ(city.text().caption, u"Weather unavailable: No network."_s) << "kept figures hide the failure";
    const auto asked = network.addresses.size();
    shown.findChildren<Segment*>().last()->click();
    EXPECT_TRUE(settings.useFahrenheit());
    EXPECT_EQ(network.addresses.size(), asked + 1);
    network.answer({.body = R"({"results":[{"name":"Os","latitude":60.2,"longitude":5.5}]})"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return network.addresses.size() == asked + 2; }));
    answer({.body = R"({"current":{"temperature_2m":7,"apparent_temperature":5,"weather_code":3,"is_day":1},"daily":
        {"time":["2026-01-01"],"weather_code":[3],"temperature_2m_max":[9],"temperature_2m_min":[4]}})"});
    EXPECT_EQ(city.text().caption, u"Showing weather for Os"_s);
    shown.findChildren<Segment*>().first()->click();
    EXPECT_EQ(city.text().caption, u"Showing weather for Os"_s) << "another unit is no other city";
    answer({.error = u"No network."_s});
    EXPECT_EQ(city.text().caption, u"Weather unavailable: No network."_s) << "the figures are in the other unit";
}

TEST_F(SettingsSectionsTest, CalendarsAreReadOnceSeenAndKeepWhatIsAway)
{
    settings.excludedCalendars.set({u"away"_s, u"work"_s});
    RecordingCalendarStore& calendars = home.calendars;
    calendars.currentCalendars = {{.identifier = u"home"_s, .name = u"Home"_s, .hasEvents = true},
        {.identifier = u"work"_s, .name = u"Work"_s, .color = Qt::red, .hasEvents = true}};
    calendars.currentUnread = {{u"/nowhere/torn.ics"_s, u"It ends too early."_s}};
    calendars.currentSources = {
        {QDir::homePath() + u"/.calendars"_s, false}, {u"/mnt/mine"_s, true}, {u"/mnt/ours"_s, true}};
    EventsService events(calendars, settings, home.desk.clock);
    CalendarsSection shown({settings, events, home.programs, home.undo});
    EXPECT_EQ(calendars.accessRequests, 0) << "nobody sees the calendars yet";
    shown.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
    EXPECT_EQ(calendars.accessRequests, 0) << "nobody came for the calendars yet";
    shown.open();
    EXPECT_EQ(calendars.accessRequests, 1);
    EXPECT_EQ(names(shown).first(), u"Requesting calendar access…"_s);
    calendars.answer();
    const QString add = u"Put .ics files there, or add the folder that has them"_s;
    EXPECT_EQ(names(shown),
        (QStringList{u"Home"_s, u"Work"_s, u"torn.ics"_s, u"~/.calendars"_s, u"/mnt/mine"_s, u"/mnt/ours"_s, add}));
    EXPECT_EQ(row(shown, u"torn.ics"_s).text().caption, u"It ends too early."_s);
    EXPECT_FALSE(control<QCheckBox>(shown, u"Work"_s).isChecked());
    row(shown, u"Home"_s).work();
    row(shown, u"Work"_s).work();
    EXPECT_EQ(settings.excludedCalendars(), (QStringList{u"away"_s, u"home"_s}));
    button(row(shown, u"/mnt/mine"_s), u"Open Folder"_s).click();
    EXPECT_EQ(home.programs.folders, QStringList{u"/mnt/mine"_s});
    button(shown, u"Add Folder…"_s).click();
    ThemeFileDialogs themes(home.themeActions, shown);
    themes.import();
    const auto choosers = shown.findChildren<QFileDialog*>();
    EXPECT_EQ(choosers.size(), 2);
    for (QFileDialog* chooser : choosers) {
        EXPECT_TRUE(chooser->testOption(QFileDialog::DontUseNativeDialog)) << qPrintable(chooser->windowTitle());
        EXPECT_EQ(chooser->directory(), QDir::home()) << "started where the program was";
        chooser->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    shown.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown));
    auto& remove = button(row(shown, u"/mnt/mine"_s), u"Remove"_s);
    remove.setFocus();
    remove.click();
    calendars.answer();
    EXPECT_FALSE(names(shown).contains(u"/mnt/mine"_s));
    EXPECT_TRUE(shown.isAncestorOf(QApplication::focusWidget())) << "the keyboard is lost";
    home.undo.undo();
    calendars.answer();
    EXPECT_EQ(names(shown).mid(4, 2), (QStringList{u"/mnt/mine"_s, u"/mnt/ours"_s})) << "in another order";
    calendars.currentWhyNot = u"There are none."_s;
    Q_EMIT calendars.changed();
    EXPECT_EQ(names(shown).first(), u"There are none."_s);
}

TEST_F(SettingsSectionsTest, FocusWorksTheTimerAndSetsItsLengths)
{
    FocusTimer& timer = home.desk.services.live.focus;
    SettingsPage& shown = page(SettingsChapter::focus);
    const auto timerRow = [&]() -> SettingsRow& { return *rows(shown).first(); };
    EXPECT_EQ(timerRow().text().caption, u"Ready"_s);
    timerRow().work();
    EXPECT_TRUE(timer.isRunning());
    home.desk.clock.advance(std::chrono::seconds(61));
    EXPECT_EQ(timerRow().text().caption, u"23:59 left"_s);
    button(timerRow(), u"Pause Focus"_s).click();
    EXPECT_FALSE(timer.isRunning());
    EXPECT_EQ(timerRow().text().caption, u"23:59 left"_s) << "paused is not ready";
    button(timerRow(), u"Skip"_s).click();
    EXPECT_EQ(timerRow().text().name, u"Break"_s);
    EXPECT_EQ(button(timerRow(), u"Start Break"_s).accessibleDescription(), u"Break"_s);
    button(timerRow(), u"Reset"_s).click();
    EXPECT_EQ(timer.phase(), FocusPhase::focus);
    const QList<NumberField*> lengths = shown.findChildren<NumberField*>();
    Setting<int>* const stored[] = {&settings.focusMinutes, &settings.breakMinutes, &settings.longBreakMinutes};
    ASSERT_EQ(lengths.size(), 3);
    for (int index = 0; index < 3; ++index) {
        changed.clear();
        lengths[index]->stepUp();
        EXPECT_EQ((*stored[index])(), stored[index]->standard() + 1);
        EXPECT_EQ(changed, QStringList{stored[index]->key()});
    }
    EXPECT_EQ(timer.remaining(home.desk.clock.now()), 26 * 60);
    row(shown, u"Play a sound when time is up"_s).work();
    EXPECT_FALSE(settings.focusSound());
}

TEST_F(SettingsSectionsTest, AboutOpensFoldersAndResetsWithAWayBack)
{
    SettingsPage& shown = page(SettingsChapter::about);
    EXPECT_EQ(row(shown, u"Settings"_s).text().caption, u"~/settings"_s);
    row(shown, u"Wallpapers"_s).work();
    EXPECT_EQ(home.programs.folders, QStringList{home.facts.wallpapers});
    home.programs.refusal = u"Nothing opens it."_s;
    row(shown, u"Picture cache"_s).work();
    ASSERT_TRUE(home.undo.failure());
    EXPECT_EQ(home.undo.failure()->sentence, u"Nothing opens it."_s);
    home.undo.dismiss();
    row(shown, u"Licence"_s).work();
    ASSERT_TRUE(home.sheets.current());
    EXPECT_EQ(home.sheets.current()->text, u"Do as you like."_s);
    home.sheets.answer({.button = sheets::accept});

    settings.focusMinutes.set(40);
    settings.breakMinutes.set(7);
    settings.overlap.set(OverlapBehavior::hide);
    home.calendars.currentSources = {{u"/standard"_s, false}, {u"/mnt/mine"_s, true}};
    const auto sources = home.calendars.currentSources;
    button(shown, u"Reset Settings…"_s).click();
    home.sheets.answer({});
    EXPECT_EQ(settings.focusMinutes(), 40) << "reset was cancelled";
    button(shown, u"Reset Settings…"_s).click();
    EXPECT_EQ(*home.sheets.current(), sheets::reset(true)) << "there are folders to be forgotten";
    home.sheets.answer({.button = sheets::accept});
    EXPECT_EQ(settings.focusMinutes(), 25);
    settings.breakMinutes.set(9);
    EXPECT_EQ(home.calendars.sources(), sources.first(1));
    EXPECT_EQ(home.undo.text(), u"Settings reset"_s);
    home.undo.undo();
    EXPECT_EQ(settings.focusMinutes(), 40);
    EXPECT_EQ(settings.overlap(), OverlapBehavior::hide);
    EXPECT_EQ(settings.breakMinutes(), 9) << "chosen since";
    EXPECT_EQ(home.calendars.sources(), sources);
}

} // namespace
} // namespace ambrelle
