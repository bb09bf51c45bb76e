// SPDX-License-Identifier: MIT

#include "desktop/SceneController.h"

#include "desktop/WidgetController.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "scenes/SceneChoice.h"

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds sceneFrame{34}; // thirty a second, and no more

} // namespace

SceneController::SceneController(const Collaborators& collaborators, const QList<WidgetController*>& widgets)
    : m_with(collaborators)
    , m_widgets(widgets)
{
    connect(&m_with.settings, &AppSettings::changed, this, [this](const QString& key) {
        if (key == m_with.settings.showScene.key() || key == m_with.settings.defaultSkin.key())
            refresh();
        if (key == m_with.settings.animations.key()) {
            for (const std::unique_ptr<ScreenScene>& scene : m_scenes)
                scene->setMotionActive(m_with.settings.animations());
        }
    });
    connect(&m_with.accents, &ThemeAccent::changed, this, &SceneController::follow);
}

SceneController::Model SceneController::model(
    const QList<WidgetConfig>& widgets, const QRectF& screen, bool isShown, Skin fallback)
{
    const Skin skin = SceneChoice::skin(widgets, fallback);
    return {skin, isShown ? SceneChoice::items(widgets, skin, screen) : QList<SceneItem>()};
}

void SceneController::refresh()
{
    m_isOutdated = false;
    const QList<QRectF> moved = movingPlaces();
    const QList<ScreenInfo> screens = m_with.host.screens();
    const bool areNew = m_scenes.size() != static_cast<std::size_t>(screens.size());
    if (areNew) {
        m_scenes.clear();
        for (qsizetype index = 0; index < screens.size(); ++index)
            m_scenes.push_back(std::make_unique<ScreenScene>(m_with.host, m_with.clock));
        for (const std::unique_ptr<ScreenScene>& scene : m_scenes)
            scene->setMotionActive(m_with.settings.animations());
    }
    QList<WidgetConfig> widgets;
    for (const WidgetController* widget : m_widgets)
        widgets.append(widget->record().config); // in a drag, where it is shown
    for (std::size_t index = 0; index < m_scenes.size(); ++index) {
        const QRectF& screen = screens[static_cast<qsizetype>(index)].frame;
        const Model now = model(widgets, screen, m_with.settings.showScene(), m_with.settings.defaultSkin());
        m_scenes[index]->show(screen, now, m_with.accents.color(now.skin));
    }
    if (areNew || movingPlaces() != moved) // new ones do not know yet whether anybody looks
        Q_EMIT motionChanged();
}

QList<QRectF> SceneController::movingPlaces() const
{
    QList<QRectF> places;
    for (const std::unique_ptr<ScreenScene>& scene : m_scenes)
        places += scene->movingPlaces();
    return places;
}

void SceneController::follow()
{
    m_isOutdated = true;
    if (m_pause)
        return;
    refresh();
    m_pause = m_with.clock.after(sceneFrame, [this] {
        m_pause.reset();
        if (m_isOutdated)
            follow();
    });
}

QList<SceneController::Model> SceneController::models() const
{
    QList<Model> models;
    for (const std::unique_ptr<ScreenScene>& scene : m_scenes)
        models.append(scene->model());
    return models;
}

} // namespace ambrelle
