// SPDX-License-Identifier: MIT

#include "desktop/AppearanceFollower.h"

#include "desktop/FittingSkin.h"
#include "desktop/WidgetManager.h"
#include "model/AppSettings.h"
#include "platform/SystemAppearance.h"
#include "wallpapers/DesktopWallpaper.h"

#include <utility>

namespace ambrelle {

namespace {

// Some desktops announce a change before all of them answer with it, or announce it several times.
constexpr std::chrono::milliseconds appearanceSettling{300};

} // namespace

AppearanceFollower::AppearanceFollower(SystemAppearance& appearance, AppSettings& settings, WidgetManager& manager,
    DesktopWallpaper& wallpaper, Clock& clock)
    : m_appearance(appearance)
    , m_settings(settings)
    , m_manager(manager)
    , m_wallpaper(wallpaper)
    , m_clock(clock)
{
}

void AppearanceFollower::start()
{
    m_seen = seen();
    connect(&m_appearance, &SystemAppearance::changed, this, [this] {
        // Higher contrast or larger texts are no reason to exchange what the user has put there since.
        const auto now = seen();
        if (std::exchange(m_seen, now) != now)
            m_pending = m_clock.after(appearanceSettling, [this] { sync(); });
    });
    connect(&m_manager, &WidgetManager::presetApplied, this, &AppearanceFollower::sync);
    connect(&m_settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_settings.followAppearance.key())
            sync();
    });
    sync();
}

void AppearanceFollower::sync()
{
    if (!m_settings.followAppearance() || !m_appearance.isAvailable())
        return;
    m_manager.changeSkins([this](Skin skin) { return fitting(skin); });
    m_settings.defaultSkin.set(fitting(m_settings.defaultSkin()));
    m_wallpaper.refresh([this] { changeWallpaper(); });
}

std::optional<bool> AppearanceFollower::seen() const
{
    return m_appearance.isAvailable() ? std::optional(m_appearance.isDark()) : std::nullopt;
}

bool AppearanceFollower::systemIsDark() const
{
    return m_appearance.isAvailable() && m_appearance.isDark();
}

void AppearanceFollower::changeWallpaper()
{
    // What comes counts, not what it will take the place of.
    const std::optional<Skin> wanted = m_wallpaper.wantedSkin();
    if (wanted && fitting(*wanted) != *wanted)
        m_wallpaper.apply(fitting(*wanted)); // should it fail, the old one stays
}

Skin AppearanceFollower::fitting(Skin skin) const
{
    return fittingSkin(skin, m_settings, m_appearance);
}

} // namespace ambrelle
