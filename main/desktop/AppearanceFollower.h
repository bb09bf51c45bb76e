// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "model/Skin.h"

#include <QObject>

#include <optional>

namespace ambrelle {

class AppSettings;
class DesktopWallpaper;
class SystemAppearance;
class WidgetManager;

/// Changes skins that have a light and a dark variant, and their wallpaper, with the desktop's appearance, if the user
/// asked for it.
class AppearanceFollower : public QObject {
public:
    AppearanceFollower(SystemAppearance& appearance, AppSettings& settings, WidgetManager& manager,
        DesktopWallpaper& wallpaper, Clock& clock);

    void start();
    /// Takes over the appearance of now; does nothing while nothing tells it.
    void sync();
    bool systemIsDark() const; ///< false while nothing tells the appearance
    /// The skin itself, or its partner if that fits the appearance of now.
    Skin fitting(Skin skin) const;

private:
    void changeWallpaper();
    std::optional<bool> seen() const; // whether it is dark, where anything tells

    SystemAppearance& m_appearance;
    AppSettings& m_settings;
    WidgetManager& m_manager;
    DesktopWallpaper& m_wallpaper;
    Clock& m_clock;
    std::optional<bool> m_seen; // last
    Ticket m_pending;
};

} // namespace ambrelle
