// SPDX-License-Identifier: MIT

#include "app/Program.h"
#include "support/FullDisk.h"
#include "support/WaitUntil.h"
#include "window/frame/MainWindow.h"
#include "window/frame/TabStrip.h"
#include "window/look/ActionMenu.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>

#include <gmock/gmock.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* launchedKey = "hasLaunchedBefore";

MainWindow* mainWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<MainWindow*>(window); found && found->isVisible())
            return found;
    }
    return nullptr;
}

TEST_F(StartUp, FirstLaunchFillsTheDesktop)
{
    defaults.set(u"defaultSkin"_s, rawValue(Skin::paper));
    Program program(defaults);
    program.machine.desktopPicture.memory = {{u"file"_s, u"/pictures/own.jpg"_s}};
    program.delegate.start();

    const QList<WidgetConfig> widgets = stored();
    const QList<RecordingPanel*> panels = program.machine.windows.panels();
    ASSERT_GT(widgets.size(), 4);
    ASSERT_EQ(panels.size(), widgets.size());
    for (qsizetype i = 0; i < widgets.size(); ++i) {
        EXPECT_EQ(widgets[i].skin, Skin::paper);
        EXPECT_TRUE(panels[i]->isVisible());
        EXPECT_TRUE(panels[i]->frame().contains(widgets[i].frame())) << i << ": it stands elsewhere than stored";
        const QImage picture = panels[i]->picture();
        QImage blank = picture;
        blank.fill(Qt::transparent);
        EXPECT_NE(picture, blank) << i;
    }
    EXPECT_EQ(defaults.boolean(QString::fromLatin1(launchedKey)), true);
    EXPECT_FALSE(mainWindow()) << "the widgets come first";
    program.machine.clock.advance(1s);
    ASSERT_TRUE(mainWindow());
    EXPECT_EQ(mainWindow()->findChild<TabStrip*>()->currentIndex(), 0);
    EXPECT_TRUE(MainWindowModel(defaults).showsWelcome());

    const RecordingDesktopPicture& desktop = program.machine.desktopPicture;
    ASSERT_TRUE(waitUntil([&] { return !desktop.sets.isEmpty(); })) << "nobody asked for the wallpaper";
    const ScreenPicture picture = desktop.sets.first().value(0);
    EXPECT_EQ(picture.connector, program.machine.windows.screens().first().connector);
    EXPECT_EQ(Wallpaper::skinOf(picture.file), Skin::paper);
    EXPECT_TRUE(picture.file.startsWith(home.path())) << qPrintable(picture.file);
    EXPECT_TRUE(QFileInfo::exists(picture.file));
    EXPECT_THAT(desktop.rememberFolders, ElementsAre(QFileInfo(picture.file).path())) << "the user's own is lost";
}

TEST_F(StartUp, LaterLaunchesRestoreWhatWasThereEvenIfNothing)
{
    const WidgetConfig clock{WidgetKind::clock, Skin::glass, WidgetScale::large, {100, 500}};
    const WidgetConfig cpu{WidgetKind::cpu, Skin::paper, WidgetScale::small, {700, 200}};
    for (const QList<WidgetConfig>& widgets : {QList{clock, cpu}, {}}) {
        store(widgets);
        Program program(defaults);
        program.delegate.start();
        const QList<RecordingPanel*> panels = program.machine.windows.panels();
        ASSERT_EQ(panels.size(), widgets.size());
        for (qsizetype i = 0; i < widgets.size(); ++i)
            EXPECT_TRUE(panels[i]->frame().contains(widgets[i].frame())) << i;
        QCoreApplication::processEvents();
        EXPECT_THAT(program.machine.desktopPicture.sets, IsEmpty()) << "the user may have another picture by now";
    }
}

TEST_F(StartUp, TheFirstLaunchWaitsForAScreen)
{
    Program program(defaults);
    const QList<ScreenInfo> screens = program.machine.windows.screens();
    program.machine.windows.setScreens({});
    program.delegate.start();
    EXPECT_THAT(program.machine.windows.panels(), IsEmpty());
    EXPECT_NE(defaults.boolean(QString::fromLatin1(launchedKey)), true) << "the next start would be empty";
    program.machine.windows.setScreens(screens);
    EXPECT_GT(program.machine.windows.panels().size(), 4);
    EXPECT_EQ(defaults.boolean(QString::fromLatin1(launchedKey)), true);
    const QList<WidgetConfig> widgets = stored();
    program.machine.windows.setScreens({});
    program.machine.windows.setScreens(screens);
    EXPECT_EQ(stored(), widgets) << "laid out once";
}

