#include "faces/ReadingFeed.h"

#include "faces/SystemReadings.h"
#include "faces/TimeReadings.h"
#include "model/AppSettings.h"
#include "services/SystemMonitor.h"

namespace ambrelle {

namespace {

using enum WidgetKind;

constexpr WidgetKinds sampledKinds = kindSet({cpu, memory, disk, battery, network, downloads});
constexpr WidgetKinds timedKinds = kindSet({clock, calendar, countdown, sky});
constexpr WidgetKinds settingKinds = kindSet({downloads, focus});

Notice notYet(WidgetKind kind, const QString& sentence)
{
    return {symbol(kind), sentence};
}

} // namespace

ReadingFeed::ReadingFeed(const Sources& sources, Clock& clock, const QLocale& locale)
    : m_sources(sources)
    , m_clock(clock)
    , m_locale(locale)
    , m_minutes(clock.everyMinute([this] { Q_EMIT changed(timedKinds); }))
{
    connect(&sources.monitor, &SystemMonitor::changed, this, [this] { Q_EMIT changed(sampledKinds); });
    connect(&sources.monitor, &SystemMonitor::processesChanged, this, [this] { Q_EMIT changed(kindSet({processes})); });
    connect(&sources.settings, &AppSettings::changed, this, [this] { Q_EMIT changed(settingKinds); });
}

Reading ReadingFeed::readingFor(const WidgetConfig& config, bool seconds) const
{
    const SystemMonitor& monitor = m_sources.monitor;
    const AppSettings& settings = m_sources.settings;
    const QDateTime now = m_clock.now();
    switch (config.kind) {
    case clock: return clockReading(config, now, m_locale, seconds);
    case calendar: return calendarReading(now.date(), m_locale);
    case cpu: return cpuReading(monitor);
    case memory: return memoryReading(monitor);
    case disk: return diskReading(monitor);
    case battery: return batteryReading(monitor);
    case network: return networkReading(monitor);
    case downloads: return downloadsReading(monitor, settings.downloadResetMinutes());
    case processes: return processesReading(monitor);
    case weather: return WeatherReading{.notice = notYet(weather, tr("No forecast yet"))};
    case events: return EventsReading{.notice = notYet(events, tr("No calendar yet"))};
    case nowPlaying: return NowPlayingReading{.notice = notYet(nowPlaying, tr("No player yet"))};
    case photo: return PhotoReading{.notice = notYet(photo, tr("Choose a folder in the widget's settings"))};
    case focus: return idleFocusReading(settings.focusMinutes());
    case reminders: return RemindersReading{.notice = notYet(reminders, tr("No reminders yet"))};
    case countdown: return countdownReading(config, now, m_locale);
    case sky: return skyReading(now, std::nullopt, m_locale);
    case activity: return ActivityReading{.notice = notYet(activity, tr("Nothing measured yet"))};
    case quote: return QuoteReading{.notice = notYet(quote, tr("No quote yet"))};
    case devices: return DevicesReading{.notice = notYet(devices, tr("No devices yet"))};
    }
    Q_UNREACHABLE();
}

} // namespace ambrelle
