// SPDX-License-Identifier: MIT

#include "app/AppDelegate.h"

#include "app/FaceActions.h"
#include "app/Information.h"
#include "app/Relaunch.h"
#include "app/UserFolders.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "platform/ProgramDoor.h"
#include "platform/WindowHost.h"
#include "services/ServicePorts.h"
#include "skins/WallpaperRecipes.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

WeatherService::Bases weatherBases()
{
    const Information information = Information::read();
    WeatherService::Bases bases;
    if (const QUrl forecast(information.forecastBase); forecast.isValid() && !forecast.isEmpty())
        bases.forecast = forecast;
    if (const QUrl geocoding(information.geocodingBase); geocoding.isValid() && !geocoding.isEmpty())
        bases.geocoding = geocoding;
    return bases;
}

Wallpaper makeWallpaper()
{
    return {wallpaperRecipe, dataFile(u"Wallpapers"_s)};
}

ImageDiskCache thumbnailCache()
{
    return {UserFolders::previews(), Information::read().build};
}

StagedProgram::Identity runningProgramIdentity()
{
    const Information information = Information::read();
    return {information.identifier, information.version};
}

} // namespace

AppDelegate::AppDelegate(Machine& machine, const Stores& stores, const Updater::Trust& updates)
    : m_ports(machine.ports())
    , m_settings(stores.settings)
    , m_monitor(m_ports.sources, m_ports.clock)
    , m_services(servicePorts(m_ports), weatherBases(), m_settings, stores.defaults, m_ports.clock)
    , m_feed({m_monitor, m_services, m_settings}, m_ports.clock)
    , m_wallpaper(makeWallpaper(), m_ports.windows, m_ports.desktopPicture, stores.defaults,
          {UserFolders::wallpapers(), dataFile(u"Wallpapers/Extras"_s)})
    , m_manager({m_ports.windows, {m_ports.otherWindows, m_ports.visibility}, stores.defaults, m_settings,
          stores.accents, m_monitor, m_services, m_feed, m_ports.clock, m_ports.appearance, m_wallpaper})
    , m_actions(m_ports.programs, m_services.player, m_ports.desktopNames)
    , m_tip(m_ports.windows, m_ports.clock)
    , m_pictures(makeWallpaper(), thumbnailCache(), stores.accents)
    , m_shuffle(m_wallpaper)
    , m_automation(m_settings, m_monitor, m_ports.clock, [this] { m_shuffle.shuffle(m_settings.customWallpapers()); })
    , m_follower(m_ports.appearance, m_settings, m_manager, m_wallpaper, m_ports.clock)
    , m_updater({.settings = m_settings,
                    .clock = m_ports.clock,
                    .server = m_ports.releases,
                    .folder = m_ports.programFolder,
                    .isInUse = [this] { return isInUse(); },
                    .relaunch = [] { QCoreApplication::exit(relaunchStatus); }},
          updates, runningProgramIdentity())
    , m_interface({stores.defaults, m_settings, stores.accents, m_ports, m_manager, m_wallpaper, m_pictures, m_monitor,
          m_services, m_feed, m_updater})
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::start()
{
    m_monitor.start(m_settings.interval());
    m_services.photos.setSample([wallpaper = makeWallpaper(), cache = thumbnailCache()] {
        return WallpaperStore::picture(wallpaper, cache, WallpaperStore::samplePhoto);
    });
    m_manager.load();
    connect(&m_manager, &WidgetManager::clicked, this,
        [this](WidgetController* widget, const FaceAction& action) { clicked(*widget, action); });
    m_interface.start();
    m_automation.start();
    if (m_settings.hasLaunchedBefore()) // before the follower looks for a wallpaper that does not fit
        m_wallpaper.restore([this](Skin skin) { return m_follower.fitting(skin); });
    m_follower.start();
    m_updater.start();
    if (!m_settings.hasLaunchedBefore())
        firstLaunch();
    connect(&m_settings, &AppSettings::changed, this, &AppDelegate::settingChanged);
    connect(&m_ports.windows, &WindowHost::screensChanged, this, &AppDelegate::screensChanged);
}

void AppDelegate::started(const StartRequest& request)
{
    if (!request.files.isEmpty() || !request.action.isEmpty())
        carryOut(request);
    else if (!request.token.isEmpty())
        m_ports.windows.dismiss(request.token);
}

void AppDelegate::openDoor()
{
    ProgramDoor& door = m_ports.door;
    connect(&door, &ProgramDoor::activated, this, [this](const QString& token) { carryOut({.token = token}); });
    connect(&door, &ProgramDoor::filesGiven, this,
        [this](const QStringList& files, const QString& token) { carryOut({.files = files, .token = token}); });
    connect(&door, &ProgramDoor::actionWanted, this, [this](const QString& name, const QString& token) {
        if (!name.isEmpty())
            carryOut({.action = name, .token = token});
    });
    door.open();
}

/// A restart would take something away from who sits there.
bool AppDelegate::isInUse() const
{
    return m_interface.isInUse() || m_services.focus.isRunning();
}

void AppDelegate::settingChanged(const QString& key)
{
    if (key == m_settings.interval.key())
        m_monitor.start(m_settings.interval());
}

void AppDelegate::screensChanged()
{
    m_manager.ensureAllVisible();
    m_wallpaper.fitScreens();
    if (!m_settings.hasLaunchedBefore())
        firstLaunch();
}

void AppDelegate::clicked(const WidgetController& widget, const FaceAction& action)
{
    if (action.verb != FaceAction::Verb::open) {
        perform(action, m_services);
    } else if (!m_settings.clickToOpen()) {
        return;
    } else if (widget.config().kind == WidgetKind::weather && !m_services.weather.snapshot()) {
        m_interface.askForCity(); // what its notice is about
    } else if (widget.config().kind == WidgetKind::events && !m_services.events.status().isEmpty()) {
        m_interface.showCalendars();
    } else if (const QString complaint = m_actions.open(widget.config().kind); !complaint.isEmpty()) {
        m_tip.show(widget, complaint);
    }
}

void AppDelegate::firstLaunch()
{
    if (m_manager.controllers().isEmpty())
        m_manager.applyPreset(m_settings.defaultSkin(), true);
    // Only with widgets, which need a screen, and after them: a disk that does not take them does not take this either.
    // Until then every start is a first one.
    if (m_manager.controllers().isEmpty())
        return;
    m_settings.setHasLaunchedBefore(true);
    m_interface.welcome();
}

} // namespace ambrelle
