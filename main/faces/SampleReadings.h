#pragma once

#include "faces/Readings.h"
#include "model/WidgetKind.h"

namespace ambrelle {

class SystemMonitor;

/// A plausible fixed reading of a kind for pictures. `now` is the moment that the picture shows; the system widgets
/// read `monitor`, which holds its own sample values.
Reading sampleReading(WidgetKind kind, const SystemMonitor& monitor, const QDateTime& now, const QLocale& locale);

} // namespace ambrelle
