// SPDX-License-Identifier: MIT

#pragma once

#include "services/BatteryReader.h"
#include "services/DiskReader.h"
#include "services/MemoryReader.h"

namespace ambrelle {

/// What a system monitor measures and a machine may lack.
enum class SystemMeasure { processor, memory, disks, battery, network, processes };

/// What was measured of the machine at one moment, and in the last minutes. What cannot be read is zero, empty or none,
/// and whyNot() tells whether that zero was measured.
struct SystemSample {
    static constexpr qsizetype historyLength = 60; ///< every history has exactly this many values, the newest last

    double cpu = 0; ///< busy share of the last interval, 0 to 1
    QList<double> perCore{}; ///< the same of every processor, in the kernel's order
    QList<double> cpuHistory = QList<double>(historyLength);
    std::array<double, 3> loadAverage{}; ///< over 1, 5 and 15 minutes
    QList<double> loadHistory = QList<double>(historyLength); ///< of the 1-minute average
    MemoryInfo memory{};
    QList<double> memoryHistory = QList<double>(historyLength); ///< of the used fraction
    QList<DiskInfo> disks{}; ///< the root volume first, then by name
    std::optional<BatteryInfo> battery{};
    double downRate = 0; ///< bytes per second
    double upRate = 0; ///< bytes per second
    QList<double> downHistory = QList<double>(historyLength);
    QList<double> upHistory = QList<double>(historyLength);
    quint64 sessionDown = 0; ///< bytes since the start or the last reset
    quint64 sessionUp = 0; ///< bytes since the start or the last reset
    QList<ProcessRow> processes{}; ///< the busiest first, at most eight; not refreshed while nobody wants them
    double uptime = 0; ///< seconds since the machine was started, sleep included
    std::array<QString, 6> absences{}; ///< what whyNot() tells, in the order of SystemMeasure

    /// One sentence if that cannot be measured here, else empty.
    const QString& whyNot(SystemMeasure measure) const { return absences.at(static_cast<std::size_t>(measure)); }
    /// The first of the disks.
    std::optional<DiskInfo> mainDisk() const { return disks.isEmpty() ? std::nullopt : std::optional(disks.first()); }
    bool operator==(const SystemSample&) const = default;
};

/// Fixed values in place of measured ones, for pictures; nothing is absent.
SystemSample previewSample();

} // namespace ambrelle
