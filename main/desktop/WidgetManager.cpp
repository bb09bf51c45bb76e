// SPDX-License-Identifier: MIT

#include "desktop/WidgetManager.h"

#include "desktop/FittingSkin.h"
#include "model/AppSettings.h"
#include "model/Composition.h"
#include "model/ThemeAccent.h"
#include "placement/FreeSpot.h"
#include "placement/ScreenPlacement.h"
#include "wallpapers/DesktopWallpaper.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

// Widgets made while no screen is connected shall not lie in a heap.
constexpr QRectF roomWithoutScreen(0, 0, 1024, 600);

} // namespace

/// Holds back what the steps of one change store, show and tell; when it is complete, all is stored at once, then
/// shown, and told once if it was a change of the list.
class WidgetManager::Change {
public:
    explicit Change(WidgetManager& manager)
        : m_manager(manager)
        , m_before(manager.m_controllers)
    {
        ++m_manager.m_openChanges;
    }
    ~Change()
    {
        if (--m_manager.m_openChanges > 0)
            return;
        m_manager.save();
        m_manager.showChange();
        if (m_manager.m_controllers != m_before)
            m_manager.listChanged();
    }
    Q_DISABLE_COPY_MOVE(Change)

private:
    WidgetManager& m_manager;
    const QList<WidgetController*> m_before;
};

WidgetManager::WidgetManager(const Collaborators& collaborators)
    : m_with(collaborators)
    , m_store(collaborators.defaults)
    , m_drags(collaborators.host, m_controllers)
    , m_editBackdrops(collaborators.host, collaborators.settings, m_controllers)
    , m_overlap(collaborators.senses, collaborators.settings, collaborators.clock, m_controllers)
    , m_readings(collaborators.feed, m_controllers)
    , m_demand({collaborators.monitor, collaborators.services, collaborators.feed, collaborators.senses.session},
          m_controllers)
{
    connect(&m_with.settings, &AppSettings::changed, this, &WidgetManager::settingChanged);
    connect(&m_with.accents, &ThemeAccent::changed, this, [this] {
        for (WidgetController* controller : m_controllers)
            controller->renewView();
    });
}

void WidgetManager::load()
{
    open(m_store.load());
    listChanged();
}

void WidgetManager::save()
{
    if (m_openChanges > 0)
        return;
    QList<StoredWidget> widgets;
    for (WidgetController* controller : m_controllers) {
        controller->rememberDisplay();
        widgets.append(controller->record());
    }
    m_store.save(widgets);
}

WidgetController* WidgetManager::add(WidgetKind kind, std::optional<Skin> skin, std::optional<QPointF> centeredAt)
{
    WidgetConfig config(kind, skin.value_or(m_with.settings.defaultSkin()));
    if (centeredAt) {
        config.origin = *centeredAt - QPointF(config.size().width() / 2, config.size().height() / 2);
    } else {
        QList<QRectF> taken;
        for (const WidgetController* controller : m_controllers)
            taken.append(controller->widgetFrame());
        config.origin = freeSpot(config.size(), roomOfMainScreen(), taken);
    }
    {
        const Change change(*this);
        open(QList<StoredWidget>{{config}});
    }
    return m_controllers.last();
}

QRectF WidgetManager::roomOfMainScreen() const
{
    const QList<ScreenInfo> screens = m_with.host.screens();
    return screens.isEmpty() ? roomWithoutScreen : ScreenPlacement::room(screens.first());
}

void WidgetManager::open(QList<StoredWidget> widgets)
{
    ScreenPlacement::arrange(widgets, m_with.host.screens());
    for (const StoredWidget& widget : widgets)
        open(widget);
}

