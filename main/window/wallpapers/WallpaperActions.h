// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/DesktopWallpaper.h"
#include "window/frame/WindowContext.h"
#include "window/frame/WorkNotice.h"
#include "window/wallpapers/PictureSorter.h"
#include "window/wallpapers/WallpapersModel.h"

#include <QObject>

#include <memory>

namespace ambrelle {

/// A wallpaper on its way to the screens.
struct WallpaperWork {
    WallpaperChoice wallpaper;
    int screens = 1; ///< that it is painted for

    bool operator==(const WallpaperWork&) const = default;
};

/// What the Wallpapers tab does: it puts pictures on the screens and keeps the list of the user's own. What was begun
/// goes on without the window, and ends in the bar at its foot, where all of it can be undone.
class WallpaperActions final : public QObject {
    Q_OBJECT
public:
    explicit WallpaperActions(const WindowContext& context, QObject* parent = nullptr);

    /// `screen` is the identifier of the one that gets it, of skins' wallpapers only; empty, or of none that is
    /// connected: all get it. A later call wins.
    void set(const WallpaperChoice& wallpaper, const QString& screen = {});
    void bringBack(); ///< the user's picture from before the first wallpaper
    /// Takes on what is a picture, in front of the others. `added` tells which, if any is new.
    void add(const QStringList& files);
    void takeOff(const QString& path); ///< the list; the file stays
    void showInFolder(const QString& path);

    /// What is on its way to the screens, while that is shown: not before it has taken a moment.
    const std::optional<WallpaperWork>& working() const { return m_work.shown(); }

Q_SIGNALS:
    void workingChanged();
    void settled(); ///< the screens show what was asked for, or never will
    void added(const QString& first); ///< the path of the first new one

private:
    struct Order;
    struct Round;

    static void start(const std::shared_ptr<Round>& round, const WallpaperChoice& wallpaper, const QString& screen);
    static void carryOut(const std::shared_ptr<Round>& round, const Order& order);
    static void settle(const std::shared_ptr<Round>& round, int number);
    static void takeOn(const Round& round, const PictureSorter::Sorted& sorted);

    WindowContext m_with;
    std::shared_ptr<Round> m_round;
    WorkNotice<WallpaperWork> m_work;
};

} // namespace ambrelle
