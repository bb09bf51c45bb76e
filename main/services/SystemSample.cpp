// SPDX-License-Identifier: MIT

#include "services/SystemSample.h"

#include "foundation/Wording.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 gibibyte = quint64{1} << 30;
constexpr qint64 gigabyte = 1'000'000'000;

QList<double> wave(double phase, double base, double amplitude)
{
    QList<double> values;
    values.reserve(SystemSample::historyLength);
    for (int i = 0; i < SystemSample::historyLength; ++i) {
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
    memory.used = static_cast<quint64>(static_cast<double>(memory.total) * fraction);
    memory.wired = memory.used / 4;
    memory.compressed = memory.used / 8;
    memory.app = memory.used - memory.wired - memory.compressed;
    return memory;
}

QList<ProcessRow> sampleProcesses()
{
    return {
        {1, u"Firefox"_s, 13.2, 8.4},
        {2, u"Code"_s, 5.1, 3.2},
        {3, u"Thunderbird"_s, 4.6, 2.9},
        {4, u"Spotify"_s, 3.0, 2.1},
        {5, u"Files"_s, 1.4, 1.6},
        {6, u"Terminal"_s, 1.1, 1.2},
        {7, u"Calendar"_s, 0.9, 0.8},
        {8, u"Notes"_s, 0.6, 0.5},
    };
}

} // namespace

SystemSample previewSample()
{
    SystemSample sample;
    sample.cpuHistory = wave(1, 0.32, 0.18);
    sample.loadHistory = wave(2, 2.2, 0.8);
    sample.memoryHistory = wave(3, 0.41, 0.04);
    sample.downHistory = wave(4, 2'400'000, 1'800'000);
    sample.upHistory = wave(5, 600'000, 450'000);

    sample.cpu = sample.cpuHistory.last();
    for (int i = 0; i < 8; ++i)
        sample.perCore.append(std::abs(std::sin(1.3 * i)) * 0.6 + 0.15);
    sample.loadAverage = {sample.loadHistory.last(), 2.05, 1.88};
    sample.memory = sampleMemory(sample.memoryHistory.last());
    sample.disks = {{Wording::tr("Home"), u"/"_s, 994 * gigabyte, 412 * gigabyte, true}};
    sample.battery = BatteryInfo{0.73, false, false, false, 284};
    sample.downRate = sample.downHistory.last();
    sample.upRate = sample.upHistory.last();
    sample.sessionDown = static_cast<quint64>(4.82 * gigabyte);
    sample.sessionUp = static_cast<quint64>(0.64 * gigabyte);
    sample.processes = sampleProcesses();
    sample.uptime = 3 * 86400 + 7 * 3600 + 42 * 60;
    return sample;
}

} // namespace ambrelle
