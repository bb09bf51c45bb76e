// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DeviceSource.h"

#include <QByteArray>

namespace ambrelle {

/// The connected devices of a system profiler's Bluetooth report in JSON, in the order of the report; nothing when it
/// is no such report. A level that is no percentage from 0 to 100 counts as not told.
std::optional<QList<ConnectedDevice>> devicesOfProfilerReport(const QByteArray& report);

} // namespace ambrelle
