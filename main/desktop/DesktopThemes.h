// SPDX-License-Identifier: MIT

#pragma once

#include "model/SavedTheme.h"
#include "placement/StoredWidget.h"
#include "platform/WindowHost.h"

#include <functional>
#include <optional>

namespace ambrelle {

class AppSettings;
class Clock;
class DesktopWallpaper;
class SystemAppearance;
class WidgetManager;

/// Whole desktops: those that skins propose and those that the user saved. What is said of a screen holds for all
/// screens when none is given, and then widgets come to the main one.
class DesktopThemes {
public:
    struct Collaborators {
        WindowHost& host;
        AppSettings& settings;
        Clock& clock;
        SystemAppearance& appearance;
        DesktopWallpaper& wallpaper;
    };
    /// Gets one sentence why the picture was not set; empty when it was, or when none was asked for.
    using Done = std::function<void(const QString& error)>;

    DesktopThemes(WidgetManager& manager, const Collaborators& collaborators);

    /// As WidgetManager's of the same names.
    bool applyPreset(Skin skin, bool withWallpaper, const std::optional<ScreenInfo>& screen, const Done& done);
    bool apply(const SavedTheme& theme, bool withWallpaper, const std::optional<ScreenInfo>& screen, const Done& done);
    SavedTheme snapshot(const QString& name, const std::optional<ScreenInfo>& screen) const;
    std::optional<Skin> dominantSkin(const ScreenInfo& screen) const;

private:
    QList<ScreenInfo> targets(const std::optional<ScreenInfo>& screen) const;
    Skin fitting(Skin skin) const;
    void replace(const std::optional<ScreenInfo>& screen, const QList<StoredWidget>& widgets,
        std::optional<Skin> defaultSkin, std::optional<Skin> picture, const Done& done);

    WidgetManager& m_manager;
    Collaborators m_with;
};

} // namespace ambrelle
