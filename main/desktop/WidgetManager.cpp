#include "desktop/WidgetManager.h"

#include "desktop/FreeSpot.h"
#include "desktop/ScreenPlacement.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "model/Composition.h"
#include "model/ThemeAccent.h"
#include "platform/SessionVisibility.h"
#include "services/LiveServices.h"
#include "services/SystemMonitor.h"

#include <QJsonArray>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString storageKey = u"widgets.v2"_s;
const QString homeSizesKey = u"widgetHomeSizes"_s; ///< [width, height] of each widget's display, by its identifier
constexpr int millisecondsPerSecond = 1000;

std::optional<QSizeF> sizeFrom(const QJsonValue& stored)
{
    const QSizeF size(stored.toArray().at(0).toDouble(), stored.toArray().at(1).toDouble());
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

} // namespace

/// Holds the saves of the steps of one change back, and saves once when it is complete.
class WidgetManager::Change {
public:
    explicit Change(WidgetManager& manager)
        : m_manager(manager)
    {
        ++m_manager.m_openChanges;
    }
    ~Change()
    {
        if (--m_manager.m_openChanges == 0)
            m_manager.save();
    }
    Q_DISABLE_COPY_MOVE(Change)

private:
    WidgetManager& m_manager;
};

WidgetManager::WidgetManager(const Collaborators& collaborators)
    : m_with(collaborators)
    , m_drags(m_with.host, m_controllers)
    , m_editBackdrops(m_with.host, [this] { setEditing(false); })
    , m_overlap(collaborators.senses, collaborators.settings, collaborators.clock, m_controllers)
{
    connect(&m_with.senses.session, &SessionVisibility::changed, this, &WidgetManager::visibilityChanged);
    connect(&m_with.feed, &ReadingFeed::changed, this, [this](const WidgetKinds& kinds) {
        if (!m_with.senses.session.isVisible())
            return; // made up for when somebody looks again
        showReadings([&](const WidgetController& c) { return kinds.test(static_cast<std::size_t>(c.config().kind)); });
    });
    connect(&m_with.services.player, &NowPlayingService::changed, this, &WidgetManager::scheduleSeconds);
    connect(&m_with.settings, &AppSettings::changed, this, &WidgetManager::settingChanged);
    connect(&m_with.accents, &ThemeAccent::changed, this, [this] {
        for (WidgetController* controller : m_controllers)
            controller->renewView();
    });
}

void WidgetManager::load()
{
    const std::optional<QByteArray> stored = m_with.defaults.data(storageKey);
    const auto configs = stored ? WidgetConfig::decodeList(*stored) : std::nullopt;
    const QJsonObject homeSizes = m_with.defaults.object(homeSizesKey).value_or(QJsonObject());
    for (const WidgetConfig& config : configs.value_or(QList<WidgetConfig>()))
        open(config, sizeFrom(homeSizes.value(config.id.toString(QUuid::WithoutBraces))));
    demandChanged();
}

void WidgetManager::save()
{
    if (m_openChanges > 0)
        return;
    QList<WidgetConfig> configs;
    for (WidgetController* controller : m_controllers) {
        controller->rememberDisplay();
        configs.append(controller->config());
    }
    m_with.defaults.setData(storageKey, WidgetConfig::encodeList(configs));
    saveHomeSizes();
}

void WidgetManager::saveHomeSizes()
{
    QJsonObject sizes;
    for (const WidgetController* controller : m_controllers) {
        if (const auto& size = controller->homeSize())
            sizes.insert(
                controller->config().id.toString(QUuid::WithoutBraces), QJsonArray{size->width(), size->height()});
    }
    if (sizes != m_with.defaults.object(homeSizesKey).value_or(QJsonObject()))
        m_with.defaults.set(homeSizesKey, sizes);
}

WidgetController* WidgetManager::add(WidgetKind kind, std::optional<Skin> skin, std::optional<QPointF> centeredAt)
{
    WidgetConfig config(kind, skin.value_or(m_with.settings.defaultSkin()));
    const QList<ScreenInfo> screens = m_with.host.screens();
    if (centeredAt) {
        config.origin = *centeredAt - QPointF(config.size().width() / 2, config.size().height() / 2);
    } else if (!screens.isEmpty()) {
        QList<QRectF> taken;
        for (const WidgetController* controller : m_controllers)
            taken.append(controller->widgetFrame());
        config.origin = freeSpot(config.size(), screens.first().visibleFrame, taken);
    }
    open(config);
    save();
    demandChanged();
    return m_controllers.last();
}

void WidgetManager::open(const WidgetConfig& config, const std::optional<QSizeF>& homeSize)
{
    auto* controller =
        new WidgetController(config, homeSize, {m_with.host, m_with.settings, m_with.clock, m_layers, m_drags}, this);
    connect(controller, &WidgetController::changed, this, [this, controller] { controllerChanged(controller); });
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
    controller->setReading(ReadingRound(m_with.feed).readingFor(config, controller->showsSeconds()));
    controller->show();
}

