#include "services/SystemMonitor.h"

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

namespace {

constexpr int processCount = 8;
constexpr double diskPeriod = 30; // seconds
constexpr double shortestElapsed = 0.001; // seconds
constexpr double shortestInterval = 0.1; // seconds

QList<double> emptyHistory()
{
    return QList<double>(SystemMonitor::historyLength, 0);
}

void append(QList<double>& history, double value)
{
    std::shift_left(history.begin(), history.end(), 1);
    history.last() = value;
}

} // namespace

SystemMonitor::SystemMonitor(const SystemSources& sources, Clock& clock)
    : m_sources(sources)
    , m_clock(clock)
    , m_cpuReader(sources.processor)
    , m_memoryReader(sources.memory)
    , m_diskReader(sources.volumes)
    , m_batteryReader(sources.power)
    , m_networkReader(sources.network)
    , m_processReader(sources.processes)
    , m_cpuHistory(emptyHistory())
    , m_loadHistory(emptyHistory())
    , m_memoryHistory(emptyHistory())
    , m_downHistory(emptyHistory())
    , m_upHistory(emptyHistory())
    , m_uptime(sources.processor.uptime())
{
    connect(&sources.volumes, &VolumeSource::changed, this, [this] { m_lastDiskRead.reset(); });
}

void SystemMonitor::start(double interval)
{
    m_timer.reset();
    tick();
    // Not std::max alone: a NaN from a damaged setting becomes the shortest interval too.
    const double seconds = interval > shortestInterval ? std::min(interval, 86400.0) : shortestInterval;
    m_timer = m_clock.every(std::chrono::milliseconds(std::llround(seconds * 1000)), [this] { tick(); });
}

void SystemMonitor::resetSessionTotals()
{
    m_sessionDown = 0;
    m_sessionUp = 0;
    Q_EMIT changed();
}

bool SystemMonitor::isAvailable(SystemMeasure measure) const
{
    return m_showsSamples || source(measure).isAvailable();
}

QString SystemMonitor::whyNot(SystemMeasure measure) const
{
    return m_showsSamples ? QString() : source(measure).whyNot();
}

std::optional<DiskInfo> SystemMonitor::mainDisk() const
{
    return m_disks.isEmpty() ? std::nullopt : std::optional(m_disks.first());
}

void SystemMonitor::tick()
{
    const double moment = m_clock.elapsed();
    m_showsSamples = false;
    readProcessor();
    m_memory = m_memoryReader.read();
    append(m_memoryHistory, m_memory.fraction());
    m_battery = m_batteryReader.read();
    m_uptime = m_sources.processor.uptime();
    readNetwork(moment);
    readDisks(moment);
    requestProcesses();
    Q_EMIT changed();
}

void SystemMonitor::readProcessor()
{
    auto reading = m_cpuReader.read();
    m_cpu = reading.total;
    m_perCore = std::move(reading.perCore);
    append(m_cpuHistory, m_cpu);
    m_loadAverage = m_sources.processor.loadAverages().value_or(std::array<double, 3>{});
    append(m_loadHistory, m_loadAverage.front());
}

void SystemMonitor::readNetwork(double moment)
{
    const auto totals = m_networkReader.totals();
    if (m_lastNetwork) {
        const auto& [before, beforeMoment] = *m_lastNetwork;
        const double elapsed = std::max(moment - beforeMoment, shortestElapsed);
        // A counter goes back when its interface was reset or removed: that interval counts for nothing.
        const quint64 received = totals.received >= before.received ? totals.received - before.received : 0;
        const quint64 sent = totals.sent >= before.sent ? totals.sent - before.sent : 0;
        m_downRate = double(received) / elapsed;
        m_upRate = double(sent) / elapsed;
        m_sessionDown += received;
        m_sessionUp += sent;
    }
    m_lastNetwork = NetworkReading{totals, moment};
    append(m_downHistory, m_downRate);
    append(m_upHistory, m_upRate);
}

void SystemMonitor::readDisks(double moment)
{
    if (m_lastDiskRead && moment - *m_lastDiskRead <= diskPeriod)
        return;
    m_disks = m_diskReader.read();
    m_lastDiskRead = moment;
}

void SystemMonitor::requestProcesses()
{
    if (!m_wantsProcesses || m_processFetchInFlight)
        return;
    m_processFetchInFlight = true;
    m_processReader.top(processCount, [monitor = QPointer(this)](QList<ProcessRow> rows) {
        if (!monitor)
            return;
        monitor->m_processes = std::move(rows);
        monitor->m_processFetchInFlight = false;
        Q_EMIT monitor->processesChanged();
    });
}

Port& SystemMonitor::source(SystemMeasure measure) const
{
    switch (measure) {
    case SystemMeasure::processor: return m_sources.processor;
    case SystemMeasure::memory: return m_sources.memory;
    case SystemMeasure::disks: return m_sources.volumes;
    case SystemMeasure::battery: return m_sources.power;
    case SystemMeasure::network: return m_sources.network;
    case SystemMeasure::processes: break;
    }
    return m_sources.processes;
}

} // namespace ambrelle
