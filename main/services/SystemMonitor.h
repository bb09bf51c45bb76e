#pragma once

#include "foundation/Clock.h"
#include "services/BatteryReader.h"
#include "services/CPUReader.h"
#include "services/DiskReader.h"
#include "services/MemoryReader.h"
#include "services/NetworkReader.h"
#include "services/ProcessReader.h"

namespace ambrelle {

/// What a system monitor measures and a machine may lack.
enum class SystemMeasure { processor, memory, disks, battery, network, processes };

/// Samples the machine for every system widget. What cannot be read is zero, empty or none, and isAvailable() tells
/// whether that zero was measured.
class SystemMonitor : public QObject {
    Q_OBJECT
public:
    static constexpr int historyLength = 60; ///< every history has exactly this many values, the newest last

    SystemMonitor(const SystemSources& sources, Clock& clock);

    /// Samples at once and then every `interval` seconds, in place of any interval before; the interval is at least
    /// 0.1.
    void start(double interval);
    /// Processes are listed only while somebody wants them: it costs more than everything else.
    void setWantsProcesses(bool wants) { m_wantsProcesses = wants; }
    bool wantsProcesses() const { return m_wantsProcesses; }
    /// Sets sessionDown() and sessionUp() to 0.
    void resetSessionTotals();
    /// Fixed sample values in place of measured ones, for pictures; everything counts as available until the next
    /// sample.
    void loadPreviewData();

    bool isAvailable(SystemMeasure measure) const;
    QString whyNot(SystemMeasure measure) const; ///< one sentence, empty while available

    double cpu() const { return m_cpu; } ///< busy share of the last interval, 0 to 1
    const QList<double>& perCore() const { return m_perCore; }
    const QList<double>& cpuHistory() const { return m_cpuHistory; }
    const std::array<double, 3>& loadAverage() const { return m_loadAverage; } ///< over 1, 5 and 15 minutes
    const QList<double>& loadHistory() const { return m_loadHistory; } ///< of the 1-minute average
    const MemoryInfo& memory() const { return m_memory; }
    const QList<double>& memoryHistory() const { return m_memoryHistory; } ///< of the used fraction
    const QList<DiskInfo>& disks() const { return m_disks; }
    std::optional<DiskInfo> mainDisk() const; ///< the first of disks()
    const std::optional<BatteryInfo>& battery() const { return m_battery; }
    double downRate() const { return m_downRate; } ///< bytes per second
    double upRate() const { return m_upRate; } ///< bytes per second
    const QList<double>& downHistory() const { return m_downHistory; }
    const QList<double>& upHistory() const { return m_upHistory; }
    quint64 sessionDown() const { return m_sessionDown; } ///< bytes since the start or the last reset
    quint64 sessionUp() const { return m_sessionUp; } ///< bytes since the start or the last reset
    const QList<ProcessRow>& processes() const { return m_processes; } ///< the busiest first
    double uptime() const { return m_uptime; } ///< seconds since boot

Q_SIGNALS:
    void changed(); ///< after every sample, and after the session totals or all values were set
    void processesChanged(); ///< processes() was published, in a sample or some time after it

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
    Port& source(SystemMeasure measure) const;

    SystemSources m_sources;
    Clock& m_clock;
    CPUReader m_cpuReader;
    MemoryReader m_memoryReader;
    DiskReader m_diskReader;
    BatteryReader m_batteryReader;
    NetworkReader m_networkReader;
    ProcessReader m_processReader;

    double m_cpu = 0;
    QList<double> m_perCore;
    QList<double> m_cpuHistory;
    std::array<double, 3> m_loadAverage{};
    QList<double> m_loadHistory;
    MemoryInfo m_memory;
    QList<double> m_memoryHistory;
    QList<DiskInfo> m_disks;
    std::optional<BatteryInfo> m_battery;
    double m_downRate = 0;
    double m_upRate = 0;
    QList<double> m_downHistory;
    QList<double> m_upHistory;
    quint64 m_sessionDown = 0;
    quint64 m_sessionUp = 0;
    QList<ProcessRow> m_processes;
    double m_uptime = 0;

    bool m_wantsProcesses = false;
    bool m_processFetchInFlight = false;
    bool m_showsSamples = false;
    std::optional<NetworkReading> m_lastNetwork;
    std::optional<double> m_lastDiskRead; // none: read at the next sample
    Ticket m_timer;
};

} // namespace ambrelle
