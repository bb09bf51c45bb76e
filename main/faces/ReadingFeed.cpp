// SPDX-License-Identifier: MIT

#include "faces/ReadingFeed.h"

#include "faces/ReadingFunctions.h"
#include "model/AppSettings.h"
#include "services/LiveServices.h"
#include "services/SystemMonitor.h"

namespace ambrelle {

namespace {

using enum WidgetKind;

constexpr WidgetKinds sampledKinds = kindSet({cpu, memory, disk, battery, network, downloads});
constexpr WidgetKinds timedKinds =
    kindSet({clock, calendar, weather, events, reminders, countdown, sky, activity, quote});
constexpr WidgetKinds settingKinds = kindSet({downloads});
constexpr int millisecondsPerSecond = 1000;

} // namespace

ReadingFeed::ReadingFeed(const Collaborators& collaborators, Clock& clock, const QLocale& locale)
    : m_with(collaborators)
    , m_clock(clock)
    , m_locale(locale)
{
    connect(&collaborators.monitor, &SystemMonitor::changed, this, [this] { tell(sampledKinds); });
    connect(&collaborators.monitor, &SystemMonitor::processesChanged, this, [this] { tell(kindSet({processes})); });
    const LiveServices& services = collaborators.services;
    follow(services.weather, kindSet({weather, sky}));
    follow(services.player, kindSet({nowPlaying}));
    follow(services.events, kindSet({events}));
    follow(services.reminders, kindSet({reminders}));
    follow(services.focus, kindSet({focus}));
    follow(services.devices, kindSet({devices}));
    follow(services.activity, kindSet({activity}));
    follow(services.photos, kindSet({photo}));
    connect(&collaborators.settings, &AppSettings::changed, this, [this] { tell(settingKinds); });
    connect(&services.player, &NowPlayingService::changed, this, &ReadingFeed::scheduleSeconds);
    scheduleMinutes();
}

template <typename Service> void ReadingFeed::follow(const Service& service, const WidgetKinds& kinds)
{
    connect(&service, &Service::changed, this, [this, kinds] { tell(kinds); });
}

void ReadingFeed::setAudience(const Audience& audience)
{
    const bool looksAgain = audience.looks && !m_audience.looks;
    m_audience = audience;
    scheduleMinutes();
    if (looksAgain)
        tell(WidgetKinds().set());
    scheduleSeconds();
}

void ReadingFeed::tell(const WidgetKinds& kinds)
{
    if (m_audience.looks)
        Q_EMIT changed(kinds);
}

void ReadingFeed::scheduleMinutes()
{
    if (!m_audience.looks)
        m_minutes.reset();
    else if (!m_minutes)
        m_minutes = m_clock.everyMinute([this] { tell(timedKinds); });
}

WidgetKinds ReadingFeed::changingBySecond() const
{
    const std::optional<NowPlaying>& track = m_with.services.player.track();
    WidgetKinds kinds;
    if (m_audience.seconds)
        kinds |= kindSet({clock});
    if (track && track->isPlaying)
        kinds |= kindSet({nowPlaying}) & m_audience.kinds;
    return kinds;
}

void ReadingFeed::scheduleSeconds()
{
    if (!m_audience.looks || changingBySecond().none()) {
        m_seconds.reset();
        return;
    }
    if (m_seconds)
        return;
    const int rest = millisecondsPerSecond - m_clock.now().time().msec();
    m_seconds = m_clock.after(std::chrono::milliseconds(rest), [this] {
        m_seconds.reset();
        tell(changingBySecond());
        scheduleSeconds();
    });
}

Reading ReadingFeed::readingFor(const WidgetConfig& config, bool seconds) const
{
    const SystemSample& sample = m_with.monitor.sample();
    const LiveServices& services = m_with.services;
    const AppSettings& settings = m_with.settings;
    const QDateTime now = m_clock.now();
    switch (config.kind) {
    case clock: return clockReading(config, now, m_locale, seconds);
    case calendar: return calendarReading(now.date(), m_locale);
    case cpu: return cpuReading(sample);
    case memory: return memoryReading(sample);
    case disk: return diskReading(sample);
    case battery: return batteryReading(sample);
    case network: return networkReading(sample);
    case downloads: return downloadsReading(sample, settings.downloadResetMinutes());
    case processes: return processesReading(sample);
    case weather: return weatherReading(services.weather, now, m_locale);
    case events: return eventsReading(services.events, now, m_locale);
    case nowPlaying: return nowPlayingReading(services.player, now);
    case photo: return photoReading(services.photos, config);
    case focus: return focusReading(services.focus, now);
    case reminders: return remindersReading(services.reminders, now, m_locale);
    case countdown: return countdownReading(config, now, m_locale);
    case sky: return skyReading(now, services.weather.snapshot(), m_locale);
    case activity: return activityReading(services.activity, now, m_locale);
    case quote: return quoteReading(config, now.date());
    case devices: return devicesReading(services.devices);
    }
    Q_UNREACHABLE();
}

} // namespace ambrelle
