#pragma once

#include "faces/Readings.h"
#include "model/WidgetConfig.h"
#include "services/WeatherSnapshot.h"

#include <QLocale>

namespace ambrelle {

/// What the widgets show that need nothing but the time and their own settings.

/// The clock of the widget's city, or of the machine; an unknown time zone counts as none.
ClockReading clockReading(const WidgetConfig& config, const QDateTime& now, const QLocale& locale, bool seconds);
CalendarReading calendarReading(QDate today, const QLocale& locale);
CountdownReading countdownReading(const WidgetConfig& config, const QDateTime& now, const QLocale& locale);
/// The moon, and the sun as the weather tells it: its times on the clock of the place, and how far it has come.
SkyReading skyReading(const QDateTime& now, const std::optional<WeatherSnapshot>& weather, const QLocale& locale);

} // namespace ambrelle
