// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Readings.h"
#include "model/WidgetConfig.h"
#include "services/WeatherSnapshot.h"

#include <QDateTime>
#include <QLocale>

namespace ambrelle {

class ActivityTracker;
class DevicesService;
class EventsService;
class FocusTimer;
class NowPlayingService;
class PhotoAlbum;
class RemindersService;
class WeatherService;
struct SystemSample;

// What each kind of widget shows at that moment. Where there is nothing to show, the reading has a notice that says
// why.

// The system: of what was sampled last.
CpuReading cpuReading(const SystemSample& sample);
MemoryReading memoryReading(const SystemSample& sample);
DiskReading diskReading(const SystemSample& sample);
BatteryReading batteryReading(const SystemSample& sample);
NetworkReading networkReading(const SystemSample& sample);
/// `resetMinutes`: period of the automatic reset, 0: none.
DownloadsReading downloadsReading(const SystemSample& sample, int resetMinutes);
ProcessesReading processesReading(const SystemSample& sample);

// Time, which needs nothing but the widget's own settings.
/// The clock of the widget's city, or of the machine; an unknown time zone counts as none.
ClockReading clockReading(const WidgetConfig& config, const QDateTime& now, const QLocale& locale, bool seconds);
CalendarReading calendarReading(QDate today, const QLocale& locale);
CountdownReading countdownReading(const WidgetConfig& config, const QDateTime& now, const QLocale& locale);
/// The moon, and the sun as the weather tells it: its times on the clock of the place, and how far it has come.
SkyReading skyReading(const QDateTime& now, const std::optional<WeatherSnapshot>& weather, const QLocale& locale);
/// The word or the saying of that day, whichever the widget is set to.
QuoteReading quoteReading(const WidgetConfig& config, QDate today);

// What the services tell.
/// The weather, or the service's status while it has none.
WeatherReading weatherReading(const WeatherService& service, const QDateTime& now, const QLocale& locale);
/// The picture of a weather code.
Sky skyOf(int code, bool isDay);
/// Both read differently after midnight too.
EventsReading eventsReading(const EventsService& service, const QDateTime& now, const QLocale& locale);
RemindersReading remindersReading(const RemindersService& service, const QDateTime& now, const QLocale& locale);
/// While a track plays, `elapsed` goes on by itself; it and `progress` move once a second.
NowPlayingReading nowPlayingReading(const NowPlayingService& service, const QDateTime& now);
/// The picture of that widget, or why there is none.
PhotoReading photoReading(const PhotoAlbum& album, const WidgetConfig& config);
FocusReading focusReading(const FocusTimer& timer, const QDateTime& now);
DevicesReading devicesReading(const DevicesService& service);
/// Today's activity. Time counts in whole minutes, so that a reading lasts for one at least.
ActivityReading activityReading(const ActivityTracker& tracker, const QDateTime& now, const QLocale& locale);

} // namespace ambrelle
