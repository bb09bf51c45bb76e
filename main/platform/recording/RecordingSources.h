// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <utility>

namespace ambrelle {

/// The part all recording sources share: available until the test says why not.
template <class Source> class RecordingSource : public Source {
public:
    bool isAvailable() const final { return m_whyNot.isEmpty(); }
    QString whyNot() const final { return m_whyNot; }
    void setWhyNot(const QString& sentence) { m_whyNot = sentence; }

private:
    QString m_whyNot;
};

struct RecordingProcessor final : RecordingSource<ProcessorSource> {
    std::optional<QList<ProcessorTicks>> currentTicks = QList<ProcessorTicks>();
    std::optional<std::array<double, 3>> currentLoads = std::array<double, 3>();
    double currentUptime = 0;

    std::optional<QList<ProcessorTicks>> ticks() override { return currentTicks; }
    std::optional<std::array<double, 3>> loadAverages() override { return currentLoads; }
    double uptime() override { return currentUptime; }
};

struct RecordingMemory final : RecordingSource<MemorySource> {
    quint64 currentPhysicalMemory = 0;
    std::optional<MemoryUse> currentUse = MemoryUse();

    quint64 physicalMemory() override { return currentPhysicalMemory; }
    std::optional<MemoryUse> use() override { return currentUse; }
};

struct RecordingVolumes final : RecordingSource<VolumeSource> {
    QList<Volume> currentVolumes;
    int readings = 0; ///< how often the volumes were asked for

    QList<Volume> volumes() override
    {
        ++readings;
        return currentVolumes;
    }
};

struct RecordingPower final : RecordingSource<PowerSource> {
    QList<PowerSourceDescription> currentDescriptions;

    QList<PowerSourceDescription> descriptions() override { return currentDescriptions; }
};

struct RecordingNetwork final : RecordingSource<NetworkSource> {
    std::optional<QList<InterfaceCounters>> currentInterfaces = QList<InterfaceCounters>();

    std::optional<QList<InterfaceCounters>> interfaces() override { return currentInterfaces; }
};

struct RecordingProcesses final : RecordingSource<ProcessSource> {
    QList<int> requests; ///< the count of every request
    Completion pending; ///< of the last request, until answer()

    void top(int count, Completion completion) override
    {
        requests.append(count);
        pending = std::move(completion);
    }
    void answer(const QList<ProcessRow>& rows)
    {
        if (auto completion = std::exchange(pending, nullptr))
            completion(rows);
    }
};

/// A machine for tests: it measures what the test set.
struct RecordingSources {
    RecordingProcessor processor;
    RecordingMemory memory;
    RecordingVolumes volumes;
    RecordingPower power;
    RecordingNetwork network;
    RecordingProcesses processes;

    SystemSources sources() { return {processor, memory, volumes, power, network, processes}; }
};

} // namespace ambrelle
