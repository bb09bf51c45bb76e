#pragma once

#include "faces/Readings.h"

namespace ambrelle {

struct SystemSample;

/// What the system widgets show of a sample; a notice where the machine cannot be asked.
CpuReading cpuReading(const SystemSample& sample);
MemoryReading memoryReading(const SystemSample& sample);
DiskReading diskReading(const SystemSample& sample);
BatteryReading batteryReading(const SystemSample& sample);
NetworkReading networkReading(const SystemSample& sample);
/// `resetMinutes`: period of the automatic reset, 0: none.
DownloadsReading downloadsReading(const SystemSample& sample, int resetMinutes);
ProcessesReading processesReading(const SystemSample& sample);

} // namespace ambrelle
