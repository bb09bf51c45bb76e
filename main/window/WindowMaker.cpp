// SPDX-License-Identifier: MIT

#include "window/WindowMaker.h"

#include "desktop/QuickMenu.h"
#include "updates/Updater.h"
#include "window/frame/MainWindow.h"
#include "window/frame/MoreMenu.h"
#include "window/frame/SheetHost.h"
#include "window/frame/Sheets.h"
#include "window/frame/Undo.h"
#include "window/frame/UndoBar.h"
#include "window/settings/SettingsPage.h"
#include "window/themes/ThemeActions.h"
#include "window/themes/ThemeFileDialogs.h"
#include "window/themes/ThemesPage.h"
#include "window/wallpapers/WallpapersPage.h"
#include "window/widgets/WidgetsPage.h"

namespace ambrelle {

namespace {

Page* makePage(const WindowContext& context, MainTab tab)
{
    switch (tab) {
    case MainTab::themes: return new ThemesPage(context);
    case MainTab::widgets: return new WidgetsPage(context);
    case MainTab::wallpapers: return new WallpapersPage(context);
    case MainTab::settings: return new SettingsPage(context);
    }
    return nullptr;
}

void tellNews(MainWindow& window, const Updater& updater)
{
    const std::optional<Release> found = updater.isEnabled() ? updater.available() : std::nullopt;
    window.setNews(found ? QuickMenu::updateTitle(found->version) : QString());
}

} // namespace

std::unique_ptr<MainWindow> makeMainWindow(const WindowContext& context)
{
    // The dialogs need the window, and the window is made with the menu.
    const auto dialogs = std::make_shared<std::optional<ThemeFileDialogs>>();
    const auto import = [dialogs] { (*dialogs)->import(); };
    const auto save = [&actions = context.themeActions] { actions.saveDesktop(); };
    const auto shortcuts = [&sheets = context.sheets] { sheets.ask(sheets::shortcuts()); };
    const auto more = [context, import, save, shortcuts] {
        return moreItems(context.quickMenu,
            {.setCity = [&model = context.model] { model.askForCity(); },
                .saveDesktop = context.themeActions.canSave() ? std::function<void()>(save) : nullptr,
                .importThemes = import,
                .showShortcuts = shortcuts});
    };
    auto window = std::make_unique<MainWindow>(MainWindow::Parts{
        .model = context.model, .more = more, .makePage = [context](MainTab tab) { return makePage(context, tab); }});
    dialogs->emplace(context.themeActions, *window);
    window->undo = [&undo = context.undo] { undo.undo(); };
    window->themeInvitation = themeInvitation;
    window->dropThemes = [&actions = context.themeActions](const QStringList& files) { actions.importFiles(files); };
    window->addKey(QKeySequence(Qt::CTRL | Qt::Key_S), save);
    window->addKey(QKeySequence(Qt::CTRL | Qt::Key_O), import);
    window->addKey(QKeySequence(Qt::CTRL | Qt::Key_Question), shortcuts);
    window->addKey(QKeySequence(Qt::CTRL | Qt::Key_Q), [&quick = context.quickMenu] {
        if (const ActionItem quit = quick.quitItem(); quit.handler)
            quit.handler();
    });
    QObject::connect(&context.updater, &Updater::changed, window.get(),
        [window = window.get(), &updater = context.updater] { tellNews(*window, updater); });
    tellNews(*window, context.updater);
    // Above the pages, and a sheet above the bar.
    auto* bar = new UndoBar(context.undo, *window);
    new SheetHost(context.sheets, *window);
    window->overlays = {bar};
    return window;
}

} // namespace ambrelle
