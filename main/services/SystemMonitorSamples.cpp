#include "services/SystemMonitor.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

constexpr quint64 gibibyte = quint64{1} << 30;
constexpr qint64 gigabyte = 1'000'000'000;

QList<double> wave(double phase, double base, double amplitude)
{
    QList<double> values;
    values.reserve(SystemMonitor::historyLength);
    for (int i = 0; i < SystemMonitor::historyLength; ++i) {
        const double swing = 0.55 * std::sin(i / 4.1 + phase) + 0.3 * std::sin(2 * phase + i / 1.7)
            + 0.15 * std::sin(3 * phase + i / 0.9);
        values.append(std::max(base + amplitude * swing, 0.0));
    }
    return values;
}

MemoryInfo sampleMemory(double fraction)
{
    MemoryInfo memory;
    memory.total = 16 * gibibyte;
    memory.used = quint64(double(memory.total) * fraction);
    memory.wired = memory.used / 4;
    memory.compressed = memory.used / 8;
    memory.app = memory.used - memory.wired - memory.compressed;
    return memory;
}

QList<ProcessRow> sampleProcesses()
{
    return {
        {1, QStringLiteral("Firefox"), 13.2, 8.4},
        {2, QStringLiteral("Code"), 5.1, 3.2},
        {3, QStringLiteral("Thunderbird"), 4.6, 2.9},
        {4, QStringLiteral("Spotify"), 3.0, 2.1},
        {5, QStringLiteral("Files"), 1.4, 1.6},
        {6, QStringLiteral("Terminal"), 1.1, 1.2},
        {7, QStringLiteral("Calendar"), 0.9, 0.8},
        {8, QStringLiteral("Notes"), 0.6, 0.5},
    };
}

} // namespace

void SystemMonitor::loadPreviewData()
{
    m_cpuHistory = wave(1, 0.32, 0.18);
    m_loadHistory = wave(2, 2.2, 0.8);
    m_memoryHistory = wave(3, 0.41, 0.04);
    m_downHistory = wave(4, 2'400'000, 1'800'000);
    m_upHistory = wave(5, 600'000, 450'000);

    m_cpu = m_cpuHistory.last();
    m_perCore.clear();
    for (int i = 0; i < 8; ++i)
        m_perCore.append(std::abs(std::sin(1.3 * i)) * 0.6 + 0.15);
    m_loadAverage = {m_loadHistory.last(), 2.05, 1.88};
    m_memory = sampleMemory(m_memoryHistory.last());
    m_disks = {{QStringLiteral("Macintosh HD"), QStringLiteral("/"), 994 * gigabyte, 412 * gigabyte, true}};
    m_battery = BatteryInfo{0.73, false, false, false, 284};
    m_downRate = m_downHistory.last();
    m_upRate = m_upHistory.last();
    m_sessionDown = quint64(4.82 * gigabyte);
    m_sessionUp = quint64(0.64 * gigabyte);
    m_processes = sampleProcesses();
    m_uptime = 3 * 86400 + 7 * 3600 + 42 * 60;

    m_showsSamples = true;
    Q_EMIT processesChanged();
    Q_EMIT changed();
}

} // namespace ambrelle
