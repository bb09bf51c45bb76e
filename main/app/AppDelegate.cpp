#include "app/AppDelegate.h"

#include "app/DesktopPictureChoice.h"
#include "app/FaceActions.h"
#include "app/Information.h"
#include "app/UserFolders.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "platform/DesktopPicture.h"
#include "platform/headless/HeadlessWindowHost.h"
#include "platform/x11/X11WindowHost.h"
#include "skins/WallpaperRecipes.h"
#include "wallpapers/WallpaperShuffle.h"

#include <QDir>

namespace ambrelle {

namespace {

const QString calendarFoldersKey = QStringLiteral("calendarFolders"); ///< besides the usual ones

std::unique_ptr<WindowHost> makeHost()
{
    auto host = std::make_unique<X11WindowHost>();
    if (host->isAvailable())
        return host;
    return std::make_unique<HeadlessWindowHost>(); // the toolkit was told to run without a display
}

bool isX11(const WindowHost& host)
{
    return qobject_cast<const X11WindowHost*>(&host);
}

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

QStringList desktopNames()
{
    return DesktopSession::current().desktop.split(u':', Qt::SkipEmptyParts);
}

QString madeFolder(const QString& path)
{
    QDir().mkpath(path);
    return path;
}

Wallpaper makeWallpaper()
{
    return {wallpaperRecipe, dataFile(QStringLiteral("Wallpapers"))};
}

ImageDiskCache thumbnailCache()
{
    return {UserFolders::previews(), Information::read().build};
}

} // namespace

AppDelegate::AppDelegate()
    : m_host(makeHost())
    , m_senses(*m_host)
    , m_ports(m_clock, UserDefaults::shared().strings(calendarFoldersKey).value_or(QStringList()), isX11(*m_host))
    , m_monitor(m_sources.sources(), m_clock)
    , m_services(m_ports.ports(), weatherBases(), AppSettings::shared(), UserDefaults::shared(), m_clock)
    , m_feed({m_monitor, m_services, AppSettings::shared()}, m_clock)
    , m_manager({*m_host, m_senses.senses(), UserDefaults::shared(), AppSettings::shared(), ThemeAccent::shared(),
          m_monitor, m_services, m_feed, m_clock})
    , m_programs(desktopNames())
    , m_actions(m_programs, m_services.player, desktopNames())
    , m_desktopPicture(chooseDesktopPicture(DesktopSession::current(), madeFolder(UserFolders::wallpapers())))
    , m_wallpaper(makeWallpaper(), *m_host, *m_desktopPicture, UserDefaults::shared(),
          {UserFolders::wallpapers(), dataFile(QStringLiteral("Wallpapers/Extras"))})
    , m_thumbnails(makeWallpaper(), thumbnailCache())
    , m_automation(AppSettings::shared(), m_monitor, m_clock,
          [this] { WallpaperShuffle::shuffle(m_wallpaper, AppSettings::shared().customWallpapers()); })
    , m_follower(m_appearance, AppSettings::shared(), m_manager, m_wallpaper, m_clock)
    , m_interface({*m_host, m_manager, AppSettings::shared(), m_services.focus, m_appearance, m_clock})
{
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::start()
{
    m_monitor.start(AppSettings::shared().interval());
    m_services.photos.setSample([wallpaper = makeWallpaper(), cache = thumbnailCache()] {
        return WallpaperStore::picture(wallpaper, cache, WallpaperStore::samplePhoto);
    });
    m_manager.load();
    connect(&m_manager, &WidgetManager::clicked, this,
        [this](WidgetController* widget, const FaceAction& action) { clicked(widget->config().kind, action); });
    m_interface.start();
    m_automation.start();
    m_follower.start();
    if (AppSettings::shared().hasLaunchedBefore())
        m_wallpaper.restore();
    else
        firstLaunch();
    connect(m_host.get(), &WindowHost::screensChanged, &m_manager, &WidgetManager::ensureAllVisible);
    connect(m_host.get(), &WindowHost::screensChanged, &m_wallpaper, &DesktopWallpaper::fitScreens);
}

void AppDelegate::clicked(WidgetKind kind, const FaceAction& action)
{
    if (action.verb != FaceAction::Verb::open)
        perform(action, m_services);
    else if (AppSettings::shared().clickToOpen())
        m_actions.open(kind);
}

void AppDelegate::firstLaunch()
{
    AppSettings::shared().setHasLaunchedBefore(true);
    // Not shown yet: its tabs are empty, and would hide the widgets that a first start is about.
    m_interface.mainWindow().model().setShowWelcome(true);
    if (!m_manager.controllers().isEmpty())
        return;
    const Skin skin = AppSettings::shared().defaultSkin();
    m_manager.applyPreset(skin);
    m_wallpaper.apply(skin); // should it fail, the widgets stand on the picture that is there
}

} // namespace ambrelle
