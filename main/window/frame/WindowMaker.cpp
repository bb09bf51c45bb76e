// SPDX-License-Identifier: MIT

#include "window/frame/WindowMaker.h"

#include "window/frame/MainWindow.h"
#include "window/frame/MoreMenu.h"
#include "window/frame/SheetHost.h"
#include "window/frame/UndoBar.h"
#include "window/settings/SettingsPage.h"
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

} // namespace

std::unique_ptr<MainWindow> makeMainWindow(const WindowContext& context)
{
    const auto more = [context] {
        return moreItems(context.quickMenu, {.setCity = [&model = context.model] { model.askForCity(); }});
    };
    auto window = std::make_unique<MainWindow>(MainWindow::Parts{
        .model = context.model, .more = more, .makePage = [context](MainTab tab) { return makePage(context, tab); }});
    window->undo = [&undo = context.undo] { undo.undo(); };
    // Above the pages, and a sheet above the bar.
    auto* bar = new UndoBar(context.undo, *window);
    new SheetHost(context.sheets, *window);
    window->overlays = {bar};
    return window;
}

} // namespace ambrelle
