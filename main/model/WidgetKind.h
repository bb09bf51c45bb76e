#pragma once

#include "model/RawEnum.h"

namespace ambrelle {

/// What a widget shows.
enum class WidgetKind {
    clock,
    calendar,
    cpu,
    memory,
    disk,
    battery,
    network,
    downloads,
    processes,
    weather,
    events,
    nowPlaying,
    photo,
    focus,
    reminders,
    countdown,
    sky,
    activity,
    quote,
    devices,
};

struct WidgetKindRow {
    WidgetKind value;
    QLatin1StringView raw;
    QStringView title;
    QLatin1StringView symbol;
    bool shared;
    QStringView description;
};

namespace tables {
using namespace Qt::StringLiterals;
using enum WidgetKind;
inline constexpr std::array widgetKindRows = std::to_array<WidgetKindRow>({
    {clock, "clock"_L1, u"Clock", "clock"_L1, false, u"Time and date, or another city's time"},
    {calendar, "calendar"_L1, u"Calendar", "calendar"_L1, false, u"The month at a glance"},
    {cpu, "cpu"_L1, u"CPU", "cpu"_L1, false, u"Load with live history"},
    {memory, "memory"_L1, u"Memory", "memorychip"_L1, false, u"RAM at a glance"},
    {disk, "disk"_L1, u"Storage", "internaldrive"_L1, false, u"Free space on your Mac"},
    {battery, "battery"_L1, u"Battery", "battery.75percent"_L1, false, u"Charge, and time left"},
    {network, "network"_L1, u"Network Speed", "arrow.up.arrow.down"_L1, false, u"Download and upload rates"},
    {downloads, "downloads"_L1, u"Total Downloaded", "arrow.down.circle"_L1, false,
        u"Data received, with a reset timer"},
    {processes, "processes"_L1, u"App Stats", "chart.bar"_L1, false, u"The busiest apps right now"},
    {weather, "weather"_L1, u"Weather", "cloud.sun"_L1, false, u"Conditions and the week ahead"},
    {events, "events"_L1, u"Events", "calendar.badge.clock"_L1, false, u"What's next in your calendars"},
    {nowPlaying, "nowPlaying"_L1, u"Now Playing", "music.note"_L1, false, u"Music or Spotify, with controls"},
    {photo, "photo"_L1, u"Photo", "photo"_L1, false, u"Photos from a folder you choose"},
    {focus, "focus"_L1, u"Focus Timer", "timer"_L1, true, u"Pomodoro sessions and breaks"},
    {reminders, "reminders"_L1, u"Reminders", "checklist"_L1, true, u"Tick off reminders in place"},
    {countdown, "countdown"_L1, u"Countdown", "hourglass"_L1, true, u"Days to the date that matters"},
    {sky, "sky"_L1, u"Moon & Sun", "moon.stars"_L1, true, u"Moon phase and the sun's arc"},
    {activity, "activity"_L1, u"Activity", "figure.walk.motion"_L1, true, u"Time at your Mac today"},
    {quote, "quote"_L1, u"Quote of the Day", "quote.opening"_L1, true, u"A quote or a word, every day"},
    {devices, "devices"_L1, u"Devices", "headphones"_L1, true, u"Bluetooth batteries at a glance"},
});
} // namespace tables

template <> inline constexpr auto rawRows<WidgetKind> = tables::widgetKindRows;

/// Whether one face serves every skin; the other kinds are drawn by each skin itself.
constexpr bool isShared(WidgetKind kind)
{
    return rowOf(kind).shared;
}

/// One line about the kind for the catalogue.
inline QString description(WidgetKind kind)
{
    return rowOf(kind).description.toString();
}

} // namespace ambrelle
