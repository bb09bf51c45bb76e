// SPDX-License-Identifier: MIT

#include "window/settings/SettingsColumn.h"
#include "window/settings/SettingsFields.h"
#include "window/settings/SettingsList.h"
#include "window/SettingsDesk.h"

#include <QLineEdit>

namespace ambrelle {
namespace {

using SettingsPageTest = SettingsDesk;

TEST_F(SettingsPageTest, ASearchReadsNoCalendars)
{
    const EventsService& events = home.desk.services.live.events;
    SettingsPage& shown = page(SettingsChapter::general);
    home.model.setSearch(MainTab::settings, u"calendars"_s);
    EXPECT_EQ(names(shown), QStringList{u"Open this section to see your calendars"_s});
    home.model.setSettingsChapter(SettingsChapter::calendars);
    EXPECT_EQ(events.status(), QString());
    home.model.setSearch(MainTab::settings, {});
    EXPECT_NE(events.status(), QString());
    EXPECT_EQ(names(shown).first(), events.status());
}

TEST_F(SettingsPageTest, SearchShowsTheRowsOfAllSectionsAndEnterGoesToTheFirst)
{
    SettingsPage& shown = page(SettingsChapter::desktop);
    const QStringList desktop = names(shown);
    home.model.setSearch(MainTab::settings, u"fahren"_s);
    EXPECT_EQ(names(shown), QStringList{u"Temperature"_s});
    const auto* list = shown.findChild<SettingsList*>();
    EXPECT_EQ(list->currentIndex().row(), 1);
    home.model.setSearch(MainTab::settings, u"sound"_s);
    shown.takeFocus(true);
    EXPECT_EQ(QApplication::focusWidget(), row(shown, u"Play a sound when time is up"_s).control());
    home.model.setSearch(MainTab::settings, u"wallpaper"_s);
    EXPECT_EQ(names(shown), (QStringList{u"Shuffle the wallpaper"_s, u"Wallpapers"_s})) << "not in their order";
    EventsService& events = home.desk.services.live.events;
    home.model.setSearch(MainTab::settings, u"family"_s);
    EXPECT_TRUE(names(shown).isEmpty());
    events.loadPreviewData();
    EXPECT_EQ(names(shown), QStringList{u"Family"_s}) << "a calendar that came during the search";
    EXPECT_FALSE(button(shown, u"Clear Search"_s).isVisible());
    home.model.setSearch(MainTab::settings, u"xyzzy"_s);
    EXPECT_TRUE(names(shown).isEmpty());
    button(shown, u"Clear Search"_s).click();
    EXPECT_EQ(names(shown), desktop);
    home.model.setSearch(MainTab::settings, u"sound"_s);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->currentIndex()).center());
    EXPECT_EQ(names(shown), desktop) << "the section that was shown before cannot be opened";
}

TEST_F(SettingsPageTest, EveryControlIsReachedByTabAndNamed)
{
    for (const SettingsChapter chapter : {SettingsChapter::general, SettingsChapter::desktop, SettingsChapter::weather,
             SettingsChapter::focus, SettingsChapter::about}) {
        SettingsPage& shown = page(chapter);
        shown.takeFocus(true);
        QSet<const QWidget*> reached;
        for (int presses = 0; presses < 40; ++presses) {
            QWidget* focus = QApplication::focusWidget();
            ASSERT_TRUE(focus);
            reached.insert(focus);
            QTest::keyClick(focus, Qt::Key_Tab);
        }
        for (const SettingsRow* row : rows(shown)) {
            if (!row->control() || !row->control()->isEnabled())
                continue;
            const bool found =
                std::ranges::any_of(reached, [&](const QWidget* each) { return row->isAncestorOf(each); });
            EXPECT_TRUE(found) << qPrintable(row->text().name);
        }
    }
}

TEST_F(SettingsPageTest, ACityThatIsAskedForIsAboutToBeTyped)
{
    settings.weatherCity.set(u"Oslo"_s);
    SettingsPage& shown = page(SettingsChapter::general);
    home.model.askForCity();
    auto* field = shown.findChild<TextEntry*>()->field();
    EXPECT_EQ(QApplication::focusWidget(), field);
    EXPECT_EQ(field->selectedText(), u"Oslo"_s);
    home.window.toggle();
    QCoreApplication::processEvents();
    home.model.askForCity();
    MainWindow& window = opened(MainTab::settings);
    EXPECT_EQ(QApplication::focusWidget(), window.findChild<TextEntry*>()->field()) << "in a window that was closed";
}

TEST_F(SettingsPageTest, FitsItsWidthAtEverySize)
{
    MainWindow& window = opened(MainTab::settings);
    for (const int width : {720, 800, 899, 1120, 2000}) {
        window.resize(width, 560);
        for (int chapter = 0; chapter <= static_cast<int>(SettingsChapter::about); ++chapter) {
            home.model.setSettingsChapter(static_cast<SettingsChapter>(chapter));
            QCoreApplication::processEvents();
            const auto* column = window.findChild<SettingsColumn*>();
            EXPECT_LE(column->widget()->width(), column->viewport()->width()) << width << ' ' << chapter;
            for (const SettingsRow* row : rows(window)) {
                EXPECT_LE(row->width(), 700) << qPrintable(row->text().name);
                EXPECT_TRUE(!row->control() || row->rect().contains(row->control()->geometry()))
                    << width << ' ' << qPrintable(row->text().name);
            }
        }
    }
}

} // namespace
} // namespace ambrelle
