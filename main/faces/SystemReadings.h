#pragma once

#include "faces/Readings.h"

namespace ambrelle {

class SystemMonitor;

/// What the system widgets show of a monitor's values; a notice where the machine cannot be asked.
CpuReading cpuReading(const SystemMonitor& monitor);
MemoryReading memoryReading(const SystemMonitor& monitor);
DiskReading diskReading(const SystemMonitor& monitor);
BatteryReading batteryReading(const SystemMonitor& monitor);
NetworkReading networkReading(const SystemMonitor& monitor);
/// `resetMinutes`: period of the automatic reset, 0: none.
DownloadsReading downloadsReading(const SystemMonitor& monitor, int resetMinutes);
ProcessesReading processesReading(const SystemMonitor& monitor);

} // namespace ambrelle
