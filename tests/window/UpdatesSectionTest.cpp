// SPDX-License-Identifier: MIT

#include "support/WaitUntil.h"
#include "window/frame/ToolBar.h"
#include "window/look/AppLook.h"
#include "window/look/Progress.h"
#include "window/settings/SettingsList.h"
#include "window/SettingsDesk.h"

#include <QCheckBox>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

struct UpdatesSectionTest : SettingsDesk {
    UpdatesSectionTest()
        : SettingsDesk({QUrl(u"https://updates.example/feed.json"_s), {u"key"_s}})
    {
        home.programFolder->course.identity = {u"org.ambrelle.Ambrelle"_s, u"2.0"_s};
        home.releases->offer(u"2.0"_s);
    }

    void settle()
    {
        home.releases->release();
        EXPECT_TRUE(waitUntil([this] { return !home.updater.isBusy() || home.relaunches > 0; }));
    }
    static QString news(const QWidget& page)
    {
        const auto* list = page.findChild<SettingsList*>();
        return list->model()->index(5, 0).data(Qt::AccessibleDescriptionRole).toString();
    }
};

TEST_F(UpdatesSectionTest, ADotAtTheMenuTellsOfANewerVersion)
{
    home.releases->offer(u"1.0"_s);
    MainWindow& first = opened();
    const auto menu = [](const MainWindow& window) -> Button& {
        const auto buttons = window.findChild<ToolBar*>()->findChildren<Button*>();
        return **std::ranges::find(buttons, u"More"_s, &Button::accessibleName);
    };
    const auto dotAt = [](Button& button, bool atRight) {
        const QColor seen = button.grab().toImage().pixelColor(atRight ? button.width() - 7 : 7, 7);
        return seen == AppLook::shared().colours().accent;
    };
    const auto check = [this] {
        home.updater.check();
        settle();
    };
    check();
    EXPECT_EQ(menu(first).toolTip(), u"More"_s);
    EXPECT_FALSE(dotAt(menu(first), true));
    home.releases->offer(u"2.0"_s);
    check();
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&menu(first));
    EXPECT_EQ(told->text(QAccessible::Name), u"More"_s);
    EXPECT_EQ(told->text(QAccessible::Description), u"Update to Ambrelle 2.0"_s);
    EXPECT_EQ(menu(first).toolTip(), u"More\nUpdate to Ambrelle 2.0"_s);
    EXPECT_TRUE(dotAt(menu(first), true));
    menu(first).setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(dotAt(menu(first), false));
    first.close();
    QCoreApplication::processEvents();
    MainWindow& second = opened();
    EXPECT_TRUE(dotAt(menu(second), true)) << "it was found while the window was closed";
    home.releases->offer(u"1.0"_s);
    check();
    EXPECT_FALSE(dotAt(menu(second), true));
    EXPECT_EQ(menu(second).toolTip(), u"More"_s);
}

TEST_F(UpdatesSectionTest, FollowsAnUpdateWhileItIsShown)
{
    SettingsPage& shown = page(SettingsChapter::updates);
    const SettingsRow& row = *rows(shown).first();
    EXPECT_EQ(names(shown),
        QStringList({u"Checks the website for new versions"_s, u"Check automatically"_s, u"Install automatically"_s}));
    EXPECT_EQ(row.text().caption, u"Version 1.0"_s);
    auto& check = button(shown, u"Check for Updates…"_s);
    const auto* bar = shown.findChild<Progress*>();
    const auto install = [&]() -> const Button* {
        for (const Button* each : row.findChildren<Button*>()) {
            if (each->isVisible() && each != &check)
                return each;
        }
        return nullptr;
    };
    EXPECT_FALSE(install());

    home.releases->offer(u"1.0"_s);
    check.click();
    EXPECT_EQ(row.text().name, u"Checking…"_s);
    EXPECT_FALSE(check.isEnabled());
    settle();
    EXPECT_EQ(row.text().name, u"Up to date · checked just now"_s);
    EXPECT_TRUE(check.isEnabled());
    home.desk.clock.advance(5min);
    EXPECT_EQ(row.text().name, u"Up to date · checked 5 minutes ago"_s);
    EXPECT_EQ(news(shown), QString());

    home.releases->offer(u"2.0"_s);
    check.click();
    settle();
    ASSERT_TRUE(install());
    EXPECT_EQ(install()->title(), u"Update to Ambrelle 2.0"_s);
    EXPECT_EQ(news(shown), u"Update to Ambrelle 2.0"_s);
    EXPECT_FALSE(bar->isVisible());
    home.releases->archive.reset();
    home.releases->hold();
    button(shown, u"Update to Ambrelle 2.0"_s).click();
    EXPECT_EQ(row.text().name, u"Downloading version 2.0…"_s);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_FALSE(check.isVisible());
    EXPECT_FALSE(install());
    settle();
    EXPECT_EQ(row.text().name, u"The download failed."_s);
    EXPECT_FALSE(bar->isVisible());
    home.releases->archive = FetchedArchive{u"abc123"_s, "signature"};
    button(shown, u"Update to Ambrelle 2.0"_s).click();
    settle();
    EXPECT_EQ(home.relaunches, 1) << "it can be tried again";
    EXPECT_EQ(row.text().name, u"Installing…"_s);
}

TEST_F(UpdatesSectionTest, TheButtonsHaveRoomAtAllWidths)
{
    home.updater.check();
    settle();
    SettingsPage& shown = page(SettingsChapter::updates);
    for (const int width : {720, 900, 1200}) {
        home.window.window()->resize(width, 600);
        QCoreApplication::processEvents();
        const QWidget& area = *rows(shown).first();
        for (const Button* each : area.findChildren<Button*>()) {
            EXPECT_TRUE(area.rect().contains(QRect(each->mapTo(&area, QPoint()), each->size()))) << width;
            EXPECT_GE(each->width(), each->sizeHint().width()) << width;
        }
    }
}

TEST_F(UpdatesSectionTest, SwitchesAreStored)
{
    SettingsPage& shown = page(SettingsChapter::updates);
    row(shown, u"Install automatically"_s).work();
    EXPECT_FALSE(settings.installUpdates());
    row(shown, u"Check automatically"_s).work();
    EXPECT_FALSE(settings.checkForUpdates());
    EXPECT_FALSE(control<QCheckBox>(shown, u"Install automatically"_s).isEnabled());
}

using UntendedTest = SettingsDesk;

TEST_F(UntendedTest, OffersNothingWhereOthersUpdateIt)
{
    SettingsPage& shown = page(SettingsChapter::updates);
    EXPECT_EQ(names(shown), QStringList{u"Version 1.0"_s});
    EXPECT_EQ(rows(shown).first()->text().caption, u"This copy is kept up to date by the system it came with"_s);
    EXPECT_TRUE(rows(shown).first()->findChildren<Button*>().isEmpty());
}

TEST_F(UntendedTest, PromisesNothingWhereNobodyUpdatesIt)
{
    home.facts.isOfSystem = false;
    SettingsPage& shown = page(SettingsChapter::updates);
    EXPECT_EQ(names(shown), QStringList{u"Version 1.0"_s});
    EXPECT_EQ(rows(shown).first()->text().caption, QString());
}

} // namespace
} // namespace ambrelle
