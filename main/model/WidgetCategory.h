#pragma once

#include "model/WidgetKind.h"

#include <QList>

namespace ambrelle {

/// A filter of the catalogue. A kind may stand in several.
enum class WidgetCategory { all, time, system, network, weather, events, focus, music, photo };

struct WidgetCategoryRow {
    WidgetCategory value;
    QLatin1StringView raw;
    QStringView title;
    QStringView shortLabel;
    QLatin1StringView symbol;
};

namespace tables {
using namespace Qt::StringLiterals;
inline constexpr std::array widgetCategoryRows = std::to_array<WidgetCategoryRow>({
    {WidgetCategory::all, "all"_L1, u"All Widgets", u"All", "square.grid.2x2.fill"_L1},
    {WidgetCategory::time, "time"_L1, u"Time & Date", u"Time", "clock"_L1},
    {WidgetCategory::system, "system"_L1, u"System", u"System", "cpu"_L1},
    {WidgetCategory::network, "network"_L1, u"Network", u"Network", "arrow.up.arrow.down"_L1},
    {WidgetCategory::weather, "weather"_L1, u"Weather & Sky", u"Weather", "cloud.sun"_L1},
    {WidgetCategory::events, "events"_L1, u"Events & Reminders", u"Events", "calendar.badge.clock"_L1},
    {WidgetCategory::focus, "focus"_L1, u"Focus", u"Focus", "timer"_L1},
    {WidgetCategory::music, "music"_L1, u"Music", u"Music", "music.note"_L1},
    {WidgetCategory::photo, "photo"_L1, u"Photos & Quotes", u"Photos", "photo"_L1},
});
} // namespace tables

template <> inline constexpr auto rawRows<WidgetCategory> = tables::widgetCategoryRows;

/// The label of the filter's chip.
inline QString shortLabel(WidgetCategory category)
{
    return rowOf(category).shortLabel.toString();
}

/// The kinds that the filter lets through, in catalogue order.
QList<WidgetKind> kinds(WidgetCategory category);

} // namespace ambrelle
