// SPDX-License-Identifier: MIT

#include "model/WidgetCategory.h"

namespace ambrelle {

QList<WidgetKind> kinds(WidgetCategory category)
{
    using enum WidgetKind;
    switch (category) {
    case WidgetCategory::all: break;
    case WidgetCategory::time: return {clock, calendar, countdown};
    case WidgetCategory::system: return {cpu, memory, disk, battery, processes, activity, devices};
    case WidgetCategory::network: return {network, downloads};
    case WidgetCategory::weather: return {weather, sky};
    case WidgetCategory::events: return {events, reminders};
    case WidgetCategory::focus: return {focus, countdown};
    case WidgetCategory::music: return {nowPlaying};
    case WidgetCategory::photo: return {photo, quote};
    }
    constexpr auto everything = allCases<WidgetKind>();
    return QList<WidgetKind>(everything.begin(), everything.end());
}

} // namespace ambrelle
