// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"

#include <QList>

namespace ambrelle {

/// A filter of the catalogue. A kind may stand in several.
enum class WidgetCategory { all, time, system, network, weather, events, focus, music, photo };

struct WidgetCategoryRow {
    WidgetCategory value;
    QLatin1StringView raw;
    const char* title;
    const char* shortLabel;
    QLatin1StringView symbol;
};

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr std::array widgetCategoryRows = std::to_array<WidgetCategoryRow>({
    {WidgetCategory::all, "all"_L1, QT_TRANSLATE_NOOP("ambrelle", "All Widgets"), QT_TRANSLATE_NOOP("ambrelle", "All"),
        "square.grid.2x2.fill"_L1},
    {WidgetCategory::time, "time"_L1, QT_TRANSLATE_NOOP("ambrelle", "Time & Date"),
        QT_TRANSLATE_NOOP("ambrelle", "Time"), "clock"_L1},
    {WidgetCategory::system, "system"_L1, QT_TRANSLATE_NOOP("ambrelle", "System"),
        QT_TRANSLATE_NOOP("ambrelle", "System"), "cpu"_L1},
    {WidgetCategory::network, "network"_L1, QT_TRANSLATE_NOOP("ambrelle", "Network"),
        QT_TRANSLATE_NOOP("ambrelle", "Network"), "arrow.up.arrow.down"_L1},
    {WidgetCategory::weather, "weather"_L1, QT_TRANSLATE_NOOP("ambrelle", "Weather & Sky"),
        QT_TRANSLATE_NOOP("ambrelle", "Weather"), "cloud.sun"_L1},
    {WidgetCategory::events, "events"_L1, QT_TRANSLATE_NOOP("ambrelle", "Events & Reminders"),
        QT_TRANSLATE_NOOP("ambrelle", "Events"), "calendar.badge.clock"_L1},
    {WidgetCategory::focus, "focus"_L1, QT_TRANSLATE_NOOP("ambrelle", "Focus"), QT_TRANSLATE_NOOP("ambrelle", "Focus"),
        "timer"_L1},
    {WidgetCategory::music, "music"_L1, QT_TRANSLATE_NOOP("ambrelle", "Music"), QT_TRANSLATE_NOOP("ambrelle", "Music"),
        "music.note"_L1},
    {WidgetCategory::photo, "photo"_L1, QT_TRANSLATE_NOOP("ambrelle", "Photos & Quotes"),
        QT_TRANSLATE_NOOP("ambrelle", "Photos"), "photo"_L1},
});
} // namespace tables

template <> inline constexpr auto rawRows<WidgetCategory> = tables::widgetCategoryRows;

/// The label of the filter's chip.
inline QString shortLabel(WidgetCategory category)
{
    return Wording::tr(rowOf(category).shortLabel);
}

/// The kinds that the filter lets through, in catalogue order.
QList<WidgetKind> kinds(WidgetCategory category);

} // namespace ambrelle
