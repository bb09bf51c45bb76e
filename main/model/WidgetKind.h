// SPDX-License-Identifier: MIT

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
    const char* title;
    QLatin1StringView symbol;
    bool shared;
    const char* description;
};

namespace tables {
using namespace Qt::StringLiterals;
using enum WidgetKind;
inline constexpr std::array widgetKindRows = std::to_array<WidgetKindRow>({
    {clock, "clock"_L1, QT_TRANSLATE_NOOP("ambrelle", "Clock"), "clock"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Time and date, or another city's time")},
    {calendar, "calendar"_L1, QT_TRANSLATE_NOOP("ambrelle", "Calendar"), "calendar"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "The month at a glance")},
    {cpu, "cpu"_L1, QT_TRANSLATE_NOOP("ambrelle", "CPU"), "cpu"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Load with live history")},
    {memory, "memory"_L1, QT_TRANSLATE_NOOP("ambrelle", "Memory"), "memorychip"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "RAM at a glance")},
    {disk, "disk"_L1, QT_TRANSLATE_NOOP("ambrelle", "Storage"), "internaldrive"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Free space on your Mac")},
    {battery, "battery"_L1, QT_TRANSLATE_NOOP("ambrelle", "Battery"), "battery.75percent"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Charge, and time left")},
    {network, "network"_L1, QT_TRANSLATE_NOOP("ambrelle", "Network Speed"), "arrow.up.arrow.down"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Download and upload rates")},
    {downloads, "downloads"_L1, QT_TRANSLATE_NOOP("ambrelle", "Total Downloaded"), "arrow.down.circle"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Data received, with a reset timer")},
    {processes, "processes"_L1, QT_TRANSLATE_NOOP("ambrelle", "App Stats"), "chart.bar"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "The busiest apps right now")},
    {weather, "weather"_L1, QT_TRANSLATE_NOOP("ambrelle", "Weather"), "cloud.sun"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Conditions and the week ahead")},
    {events, "events"_L1, QT_TRANSLATE_NOOP("ambrelle", "Events"), "calendar.badge.clock"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "What's next in your calendars")},
    {nowPlaying, "nowPlaying"_L1, QT_TRANSLATE_NOOP("ambrelle", "Now Playing"), "music.note"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Music or Spotify, with controls")},
    {photo, "photo"_L1, QT_TRANSLATE_NOOP("ambrelle", "Photo"), "photo"_L1, false,
        QT_TRANSLATE_NOOP("ambrelle", "Photos from a folder you choose")},
    {focus, "focus"_L1, QT_TRANSLATE_NOOP("ambrelle", "Focus Timer"), "timer"_L1, true,
        QT_TRANSLATE_NOOP("ambrelle", "Pomodoro sessions and breaks")},
    {reminders, "reminders"_L1, QT_TRANSLATE_NOOP("ambrelle", "Reminders"), "checklist"_L1, true,
        QT_TRANSLATE_NOOP("ambrelle", "Tick off reminders in place")},
    {countdown, "countdown"_L1, QT_TRANSLATE_NOOP("ambrelle", "Countdown"), "hourglass"_L1, true,
        QT_TRANSLATE_NOOP("ambrelle", "Days to the date that matters")},
    {sky, "sky"_L1, QT_TRANSLATE_NOOP("ambrelle", "Moon & Sun"), "moon.stars"_L1, true,
        QT_TRANSLATE_NOOP("ambrelle", "Moon phase and the sun's arc")},
    {activity, "activity"_L1, QT_TRANSLATE_NOOP("ambrelle", "Activity"), "figure.walk.motion"_L1, true,
        QT_TRANSLATE_NOOP("ambrelle", "Time at your Mac today")},
    {quote, "quote"_L1, QT_TRANSLATE_NOOP("ambrelle", "Quote of the Day"), "quote.opening"_L1, true,
        QT_TRANSLATE_NOOP("ambrelle", "A quote or a word, every day")},
    {devices, "devices"_L1, QT_TRANSLATE_NOOP("ambrelle", "Devices"), "headphones"_L1, true,
        QT_TRANSLATE_NOOP("ambrelle", "Bluetooth batteries at a glance")},
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
    return Wording::tr(rowOf(kind).description);
}

} // namespace ambrelle
