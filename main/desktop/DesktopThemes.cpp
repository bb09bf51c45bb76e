// SPDX-License-Identifier: MIT

#include "desktop/DesktopThemes.h"

#include "desktop/FittingSkin.h"
#include "desktop/WidgetManager.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "model/Composition.h"
#include "placement/ScreenPlacement.h"
#include "placement/ThemePlacement.h"
#include "wallpapers/DesktopWallpaper.h"

#include <memory>

namespace ambrelle {

namespace {

bool refuseTheme(const DesktopThemes::Done& done)
{
    if (done)
        done(Wording::tr("That screen is not connected."));
    return false;
}

} // namespace

DesktopThemes::DesktopThemes(WidgetManager& manager, const Collaborators& collaborators)
    : m_manager(manager)
    , m_with(collaborators)
{
}

/// The screens that are meant, as they are now; none when that one is not connected any more.
QList<ScreenInfo> DesktopThemes::targets(const std::optional<ScreenInfo>& screen) const
{
    QList<ScreenInfo> screens = m_with.host.screens();
    screens.removeIf([&](const ScreenInfo& each) { return screen && each.id != screen->id; });
    return screens;
}

Skin DesktopThemes::fitting(Skin skin) const
{
    return fittingSkin(skin, m_with.settings, m_with.appearance);
}

bool DesktopThemes::applyPreset(
    Skin skin, bool withWallpaper, const std::optional<ScreenInfo>& screen, const Done& done)
{
    // Before anything opens, lest it be drawn, and painted for the whole screen, twice.
    const Skin fits = fitting(skin);
    const QList<ScreenInfo> screens = targets(screen);
    if (screens.isEmpty()) {
        if (!screen)
            m_with.settings.defaultSkin.set(fits);
        return refuseTheme(done);
    }
    QList<StoredWidget> widgets;
    for (const WidgetConfig& config : Composition::widgets(fits, ScreenPlacement::room(screens.first())))
        widgets.append({config});
    replace(screen, widgets, fits, withWallpaper ? std::optional(fits) : std::nullopt, done);
    return true;
}

bool DesktopThemes::apply(
    const SavedTheme& theme, bool withWallpaper, const std::optional<ScreenInfo>& screen, const Done& done)
{
    const QList<ScreenInfo> screens = targets(screen);
    if (screens.isEmpty())
        return refuseTheme(done);
    SavedTheme fits = theme;
    for (SavedWidget& widget : fits.widgets)
        widget.config.skin = fitting(widget.config.skin);
    const bool changesPicture = withWallpaper && theme.wallpaper;
    replace(screen, ThemePlacement::placed(fits, screens.first()), std::nullopt,
        changesPicture ? std::optional(fitting(*theme.wallpaper)) : std::nullopt, done);
    return true;
}

/// Should the picture fail, the widgets stand on the one that is there. It is ordered as they are stored: a kill leaves
/// both to the next start, or neither.
void DesktopThemes::replace(const std::optional<ScreenInfo>& screen, const QList<StoredWidget>& widgets,
    std::optional<Skin> defaultSkin, std::optional<Skin> picture, const Done& done)
{
    struct Answer {
        bool isDue = false; ///< the widgets stand
        std::optional<QString> error{};
    };
    const auto answer = std::make_shared<Answer>(Answer{.error = picture ? std::nullopt : std::optional(QString())});
    const QList<ScreenInfo> screens = targets(screen);
    m_manager.asOne([&] {
        m_manager.replace(screen ? std::optional(screens.first()) : std::nullopt, widgets, defaultSkin);
        if (!picture)
            return;
        m_with.wallpaper.apply(*picture, screens, [answer, done](const QString& error) {
            if (answer->isDue && done)
                done(error);
            answer->error = error;
        });
    });
    answer->isDue = true;
    if (answer->error && done)
        done(*answer->error);
}

SavedTheme DesktopThemes::snapshot(const QString& name, const std::optional<ScreenInfo>& screen) const
{
    SavedTheme theme{QUuid::createUuid(), name, m_with.clock.now(), std::nullopt, {}};
    const QList<ScreenInfo> shown = targets(screen);
    if (shown.isEmpty())
        return theme;
    theme.wallpaper = m_with.wallpaper.wantedSkin(shown.first());
    const QList<ScreenInfo> screens = m_with.host.screens();
    for (const StoredWidget& widget : m_manager.stored()) {
        const auto showing = ScreenPlacement::screenNear(widget.config.frame(), screens);
        if (showing && showing->id == shown.first().id)
            theme.widgets.append(ThemePlacement::saved(widget.config, shown.first()));
    }
    return theme;
}

std::optional<Skin> DesktopThemes::dominantSkin(const ScreenInfo& screen) const
{
    const SavedTheme there = snapshot({}, screen);
    return there.widgets.isEmpty() ? std::nullopt : std::optional(there.dominantSkin());
}

} // namespace ambrelle
