// SPDX-License-Identifier: MIT

#include "window/themes/AppliedThemes.h"

#include "desktop/WidgetManager.h"

#include <utility>

namespace ambrelle {

namespace {

/// What makes the look of the widgets, and which ones they are; not where they stand.
QList<WidgetConfig> lookOf(const WidgetManager& manager)
{
    QList<WidgetConfig> looks;
    for (const WidgetController* controller : manager.controllers()) {
        const WidgetConfig& config = controller->config();
        WidgetConfig look(config.kind, config.skin, config.scale);
        look.id = config.id;
        look.backdrop = config.backdrop;
        look.border = config.border;
        look.opacity = config.opacity;
        looks.append(look);
    }
    return looks;
}

} // namespace

AppliedThemes::AppliedThemes(WidgetManager& manager, WindowHost& host)
    : m_manager(manager)
    , m_host(host)
{
    connect(&manager, &WidgetManager::controllersChanged, this, &AppliedThemes::judgeLater);
    connect(&manager, &WidgetManager::configChanged, this, &AppliedThemes::judgeLater);
    connect(&host, &WindowHost::screensChanged, this, &AppliedThemes::judgeLater);
    judge();
}

bool AppliedThemes::isOnDesktop(const ThemeChoice& theme) const
{
    if (const Skin* skin = std::get_if<Skin>(&theme))
        return m_skins.contains(*skin);
    return m_saved == std::get<QUuid>(theme);
}

void AppliedThemes::note(const std::optional<QUuid>& theme)
{
    m_placed = lookOf(m_manager);
    if (std::exchange(m_saved, theme) != theme)
        Q_EMIT changed();
}

/// A thousand widgets may tell of one change.
void AppliedThemes::judgeLater()
{
    if (!std::exchange(m_isJudging, true))
        QMetaObject::invokeMethod(this, &AppliedThemes::judge, Qt::QueuedConnection);
}

void AppliedThemes::judge()
{
    m_isJudging = false;
    QSet<Skin> skins;
    for (const ScreenInfo& screen : m_host.screens()) {
        if (const std::optional<Skin> skin = m_manager.dominantSkin(screen))
            skins.insert(*skin);
    }
    const bool isOther = m_saved && m_placed != lookOf(m_manager);
    if (isOther)
        m_saved.reset();
    if (std::exchange(m_skins, skins) != skins || isOther)
        Q_EMIT changed();
}

} // namespace ambrelle
