// SPDX-License-Identifier: MIT

#include "app/Information.h"
#include "app/Program.h"
#include "app/Relaunch.h"
#include "app/UpdateCheck.h"
#include "desktop/WidgetManager.h"
#include "support/WaitUntil.h"
#include "window/frame/MainWindow.h"
#include "window/frame/SheetCard.h"
#include "window/look/ActionMenu.h"
#include "window/settings/SettingsRow.h"
#include "window/themes/ThemeActions.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

const Updater::Trust feedTrust{QUrl(u"https://updates.example/feed.json"_s), {u"key"_s}};

struct UpdatesTest : StartUp {
    UpdatesTest()
    {
        store({{WidgetKind::focus, Skin::glass, WidgetScale::medium, {100, 100}}});
        machine().programFolder->course.identity = {u"org.ambrelle.Ambrelle"_s, u"999.0"_s};
        machine().releases->offer(u"999.0"_s);
        program.delegate.start();
    }
    ~UpdatesTest() override
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            window->close();
        QCoreApplication::processEvents();
    }

    RecordingMachine& machine() { return program.machine; }
    /// That line of the tray's menu, as things stand now; null where there is none.
    static QAction* line(const QString& title)
    {
        QList<ActionMenu*> menus; // filling them makes and deletes others
        for (QWidget* widget : QApplication::allWidgets()) {
            if (auto* menu = qobject_cast<ActionMenu*>(widget))
                menus.append(menu);
        }
        for (ActionMenu* menu : menus) {
            menu->refill();
            const QList<QAction*> actions = menu->actions();
            const auto named = [&](const QString& text) {
                const auto found = std::ranges::find(actions, text, &QAction::text);
                return found == actions.end() ? nullptr : *found;
            };
            if (named(u"Open Ambrelle"_s))
                return named(title);
        }
        return nullptr;
    }
    static bool isSettled()
    {
        return waitUntil([] {
            const QAction* check = line(u"Check for Updates…"_s);
            return check && check->isEnabled();
        });
    }
    static MainWindow* mainWindow()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<MainWindow*>(window); found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    bool isStaged() { return !machine().programFolder->takeSteps().isEmpty(); }
    /// How the program's loop ends after that.
    static int loopAfter(const std::function<void()>& begin)
    {
        QTimer patience;
        patience.callOnTimeout([] { QCoreApplication::exit(-1); });
        patience.start(60s);
        QTimer::singleShot(0, qApp, begin);
        return QCoreApplication::exec();
    }
    bool isExchanged()
    {
        return machine().programFolder->takeSteps().join(u' ').contains(
            u"exchange %1 999.0"_s.arg(Information::read().version));
    }

    Program program{defaults, feedTrust};
};

TEST_F(UpdatesTest, NobodyIsDisturbedUnasked)
{
    program.delegate.carryOut({});
    ASSERT_TRUE(mainWindow());
    machine().clock.advance(30s);
    ASSERT_TRUE(isSettled());
    EXPECT_TRUE(line(u"Update to Ambrelle 999.0"_s));
    EXPECT_FALSE(isStaged()) << "the main window is open";

    mainWindow()->close();
    QCoreApplication::processEvents();
    machine().clock.advance(12h - 1min);
    line(u"Start Focus"_s)->trigger();
    machine().clock.advance(1min);
    ASSERT_TRUE(isSettled());
    EXPECT_EQ(machine().releases->asked().size(), 2);
    EXPECT_FALSE(isStaged()) << "a session of work runs";

    line(u"Pause Focus"_s)->trigger();
    EXPECT_EQ(loopAfter([this] { machine().clock.advance(12h); }), relaunchStatus);
    EXPECT_TRUE(isExchanged());
}

TEST_F(UpdatesTest, WhatIsHalfTypedIsNotLost)
{
    program.delegate.carryOut({});
    ASSERT_TRUE(mainWindow());
    const WindowContext& context = program.delegate.context();
    context.themeActions.saveDesktop();
    const auto* sheet = mainWindow()->findChild<SheetCard*>();
    ASSERT_TRUE(sheet);
    auto* name = sheet->findChild<QLineEdit*>();
    name->setText(u"Harbour at night"_s);
    mainWindow()->showMinimized();
    machine().clock.advance(30s);
    ASSERT_TRUE(isSettled());
    EXPECT_FALSE(isStaged()) << "the window waits as an icon";
    program.delegate.carryOut({});
    ASSERT_EQ(mainWindow()->findChild<SheetCard*>(), sheet);
    EXPECT_EQ(name->text(), u"Harbour at night"_s);
    mainWindow()->close();
    QCoreApplication::processEvents();

    context.manager.controllers().first()->requestSettings();
    machine().clock.advance(12h);
    ASSERT_TRUE(isSettled());
    EXPECT_FALSE(isStaged()) << "the settings of a widget are open";
    QApplication::activePopupWidget()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(loopAfter([this] { machine().clock.advance(12h); }), relaunchStatus);
    EXPECT_TRUE(isExchanged());
}

TEST_F(UpdatesTest, WhoAsksInTheMenuIsAnswered)
{
    line(u"Check for Updates…"_s)->trigger();
    ASSERT_TRUE(mainWindow());
    const auto tells = [](const QString& sentence) {
        const auto rows = mainWindow()->findChildren<SettingsRow*>();
        return std::ranges::any_of(
            rows, [&](const SettingsRow* row) { return row->isVisible() && row->text().name == sentence; });
    };
    EXPECT_TRUE(tells(u"Checking…"_s));
    EXPECT_FALSE(line(u"Check for Updates…"_s)->isEnabled());
    ASSERT_TRUE(isSettled());
    EXPECT_TRUE(tells(u"Version 999.0 is available"_s));
    machine().programFolder->writable = false;
    line(u"Update to Ambrelle 999.0"_s)->trigger();
    ASSERT_TRUE(isSettled());
    EXPECT_TRUE(tells(u"Ambrelle can't write to /opt. Download the new version from the website instead."_s));
    machine().programFolder->writable = true;
    EXPECT_EQ(loopAfter([] { line(u"Update to Ambrelle 999.0"_s)->trigger(); }), relaunchStatus);
    EXPECT_TRUE(isExchanged()) << "the window is open, but the user commands it";
}

TEST_F(UpdatesTest, TheCommandPrintsOneLine)
{
    const auto printed = [this](const Updater::Trust& trust) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(
            checkForUpdate(machine().releases, machine().programFolder, trust, {u"org.ambrelle.Ambrelle"_s, u"1.0"_s}),
            0);
        return testing::internal::GetCapturedStdout();
    };
    EXPECT_EQ(printed({}), "This copy of Ambrelle doesn't update itself (this is 1.0)\n");
    EXPECT_EQ(printed(feedTrust), "Version 999.0 downloaded, verified and unpacked at /tmp/Ambrelle-update-1\n");
    EXPECT_FALSE(mainWindow());
}

TEST(ProgramPlaceTest, OnlyPackagesPutProgramsBelowUsr)
{
    EXPECT_TRUE(isOfSystem(u"/usr/bin/ambrelle"_s));
    for (const auto* place : {u"/usr/local/bin/ambrelle", u"/home/a/usr/bin/ambrelle", u"/opt/Ambrelle/bin/ambrelle",
             u"/usrbin/ambrelle", u""})
        EXPECT_FALSE(isOfSystem(QString::fromUtf16(place))) << qPrintable(QString::fromUtf16(place));
}

} // namespace
} // namespace ambrelle
