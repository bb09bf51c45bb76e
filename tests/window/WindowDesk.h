// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/Desk.h"
#include "desktop/QuickMenu.h"
#include "model/ThemeStore.h"
#include "platform/headless/HeadlessMachine.h"
#include "platform/recording/RecordingMachine.h"
#include "updates/Updater.h"
#include "wallpapers/WallpaperStore.h"
#include "window/cards/PictureShelf.h"
#include "window/cards/StorePictures.h"
#include "window/frame/MainWindow.h"
#include "window/frame/MainWindowController.h"
#include "window/frame/ProgramFacts.h"
#include "window/frame/Sheet.h"
#include "window/frame/Undo.h"
#include "window/frame/WindowContext.h"
#include "window/look/AppLook.h"
#include "window/themes/ThemeActions.h"
#include "window/wallpapers/PictureSorter.h"
#include "window/WindowMaker.h"

#include <QApplication>
#include <QDir>
#include <QTest>

namespace ambrelle {

/// A whole desktop in memory, and all that the main window of it needs.
struct WindowDesk {
    /// Without a feed and keys the program is not updated.
    explicit WindowDesk(UserDefaults& store, Updater::Trust trust = {})
        : desk(store)
        , updater({.settings = desk.settings,
                      .clock = desk.clock,
                      .server = releases,
                      .folder = programFolder,
                      .isInUse = [] { return true; },
                      .relaunch = [this] { ++relaunches; }},
              std::move(trust), {u"org.ambrelle.Ambrelle"_s, u"1.0"_s})
    {
    }

    Desk desk;
    const Wallpaper painter{wallpaperRecipe, {}};
    const ImageDiskCache cache{desk.folder.filePath(u"previews"_s), 1};
    WallpaperStore thumbnails{painter, cache};
    DesktopSnapshots snapshots{{painter, cache, desk.accents, [] { return QImage(8, 8, QImage::Format_RGB32); },
        [](std::unique_ptr<Clock> clock) { return std::make_unique<HeadlessMachine>(std::move(clock)); }}};
    StorePictures pictures{thumbnails, snapshots};
    PictureShelf shelf{pictures};
    RecordingLoginItem login;
    RecordingPrograms programs;
    std::shared_ptr<RecordingReleaseServer> releases = std::make_shared<RecordingReleaseServer>();
    std::shared_ptr<RecordingProgramFolder> programFolder = std::make_shared<RecordingProgramFolder>();
    int relaunches = 0;
    Updater updater;
    QuickMenu::Updates updates;
    QuickMenu quick{
        {.manager = desk.manager, .settings = desk.settings, .focus = desk.services.live.focus, .updates = [this] {
             return updates;
         }}};
    MainWindowModel model{desk.defaults};
    SheetQueue sheets;
    UndoKeeper undo{desk.clock};
    ThemeStore themes{desk.defaults};
    PictureSorter sorter;
    RecordingCalendarStore calendars;
    ProgramFacts facts{.version = u"1.0"_s,
        .build = 12,
        .isOfSystem = true,
        .wallpapers = desk.folder.filePath(u"wallpapers"_s),
        .settings = QDir::home().filePath(u"settings"_s),
        .previews = desk.folder.filePath(u"previews"_s),
        .licence = [] { return u"Do as you like."_s; },
        .fonts = [] { return QStringList{u"Inter"_s}; }};
    WindowContext context{.model = model,
        .sheets = sheets,
        .undo = undo,
        .manager = desk.manager,
        .settings = desk.settings,
        .accents = desk.accents,
        .themes = themes,
        .themeActions = themeActions,
        .wallpaper = desk.wallpaper,
        .thumbnails = thumbnails,
        .snapshots = snapshots,
        .shelf = shelf,
        .sorter = sorter,
        .host = desk.host,
        .otherWindows = desk.windows,
        .appearance = desk.appearance,
        .monitor = desk.monitor,
        .services = desk.services.live,
        .feed = desk.feed,
        .calendars = calendars,
        .login = login,
        .programs = programs,
        .clock = desk.clock,
        .quickMenu = quick,
        .updater = updater,
        .facts = facts};
    ThemeActions themeActions{context};
    MainWindowController window{{model, desk.host, desk.clock, [this] { return makeMainWindow(context); }}};
};

struct WindowTest : testing::Test {
    UserDefaults store = UserDefaults::temporary();
    WindowDesk home;

    explicit WindowTest(Updater::Trust trust = {})
        : home(store, std::move(trust))
    {
        AppLook::shared().apply({}); // all windows share it, and tests before this one may have changed it
    }
    ~WindowTest() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    MainWindow& opened(MainTab tab = MainTab::themes)
    {
        home.window.show(tab);
        EXPECT_TRUE(QTest::qWaitForWindowActive(home.window.window()));
        return *home.window.window();
    }
    /// A key, for shortcuts of the window too.
    static void press(QWidget& receiver, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&receiver, key, modifiers);
        QCoreApplication::processEvents();
    }
};

} // namespace ambrelle
