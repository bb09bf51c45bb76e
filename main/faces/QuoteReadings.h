#pragma once

#include "faces/Readings.h"
#include "model/WidgetConfig.h"

#include <QDate>

namespace ambrelle {

/// The word or the saying of that day, whichever the widget is set to.
QuoteReading quoteReading(const WidgetConfig& config, QDate today);

} // namespace ambrelle
