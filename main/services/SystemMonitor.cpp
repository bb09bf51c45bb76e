// SPDX-License-Identifier: MIT

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
{
    m_sample.uptime = sources.processor.uptime();
    noteAbsences();
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
    m_sample.sessionDown = 0;
    m_sample.sessionUp = 0;
    Q_EMIT changed();
}

void SystemMonitor::loadPreviewData()
{
    m_sample = previewSample();
    Q_EMIT processesChanged();
    Q_EMIT changed();
}

void SystemMonitor::tick()
{
    const double moment = m_clock.elapsed();
    readProcessor();
    m_sample.memory = m_memoryReader.read();
    append(m_sample.memoryHistory, m_sample.memory.fraction());
    m_sample.battery = m_batteryReader.read();
    m_sample.uptime = m_sources.processor.uptime();
    readNetwork(moment);
    readDisks(moment);
    noteAbsences();
    requestProcesses();
    Q_EMIT changed();
}

void SystemMonitor::readProcessor()
{
    auto reading = m_cpuReader.read();
    m_sample.cpu = reading.total;
    m_sample.perCore = std::move(reading.perCore);
    append(m_sample.cpuHistory, m_sample.cpu);
    m_sample.loadAverage = m_sources.processor.loadAverages().value_or(std::array<double, 3>{});
    append(m_sample.loadHistory, m_sample.loadAverage.front());
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
        m_sample.downRate = static_cast<double>(received) / elapsed;
        m_sample.upRate = static_cast<double>(sent) / elapsed;
        m_sample.sessionDown += received;
        m_sample.sessionUp += sent;
    }
    m_lastNetwork = NetworkReading{totals, moment};
    append(m_sample.downHistory, m_sample.downRate);
    append(m_sample.upHistory, m_sample.upRate);
}

void SystemMonitor::readDisks(double moment)
{
    if (m_lastDiskRead && moment - *m_lastDiskRead <= diskPeriod)
        return;
    m_sample.disks = m_diskReader.read();
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
        monitor->m_sample.processes = std::move(rows);
        monitor->m_processFetchInFlight = false;
        Q_EMIT monitor->processesChanged();
    });
}

void SystemMonitor::noteAbsences()
{
    // In the order of SystemMeasure.
    m_sample.absences = {m_sources.processor.whyNot(), m_sources.memory.whyNot(), m_sources.volumes.whyNot(),
        m_sources.power.whyNot(), m_sources.network.whyNot(), m_sources.processes.whyNot()};
}

} // namespace ambrelle
