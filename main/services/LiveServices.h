// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKinds.h"
#include "services/ActivityTracker.h"
#include "services/DevicesService.h"
#include "services/EventsService.h"
#include "services/FocusTimer.h"
#include "services/NowPlayingService.h"
#include "services/PhotoAlbum.h"
#include "services/RemindersService.h"
#include "services/WeatherService.h"

namespace ambrelle {

/// The services of live data but the system monitor. Each begins its work when the first widget that shows it is there.
class LiveServices {
public:
    struct Ports {
        HttpClient& http;
        LocationSource& location;
        PlayerSource& players;
        CalendarStore& calendars;
        Announcer& announcer;
        QList<DeviceSource*> devices;
        InputMonitor& input;
    };

    LiveServices(const Ports& ports, const WeatherService::Bases& weatherBases, AppSettings& settings,
        UserDefaults& defaults, Clock& clock);
    LiveServices(const LiveServices&) = delete;
    LiveServices& operator=(const LiveServices&) = delete;

    /// Tells which kinds of widgets there are now. What is not needed any more stops if it can.
    void demand(const WidgetKinds& kinds);

    /// Fixed content in all of them, for pictures; `artwork` is that of the track. Photos belong to widgets.
    void loadPreviewData(const QImage& artwork);

    WeatherService weather;
    NowPlayingService player;
    EventsService events;
    RemindersService reminders;
    FocusTimer focus;
    DevicesService devices;
    ActivityTracker activity;
    PhotoAlbum photos;

private:
    void serve();

    Clock& m_clock;
    WidgetKinds m_wanted;
    Ticket m_pending;
};

} // namespace ambrelle
