// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

class AppSettings;
class Clock;
class DesktopWallpaper;
class LiveServices;
class LoginItem;
class MainWindowModel;
class ProgramLauncher;
class QuickMenu;
class ReadingFeed;
class SystemAppearance;
class SystemMonitor;
class ThemeAccent;
class WallpaperStore;
class WidgetManager;
class WindowHost;

/// What the pages of the main window draw and call. All of it outlives the window.
struct WindowContext {
    MainWindowModel& model;
    WidgetManager& manager;
    AppSettings& settings;
    ThemeAccent& accents;
    DesktopWallpaper& wallpaper;
    WallpaperStore& thumbnails;
    WindowHost& host;
    SystemAppearance& appearance;
    SystemMonitor& monitor;
    LiveServices& services;
    const ReadingFeed& feed;
    LoginItem& login;
    ProgramLauncher& programs;
    Clock& clock;
    const QuickMenu& quickMenu;
};

} // namespace ambrelle
