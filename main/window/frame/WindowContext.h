// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

class AppSettings;
class CalendarStore;
class Clock;
class DesktopSnapshots;
class DesktopWallpaper;
class LiveServices;
class LoginItem;
class MainWindowModel;
class PictureShelf;
class PictureSorter;
class ProgramLauncher;
class QuickMenu;
class ReadingFeed;
class SheetQueue;
class SystemAppearance;
class SystemMonitor;
class ThemeAccent;
class ThemeActions;
class ThemeStore;
class UndoKeeper;
class Updater;
class WallpaperStore;
class WidgetManager;
class WindowHost;
class WindowList;
struct ProgramFacts;

/// What the pages of the main window draw and call. All of it outlives the window.
struct WindowContext {
    MainWindowModel& model;
    SheetQueue& sheets;
    UndoKeeper& undo;
    WidgetManager& manager;
    AppSettings& settings;
    ThemeAccent& accents;
    ThemeStore& themes;
    ThemeActions& themeActions;
    DesktopWallpaper& wallpaper;
    WallpaperStore& thumbnails;
    DesktopSnapshots& snapshots;
    PictureShelf& shelf; ///< of all views
    PictureSorter& sorter;
    WindowHost& host;
    WindowList& otherWindows;
    SystemAppearance& appearance;
    SystemMonitor& monitor;
    LiveServices& services;
    const ReadingFeed& feed;
    CalendarStore& calendars;
    LoginItem& login;
    ProgramLauncher& programs;
    Clock& clock;
    const QuickMenu& quickMenu;
    Updater& updater;
    const ProgramFacts& facts;
};

} // namespace ambrelle
