#pragma once

#include "faces/Readings.h"

#include <QLocale>

namespace ambrelle {

class WeatherService;

/// The weather, or the service's status while it has none.
WeatherReading weatherReading(const WeatherService& service, const QLocale& locale);

/// The picture of a weather code.
Sky skyOf(int code, bool isDay);

} // namespace ambrelle