void WidgetManager::drop(WidgetController* controller)
{
    // It may be in the middle of telling that its button was pressed.
    controller->close();
    controller->deleteLater();
}

void WidgetManager::removeIf(const std::function<bool(const WidgetController&)>& goes)
{
    m_controllers.removeIf([&](WidgetController* controller) {
        if (!goes(*controller))
            return false;
        drop(controller);
        return true;
    });
    save();
    demandChanged();
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

void WidgetManager::applyPreset(Skin skin, const std::optional<ScreenInfo>& screen)
{
    m_with.settings.defaultSkin.set(skin);
    const QList<ScreenInfo> screens = m_with.host.screens();
    if (screens.isEmpty())
        return;
    const Change change(*this);
    if (screen)
        removeAll(*screen);
    else
        removeAll();
    for (const WidgetConfig& config : Composition::widgets(skin, screen.value_or(screens.first()).visibleFrame))
        open(config);
    Q_EMIT presetApplied();
    demandChanged();
}

void WidgetManager::applyLayer()
{
    for (WidgetController* controller : m_controllers)
        controller->applyLayer();
    m_overlap.update();
}

void WidgetManager::ensureAllVisible()
{
    bool moved = false;
    for (WidgetController* controller : m_controllers)
        moved |= controller->syncDisplay();
    m_overlap.update();
    configurePhotos(); // another screen may have finer pixels
    if (m_with.settings.editing())
        openBackdrops();
    if (moved)
        save();
}

void WidgetManager::setEditing(bool editing)
{
    m_with.settings.editing.set(editing);
}

void WidgetManager::editingChanged()
{
    if (m_with.settings.editing())
        openBackdrops();
    else
        m_editBackdrops.close();
    applyLayer();
}

void WidgetManager::openBackdrops()
{
    QList<QRectF> frames;
    for (const WidgetController* controller : m_controllers)
        frames.append(controller->widgetFrame());
    m_editBackdrops.open(frames);
}

void WidgetManager::demandChanged()
{
    WidgetKinds kinds;
    for (const WidgetController* controller : m_controllers)
        kinds.set(static_cast<std::size_t>(controller->config().kind));
    m_with.monitor.setWantsProcesses(contains(kinds, WidgetKind::processes));
    m_with.services.demand(kinds);
    configurePhotos();
    scheduleSeconds();
    m_overlap.update();
}

void WidgetManager::configurePhotos()
{
    QList<QUuid> ids;
    for (const WidgetController* controller : m_controllers) {
        const WidgetConfig& config = controller->config();
        if (config.kind != WidgetKind::photo)
            continue;
        const QSize pixels = (config.size() * controller->pixelRatio()).toSize();
        m_with.services.photos.configure(config.id, config.photoFolder, config.photoInterval, pixels);
        ids.append(config.id);
    }
    m_with.services.photos.keepOnly(ids);
}

void WidgetManager::controllerChanged(WidgetController* controller)
{
    configurePhotos();
    showReadings([&](const WidgetController& candidate) { return &candidate == controller; });
    scheduleSeconds();
    m_overlap.update();
    save();
}

void WidgetManager::settingChanged(const QString& key)
{
    if (key == m_with.settings.layer.key())
        applyLayer();
    if (key == m_with.settings.editing.key())
        editingChanged();
    if (key == m_with.settings.animations.key() || key == m_with.settings.editing.key()) {
        for (WidgetController* controller : m_controllers)
            controller->applySettings();
    }
    if (key == m_with.settings.animations.key() || key == m_with.settings.overlap.key())
        m_overlap.update(); // applyLayer() tells it of the layer and edit mode
}

void WidgetManager::showReadings(const std::function<bool(const WidgetController&)>& concerned)
{
    ReadingRound round(m_with.feed);
    for (WidgetController* controller : m_controllers) {
        if (concerned(*controller))
            controller->setReading(round.readingFor(controller->config(), controller->showsSeconds()));
    }
}

bool WidgetManager::changesEverySecond(const WidgetController& controller) const
{
    const auto& track = m_with.services.player.track();
    const bool plays = track && track->isPlaying;
    return controller.showsSeconds() || (plays && controller.config().kind == WidgetKind::nowPlaying);
}

void WidgetManager::visibilityChanged()
{
    if (m_with.senses.session.isVisible())
        showReadings([](const WidgetController&) { return true; });
    scheduleSeconds();
}

/// Wakes up at the start of every second while some clock shows seconds or some track goes on, and somebody looks.
void WidgetManager::scheduleSeconds()
{
    const auto moves = [this](const WidgetController* controller) { return changesEverySecond(*controller); };
    if (!m_with.senses.session.isVisible() || std::ranges::none_of(m_controllers, moves)) {
        m_seconds.reset();
        return;
    }
    if (m_seconds)
        return;
    const int rest = millisecondsPerSecond - m_with.clock.now().time().msec();
    m_seconds = m_with.clock.after(std::chrono::milliseconds(rest), [this] {
        m_seconds.reset();
        showReadings([this](const WidgetController& controller) { return changesEverySecond(controller); });
        scheduleSeconds();
    });
}

} // namespace ambrelle
