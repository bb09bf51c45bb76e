// SPDX-License-Identifier: MIT

#include "services/LiveServices.h"

namespace ambrelle {

namespace {

using enum WidgetKind;

// The widgets are on the screen before anything is asked of networks and buses.
constexpr std::chrono::milliseconds widgetsFirst{250};

} // namespace

LiveServices::LiveServices(const Ports& ports, const WeatherService::Bases& weatherBases, AppSettings& settings,
    UserDefaults& defaults, Clock& clock)
    : weather(ports.http, ports.location, settings, clock, weatherBases)
    , player(ports.players, ports.http, clock)
    , events(ports.calendars, settings, clock)
    , reminders(ports.calendars, clock)
    , focus(ports.announcer, settings, defaults, clock)
    , devices(ports.devices, clock)
    , activity(ports.input, defaults, clock)
    , photos(clock)
    , m_clock(clock)
{
}

void LiveServices::demand(const WidgetKinds& kinds)
{
    if (kinds == m_wanted)
        return;
    if (m_wanted == WidgetKinds())
        photos.rest(widgetsFirst);
    m_wanted = kinds;
    m_pending = m_clock.after(widgetsFirst, [this] { serve(); });
}

void LiveServices::loadPreviewData(const QImage& artwork)
{
    weather.loadPreviewData();
    player.loadPreviewData(artwork);
    events.loadPreviewData();
    reminders.loadPreviewData();
    focus.loadPreviewData();
    devices.loadPreviewData();
    activity.loadPreviewData();
}

void LiveServices::serve()
{
    const auto wants = [this](WidgetKind kind) { return contains(m_wanted, kind); };
    if (wants(WidgetKind::weather) || wants(sky))
        weather.start();
    player.setShown(wants(nowPlaying));
    if (wants(nowPlaying))
        player.start();
    if (wants(WidgetKind::events))
        events.start();
    if (wants(WidgetKind::reminders))
        reminders.start();
    if (wants(WidgetKind::devices))
        devices.start();
    if (wants(WidgetKind::activity))
        activity.start();
    else
        activity.stop();
}

} // namespace ambrelle
