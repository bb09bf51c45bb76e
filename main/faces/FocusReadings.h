#pragma once

#include "faces/Readings.h"

namespace ambrelle {

class FocusTimer;

FocusReading focusReading(const FocusTimer& timer, const QDateTime& now);

} // namespace ambrelle
