// SPDX-License-Identifier: MIT

// What changes the list of widgets, or many of them at once.

#include "desktop/WidgetManager.h"

#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "placement/FreeSpot.h"
#include "placement/ScreenPlacement.h"

#include <QSet>

#include <algorithm>

namespace ambrelle {

namespace {

// Widgets made while no screen is connected shall not lie in a heap.
constexpr QRectF roomWithoutScreen(0, 0, 1024, 600);

} // namespace

/// Holds back what the steps of one change store, show and tell; when it is complete, all is stored at once, then
/// shown, and told once if it was a change of the list. New widgets have that skin from then on, if one is given. A
/// change within another one ends with that.
class WidgetManager::Change {
public:
    explicit Change(WidgetManager& manager, std::optional<Skin> defaultSkin = std::nullopt)
        : m_manager(manager)
        , m_defaultSkin(defaultSkin)
        , m_before(manager.m_controllers)
        , m_whole(std::in_place, manager.m_with.defaults)
    {
        ++m_manager.m_openChanges;
    }
    ~Change()
    {
        if (m_defaultSkin)
            m_manager.m_with.settings.defaultSkin.set(*m_defaultSkin);
        if (--m_manager.m_openChanges > 0)
            return;
        m_manager.save();
        m_whole.reset();
        m_manager.m_stage.play();
        if (m_manager.m_controllers != m_before)
            m_manager.listChanged();
    }
    Q_DISABLE_COPY_MOVE(Change)

private:
    WidgetManager& m_manager;
    const std::optional<Skin> m_defaultSkin;
    const QList<WidgetController*> m_before;
    std::optional<UserDefaults::Transaction> m_whole;
};

void WidgetManager::asOne(const std::function<void()>& changes)
{
    const Change change(*this);
    changes();
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
    QSet<QUuid> taken;
    for (const WidgetController* controller : m_controllers)
        taken.insert(controller->config().id);
    makeDistinct(widgets, taken);
    ScreenPlacement::arrange(widgets, m_with.host.screens());
    for (const StoredWidget& widget : widgets)
        open(widget);
}

WidgetController* WidgetManager::open(const StoredWidget& widget)
{
    auto* controller = new WidgetController(
        widget, {m_with.host, m_with.settings, m_with.appearance, m_with.clock, m_layers, m_drags}, this);
    connect(controller, &WidgetController::recordChanged, this, &WidgetManager::save);
    connect(controller, &WidgetController::changed, this, [this, controller] { recordsChanged({controller}); });
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
    m_stage.bring(controller);
    return controller;
}

void WidgetManager::removeIf(const std::function<bool(const WidgetController&)>& goes)
{
    if (std::ranges::none_of(m_controllers, [&](const WidgetController* controller) { return goes(*controller); }))
        return;
    const Change change(*this);
    m_controllers.removeIf([&](WidgetController* controller) {
        if (!goes(*controller))
            return false;
        m_stacking.removeOne(controller);
        disconnect(controller, nullptr, this, nullptr); // what is done to it before it has gone counts no more
        m_stage.dismiss(controller);
        return true;
    });
}

void WidgetManager::remove(const QList<WidgetController*>& controllers)
{
    removeIf([&](const WidgetController& candidate) {
        return std::ranges::find(controllers, &candidate) != controllers.end();
    });
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

WidgetController* WidgetManager::reinsert(const StoredWidget& widget, qsizetype index)
{
    const auto isIt = [&](const WidgetController* controller) { return controller->config().id == widget.config.id; };
    if (const auto there = std::ranges::find_if(m_controllers, isIt); there != m_controllers.end())
        return *there;
    const Change change(*this);
    open(QList{widget});
    const qsizetype last = m_controllers.size() - 1;
    const qsizetype place = std::clamp(index, qsizetype{0}, last);
    m_controllers.move(last, place);
    return m_controllers.at(place);
}

void WidgetManager::replace(
    const std::optional<ScreenInfo>& screen, QList<StoredWidget> widgets, std::optional<Skin> defaultSkin)
{
    const Change change(*this, defaultSkin);
    if (screen)
        removeAll(*screen);
    else
        removeAll();
    open(std::move(widgets));
}

void WidgetManager::replaceAll(QList<StoredWidget> widgets, std::optional<Skin> defaultSkin)
{
    makeDistinct(widgets, {});
    ScreenPlacement::arrange(widgets, m_with.host.screens());
    QHash<QUuid, const StoredWidget*> wanted;
    for (const StoredWidget& widget : std::as_const(widgets))
        wanted.insert(widget.config.id, &widget);
    QList<WidgetController*> changed;
    {
        const Change change(*this, defaultSkin);
        removeIf([&](const WidgetController& controller) { return !wanted.contains(controller.config().id); });
        QHash<QUuid, WidgetController*> there;
        for (WidgetController* controller : m_controllers)
            there.insert(controller->config().id, controller);
        for (const StoredWidget& widget : std::as_const(widgets)) {
            WidgetController* controller = there.value(widget.config.id);
            if (!controller)
                there.insert(widget.config.id, open(widget));
            else if (controller->syncDisplay(widget))
                changed.append(controller);
        }
        m_controllers.clear();
        for (const StoredWidget& widget : std::as_const(widgets))
            m_controllers.append(there.value(widget.config.id));
    }
    if (!changed.isEmpty())
        recordsChanged(changed);
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

} // namespace ambrelle