void WidgetManager::open(const StoredWidget& widget)
{
    auto* controller =
        new WidgetController(widget, {m_with.host, m_with.settings, m_with.clock, m_layers, m_drags}, this);
    connect(controller, &WidgetController::recordChanged, this, &WidgetManager::save);
    connect(controller, &WidgetController::changed, this, [this, controller] { controllerChanged(controller); });
    connect(controller, &WidgetController::touched, this, [this, controller] { touched(controller); });
    connect(controller, &WidgetController::removeRequested, this, [this, controller] { remove(controller); });
    connect(controller, &WidgetController::clicked, this,
        [this, controller](const FaceAction& action) { Q_EMIT clicked(controller, action); });
    connect(controller, &WidgetController::settingsRequested, this,
        [this, controller] { Q_EMIT settingsRequested(controller); });
    connect(
        controller, &WidgetController::menuRequested, this, [this, controller] { Q_EMIT menuRequested(controller); });
    // It is told in the middle of painting.
    connect(controller, &WidgetController::motionChanged, &m_overlap, &OverlapWatcher::update, Qt::QueuedConnection);
    m_controllers.append(controller);
    m_stacking.append(controller);
    m_readings.renew(*controller);
    if (m_openChanges > 0)
        m_coming.append(controller);
    else
        controller->show();
}

void WidgetManager::showChange()
{
    for (WidgetController* controller : std::exchange(m_leaving, {})) {
        controller->close();
        controller->deleteLater(); // it may be in the middle of telling that its button was pressed
    }
    for (WidgetController* controller : std::exchange(m_coming, {}))
        controller->show();
}

void WidgetManager::removeIf(const std::function<bool(const WidgetController&)>& goes)
{
    const Change change(*this);
    m_controllers.removeIf([&](WidgetController* controller) {
        if (!goes(*controller))
            return false;
        m_coming.removeOne(controller);
        m_stacking.removeOne(controller);
        m_leaving.append(controller);
        return true;
    });
}

void WidgetManager::remove(WidgetController* controller)
{
    removeIf([&](const WidgetController& candidate) { return &candidate == controller; });
}

void WidgetManager::removeAll()
{
    removeIf([](const WidgetController&) { return true; });
}

void WidgetManager::removeAll(const ScreenInfo& screen)
{
    const QList<ScreenInfo> screens = m_with.host.screens();
    removeIf([&](const WidgetController& controller) {
        const auto showing = ScreenPlacement::screenNear(controller.widgetFrame(), screens);
        return showing && showing->id == screen.id;
    });
}

void WidgetManager::applySkinToAll(Skin skin)
{
    m_with.settings.defaultSkin.set(skin);
    changeSkins([&](Skin) { return skin; });
}

void WidgetManager::changeSkins(const std::function<Skin(Skin)>& choose)
{
    const bool changes = std::ranges::any_of(m_controllers, [&](const WidgetController* controller) {
        return choose(controller->config().skin) != controller->config().skin;
    });
    if (!changes)
        return;
    const Change change(*this);
    for (WidgetController* controller : m_controllers)
        controller->setSkin(choose(controller->config().skin));
}

void WidgetManager::applyPreset(Skin skin, bool withWallpaper, const std::optional<ScreenInfo>& screen)
{
    // Before anything opens, lest it be drawn, and painted for the whole screen, twice.
    const Skin fitting = fittingSkin(skin, m_with.settings, m_with.appearance);
    m_with.settings.defaultSkin.set(fitting);
    const QList<ScreenInfo> screens = m_with.host.screens();
    if (screens.isEmpty())
        return;
    const Change change(*this);
    if (screen)
        removeAll(*screen);
    else
        removeAll();
    QList<StoredWidget> widgets;
    for (const WidgetConfig& config :
        Composition::widgets(fitting, ScreenPlacement::room(screen.value_or(screens.first()))))
        widgets.append({config});
    open(widgets);
    // Should it fail, the widgets stand on the picture that is there.
    if (withWallpaper)
        m_with.wallpaper.apply(fitting, screen ? QList{*screen} : screens);
    Q_EMIT presetApplied();
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

void WidgetManager::controllerChanged(WidgetController* controller)
{
    demandChanged();
    m_readings.renew(*controller);
    m_overlap.update();
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
