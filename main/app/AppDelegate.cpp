#include "app/AppDelegate.h"

#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "platform/headless/HeadlessWindowHost.h"
#include "platform/x11/X11WindowHost.h"

namespace ambrelle {

namespace {

std::unique_ptr<WindowHost> makeHost()
{
    auto host = std::make_unique<X11WindowHost>();
    if (host->isAvailable())
        return host;
    return std::make_unique<HeadlessWindowHost>(); // the toolkit was told to run without a display
}

} // namespace

AppDelegate::AppDelegate()
    : m_host(makeHost())
    , m_monitor(m_sources.sources(), m_clock)
    , m_feed({m_monitor, AppSettings::shared()}, m_clock)
    , m_manager(
          {*m_host, UserDefaults::shared(), AppSettings::shared(), ThemeAccent::shared(), m_monitor, m_feed, m_clock})
    , m_follower(m_appearance, AppSettings::shared(), m_manager, m_clock)
{
    SystemMonitor::setShared(&m_monitor);
    WidgetManager::setShared(&m_manager);
}

AppDelegate::~AppDelegate()
{
    WidgetManager::setShared(nullptr);
    SystemMonitor::setShared(nullptr);
}

void AppDelegate::start()
{
    m_monitor.start(AppSettings::shared().interval());
    m_manager.load();
    m_follower.start();
    if (!AppSettings::shared().hasLaunchedBefore())
        firstLaunch();
    connect(m_host.get(), &WindowHost::screensChanged, &m_manager, &WidgetManager::ensureAllVisible);
}

void AppDelegate::firstLaunch()
{
    AppSettings::shared().setHasLaunchedBefore(true);
    if (m_manager.controllers().isEmpty())
        m_manager.applyPreset(AppSettings::shared().defaultSkin());
}

} // namespace ambrelle
