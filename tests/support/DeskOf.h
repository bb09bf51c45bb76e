// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/WidgetManager.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "platform/recording/RecordingAppearance.h"
#include "platform/recording/RecordingDesktopPicture.h"
#include "platform/recording/RecordingSessionVisibility.h"
#include "platform/recording/RecordingSources.h"
#include "platform/recording/RecordingWindowList.h"
#include "services/SystemMonitor.h"
#include "skins/WallpaperRecipes.h"
#include "support/QuietServices.h"
#include "wallpapers/DesktopWallpaper.h"

#include <QTemporaryDir>

#include <utility>

namespace ambrelle {

/// All that a desktop is made of, on a machine that says what it is told to. Its store may be another desktop's, which
/// is what a restart finds. `Time` and `Host` may be references.
template <typename Time, typename Host> struct DeskOf {
    template <typename... Windows>
    explicit DeskOf(UserDefaults& store, Windows&&... windows)
        : defaults(store)
        , host(std::forward<Windows>(windows)...)
    {
    }

    UserDefaults& defaults;
    Time clock;
    RecordingSources machine;
    Host host;
    RecordingWindowList windows;
    RecordingSessionVisibility session;
    AppSettings settings{defaults};
    ThemeAccent accents{defaults};
    SystemMonitor monitor{machine.sources(), clock};
    QuietServices services{settings, defaults, clock};
    ReadingFeed feed{{monitor, services.live, settings}, clock, QLocale::c()};
    RecordingAppearance appearance;
    RecordingDesktopPicture picture;
    QTemporaryDir folder;
    DesktopWallpaper wallpaper{{wallpaperRecipe, {}}, host, picture, defaults, {folder.path(), {}}};
    WidgetManager manager{{host, {windows, session}, defaults, settings, accents, monitor, services.live, feed, clock,
        appearance, wallpaper}};
};

} // namespace ambrelle