TEST_F(StartUp, AFirstLaunchThatCouldNotBeStoredIsAFirstLaunchAgain)
{
    const QString path = home.filePath(u"defaults.json"_s);
    {
        UserDefaults store(path);
        const test::FullDisk disk;
        Program program(store);
        program.delegate.start();
        EXPECT_GT(program.machine.windows.panels().size(), 4);
    }
    UserDefaults store(path);
    Program program(store);
    program.delegate.start();
    EXPECT_GT(program.machine.windows.panels().size(), 4);
    EXPECT_EQ(store.boolean(QString::fromLatin1(launchedKey)), true);
}

TEST_F(StartUp, AnotherSamplingIntervalHoldsAtOnce)
{
    store({{WidgetKind::memory, Skin::glass, WidgetScale::medium, {100, 100}}});
    defaults.set(u"interval"_s, 60.0);
    Program program(defaults);
    RecordingMemory& memory = program.machine.sources.memory;
    memory.currentPhysicalMemory = 1ULL << 34;
    program.delegate.start();
    RecordingPanel* panel = program.machine.windows.panels().first();
    const auto isRepaintedWithin = [&](std::chrono::milliseconds time) {
        panel->picture();
        panel->clearUpdates();
        memory.currentUse->programs += 1ULL << 32;
        program.machine.clock.advance(time);
        return !panel->updates().isEmpty();
    };
    EXPECT_FALSE(isRepaintedWithin(10s));
    program.settings.interval.set(1);
    EXPECT_TRUE(isRepaintedWithin(2s));
    program.settings.interval.set(60);
    EXPECT_FALSE(isRepaintedWithin(10s));
}

TEST_F(StartUp, ClicksAreCarriedOut)
{
    const WidgetConfig clock{WidgetKind::clock, Skin::glass, WidgetScale::medium, {100, 100}};
    const WidgetConfig focus{WidgetKind::focus, Skin::glass, WidgetScale::medium, {700, 100}};
    store({clock, focus});
    Program program(defaults);
    RecordingMachine& machine = program.machine;
    machine.programs.installed = QStringList{u"org.gnome.clocks"_s};
    program.delegate.start();
    // Where a click means something is known once the face was drawn.
    for (const RecordingPanel* panel : machine.windows.panels())
        panel->picture();

    machine.windows.click(clock.frame().center());
    EXPECT_THAT(machine.programs.opened, ElementsAre(u"org.gnome.clocks"_s));

    machine.programs.installed.clear();
    machine.windows.click(clock.frame().center());
    ASSERT_EQ(machine.windows.panels().size(), 3) << "nothing says that there is no clock to open";
    const RecordingPanel* tip = machine.windows.panels().last();
    EXPECT_EQ(tip->delegate().accessibleName(), u"No clock program found"_s);
    EXPECT_TRUE(tip->isVisible() && tip->isClickThrough());
    EXPECT_FALSE(tip->frame().intersects(clock.frame()));
    EXPECT_TRUE(machine.windows.screens().first().visibleFrame.contains(tip->frame()));
    machine.windows.click(clock.frame().center());
    EXPECT_EQ(machine.windows.panels().size(), 3) << "one at a time";
    machine.clock.advance(10s);
    EXPECT_EQ(machine.windows.panels().size(), 2);
    ScreenInfo bare = machine.windows.screens().first();
    bare.visibleFrame = {};
    machine.windows.setScreens({bare});
    machine.windows.click(clock.frame().center());
    ASSERT_EQ(machine.windows.panels().size(), 3);
    EXPECT_TRUE(bare.frame.contains(machine.windows.panels().last()->frame())) << "no work area is told";
    machine.clock.advance(10s);
    machine.programs.installed = QStringList{u"org.gnome.clocks"_s};
    program.settings.clickToOpen.set(false);
    machine.windows.click(clock.frame().center());
    EXPECT_EQ(machine.programs.opened.size(), 1) << "the user does not want clicks to open programs";

    // The focus timer says when its time is over: some click on its face started it.
    const QRectF face = focus.frame();
    for (double x = face.left() + 4; x < face.right() && machine.announcer.said.isEmpty(); x += 8) {
        for (double y = face.top() + 4; y < face.bottom() && machine.announcer.said.isEmpty(); y += 8) {
            machine.windows.click({x, y});
            machine.clock.advance(26min);
        }
    }
    EXPECT_FALSE(machine.announcer.said.isEmpty()) << "no click on the focus timer starts it";
}

