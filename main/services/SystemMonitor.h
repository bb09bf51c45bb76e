// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "services/CPUReader.h"
#include "services/NetworkReader.h"
#include "services/ProcessReader.h"
#include "services/SystemSample.h"

namespace ambrelle {

/// Samples the machine for every system widget.
class SystemMonitor : public QObject {
    Q_OBJECT
public:
    SystemMonitor(const SystemSources& sources, Clock& clock);

    /// Samples at once and then every `interval` seconds, in place of any interval before; the interval is at least
    /// 0.1.
    void start(double interval);
    /// Processes are listed only while somebody wants them: it costs more than everything else.
    void setWantsProcesses(bool wants) { m_wantsProcesses = wants; }
    bool wantsProcesses() const { return m_wantsProcesses; }
    /// Counts the bytes of the session from 0 again.
    void resetSessionTotals();
    /// Shows previewSample() until the next sample.
    void loadPreviewData();

    /// What was measured last. Until the first sample there are zeros, but whatever the machine lacks is known.
    const SystemSample& sample() const { return m_sample; }

Q_SIGNALS:
    void changed(); ///< after every sample, and after the session totals or all values were set
    void processesChanged(); ///< the processes were published, in a sample or some time after it

private:
    struct NetworkReading {
        NetworkTotals totals;
        double moment = 0;
    };

    void tick();
    void readProcessor();
    void readNetwork(double moment);
    void readDisks(double moment);
    void requestProcesses();
    void noteAbsences();

    SystemSources m_sources;
    Clock& m_clock;
    CPUReader m_cpuReader;
    MemoryReader m_memoryReader;
    DiskReader m_diskReader;
    BatteryReader m_batteryReader;
    NetworkReader m_networkReader;
    ProcessReader m_processReader;

    SystemSample m_sample;
    bool m_wantsProcesses = false;
    bool m_processFetchInFlight = false;
    std::optional<NetworkReading> m_lastNetwork;
    std::optional<double> m_lastDiskRead; // none: read at the next sample
    Ticket m_timer;
};

} // namespace ambrelle
