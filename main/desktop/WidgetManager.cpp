// SPDX-License-Identifier: MIT

#include "desktop/WidgetManager.h"

#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "placement/ScreenPlacement.h"

namespace ambrelle {

WidgetManager::WidgetManager(const Collaborators& collaborators)
    : m_with(collaborators)
    , m_stage(collaborators.clock, [this](WidgetController& widget) { m_readings.renew(widget); })
    , m_store(collaborators.defaults)
    , m_drags(collaborators.host, m_controllers)
    , m_editBackdrops(collaborators.host, collaborators.settings, m_controllers)
    , m_scenes({collaborators.host, collaborators.settings, collaborators.accents, collaborators.clock}, m_controllers)
    , m_overlap(collaborators.senses, collaborators.settings, collaborators.clock, m_controllers, m_scenes)
    , m_readings(collaborators.feed, m_controllers)
    , m_demand({collaborators.monitor, collaborators.services, collaborators.feed, collaborators.senses.session},
          m_controllers)
    , m_themes(*this,
          {collaborators.host, collaborators.settings, collaborators.clock, collaborators.appearance,
              collaborators.wallpaper})
{
    connect(&m_with.settings, &AppSettings::changed, this, &WidgetManager::settingChanged);
    connect(&m_scenes, &SceneController::motionChanged, &m_overlap, &OverlapWatcher::update);
    connect(&m_with.accents, &ThemeAccent::changed, this, [this] {
        for (WidgetController* controller : m_controllers)
            controller->renewView();
    });
}

void WidgetManager::load()
{
    open(m_store.load());
    m_scenes.refresh(); // what appears first lies below the others
    m_stage.play();
    listChanged();
}

void WidgetManager::save()
{
    if (m_openChanges > 0)
        return;
    for (WidgetController* controller : m_controllers)
        controller->rememberDisplay();
    m_store.save(stored());
    m_scenes.follow();
}

QList<StoredWidget> WidgetManager::stored() const
{
    QList<StoredWidget> widgets;
    for (const WidgetController* controller : m_controllers)
        widgets.append(controller->record());
    return widgets;
}

bool WidgetManager::applyPreset(
    Skin skin, bool withWallpaper, const std::optional<ScreenInfo>& screen, const DesktopThemes::Done& done)
{
    if (!m_themes.applyPreset(skin, withWallpaper, screen, done))
        return false;
    Q_EMIT presetApplied();
    return true;
}

void WidgetManager::applyLayer()
{
    // A window that changes its level comes to lie above those that are there already.
    for (WidgetController* controller : m_stacking)
        controller->applyLayer();
    m_overlap.update();
}

void WidgetManager::touched(WidgetController* controller)
{
    m_stacking.removeOne(controller);
    m_stacking.append(controller);
}

void WidgetManager::ensureAllVisible()
{
    QList<StoredWidget> widgets;
    for (const WidgetController* controller : m_controllers)
        widgets.append(controller->stored());
    ScreenPlacement::arrange(widgets, m_with.host.screens());
    bool placed = false;
    QList<WidgetController*> moved;
    for (qsizetype i = 0; i < widgets.size(); ++i) {
        if (m_controllers[i]->config() != widgets[i].config)
            moved.append(m_controllers[i]);
        placed |= m_controllers[i]->syncDisplay(widgets[i]);
    }
    m_overlap.update();
    demandChanged(); // another screen may have finer pixels
    m_editBackdrops.update();
    m_scenes.refresh();
    if (placed)
        save();
    for (WidgetController* controller : moved)
        Q_EMIT configChanged(controller);
}

void WidgetManager::setEditing(bool editing)
{
    m_with.settings.editing.set(editing);
}

void WidgetManager::listChanged()
{
    demandChanged();
    m_overlap.update();
    Q_EMIT controllersChanged();
}

void WidgetManager::recordsChanged(const QList<WidgetController*>& controllers)
{
    demandChanged();
    for (WidgetController* controller : controllers)
        m_readings.renew(*controller);
    m_overlap.update();
    for (WidgetController* controller : controllers)
        Q_EMIT configChanged(controller);
}

void WidgetManager::settingChanged(const QString& key)
{
    if (key == m_with.settings.layer.key() || key == m_with.settings.editing.key())
        applyLayer();
    if (key == m_with.settings.animations.key() || key == m_with.settings.editing.key()) {
        for (WidgetController* controller : m_controllers)
            controller->applySettings();
    }
    if (key == m_with.settings.animations.key() || key == m_with.settings.overlap.key())
        m_overlap.update(); // applyLayer() tells it of the layer and edit mode
}

} // namespace ambrelle