TEST_F(StartUp, AClickOnWhatIsMissingOpensItsSetting)
{
    const WidgetConfig weather{WidgetKind::weather, Skin::glass, WidgetScale::medium, {100, 400}};
    const WidgetConfig events{WidgetKind::events, Skin::glass, WidgetScale::medium, {600, 400}};
    store({weather, events});
    Program program(defaults);
    program.machine.calendars.currentWhyNot = u"There are no calendars."_s;
    program.delegate.start();
    QCoreApplication::processEvents();
    program.machine.clock.advance(1s);
    program.machine.calendars.answer();
    for (const WidgetConfig& widget : {weather, events}) {
        program.machine.windows.click(widget.frame().center());
        ASSERT_TRUE(mainWindow());
        EXPECT_EQ(mainWindow()->findChild<TabStrip*>()->currentIndex(), 3);
        mainWindow()->close();
        QCoreApplication::processEvents();
    }
    EXPECT_THAT(program.machine.programs.opened, IsEmpty());
}

TEST_F(StartUp, LooksForTheTrayOnceTheWidgetsArePainted)
{
    store({});
    Program program(defaults);
    program.delegate.start();
    EXPECT_EQ(program.machine.tray.starts, 0);
    program.machine.clock.advance(1s);
    EXPECT_EQ(program.machine.tray.starts, 1);
}

TEST_F(StartUp, DoesWhatItIsAskedForFromOutside)
{
    store({{WidgetKind::clock, Skin::glass}});
    Program program(defaults);
    program.delegate.start();
    RecordingDoor& door = program.machine.door;
    EXPECT_EQ(door.opens, 0) << "nobody waits for it";
    program.delegate.openDoor();
    EXPECT_EQ(door.opens, 1);
    const auto tokens = [&] { return program.machine.windows.tokens(); };
    program.delegate.started({});
    Q_EMIT door.actionWanted(u"explode"_s, {});
    Q_EMIT door.actionWanted({}, {});
    Q_EMIT door.actionWanted(u"update"_s, {}); // there is none
    EXPECT_FALSE(mainWindow());
    EXPECT_THAT(tokens(), IsEmpty());
    program.delegate.started({.token = u"t1"_s});
    Q_EMIT door.actionWanted(u"lock"_s, u"t2"_s);
    EXPECT_TRUE(program.settings.locked());
    EXPECT_FALSE(mainWindow());
    EXPECT_THAT(tokens(), ElementsAre(u"dismiss t1"_s, u"dismiss t2"_s)) << "the desktop waits for a window";

    Q_EMIT door.actionWanted(u"settings"_s, u"t3"_s);
    ASSERT_TRUE(mainWindow());
    EXPECT_EQ(mainWindow()->findChild<TabStrip*>()->currentIndex(), static_cast<int>(MainTab::settings));
    EXPECT_THAT(tokens().mid(2), ElementsAre(u"admit t3"_s, u"dismiss t3"_s));
    mainWindow()->close();
    ASSERT_TRUE(waitUntil([] { return mainWindow() == nullptr; }));
    Q_EMIT door.activated({});
    EXPECT_TRUE(mainWindow());
    Q_EMIT door.filesGiven({home.filePath(u"none.ambrelle"_s)}, u"t4"_s);
    EXPECT_EQ(tokens().size(), 6);
}

TEST_F(StartUp, QuitsFromItsWindowAndLeavesNothingOpen)
{
    RecordingMachine machine;
    AppSettings settings(defaults);
    ThemeAccent accents(defaults);
    store({{WidgetKind::clock, Skin::glass}});
    {
        AppDelegate delegate(machine, {defaults, settings, accents});
        delegate.start();
        delegate.carryOut({});
        QAction* quit = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            for (auto* menu : window->findChildren<ActionMenu*>()) {
                menu->refill();
                for (QAction* action : menu->actions())
                    quit = action->text() == u"Quit Ambrelle"_s ? action : quit;
            }
        }
        ASSERT_TRUE(quit);
        QTimer::singleShot(0, quit, &QAction::trigger);
        QTimer patience;
        patience.callOnTimeout([] { QCoreApplication::exit(-1); });
        patience.start(20s);
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_EQ(machine.windows.panels().size(), 1);
    }
    EXPECT_THAT(machine.windows.panels(), IsEmpty());
    EXPECT_FALSE(machine.otherWindows.isWatched);
    EXPECT_FALSE(machine.input.isRunning);
    EXPECT_EQ(stored().size(), 1);
}

} // namespace
} // namespace ambrelle
