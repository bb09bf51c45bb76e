// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/Wording.h"
#include "model/WidgetKind.h"
#include "services/SystemSample.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double highLoad = 0.85;
constexpr double fullDisk = 0.9;
constexpr int lowBattery = 20; // percent
constexpr double quietNetwork = 10'000; // bytes a second: the least full height of the graphs

Notice missing(const SystemSample& sample, SystemMeasure measure, WidgetKind kind)
{
    const QString& sentence = sample.whyNot(measure);
    return sentence.isEmpty() ? Notice() : Notice{symbol(kind), sentence};
}

QString hoursAndMinutes(int minutes)
{
    return u"%1:%2"_s.arg(minutes / 60).arg(minutes % 60, 2, 10, QChar(u'0'));
}

/// "about 3 h 40 min left"
QString spanInWords(const BatteryInfo& battery)
{
    return (battery.isCharging ? Wording::tr("about %1 to full") : Wording::tr("about %1 left"))
        .arg(Units::inWords(*battery.minutesRemaining));
}

QString batteryState(const BatteryInfo& battery)
{
    if (battery.isCharging)
        return Wording::tr("Charging");
    if (battery.isCharged)
        return Wording::tr("Full");
    return battery.onAC ? Wording::tr("Plugged in") : Wording::tr("On battery");
}

Share memoryPart(const QString& name, quint64 bytes, quint64 total)
{
    const double amount = static_cast<double>(bytes);
    return {name, Wording::tr("%1 GB").arg(Units::gib(amount, 1)), total > 0 ? amount / static_cast<double>(total) : 0};
}

} // namespace

CpuReading cpuReading(const SystemSample& sample)
{
    CpuReading reading{.notice = missing(sample, SystemMeasure::processor, WidgetKind::cpu)};
    reading.percent = Units::percent(sample.cpu);
    reading.load = Wording::tr("Load %1").arg(sample.loadAverage[0], 0, 'f', 2);
    reading.cores = Wording::tr("%n cores", nullptr, static_cast<int>(sample.perCore.size()));
    reading.perCore = sample.perCore;
    reading.history = sample.cpuHistory;
    reading.high = sample.cpu > highLoad;
    return reading;
}

MemoryReading memoryReading(const SystemSample& sample)
{
    MemoryReading reading{.notice = missing(sample, SystemMeasure::memory, WidgetKind::memory)};
    const MemoryInfo& memory = sample.memory;
    reading.percent = Units::percent(memory.fraction());
    reading.used = Units::gib(static_cast<double>(memory.used), 1);
    reading.unit = Wording::tr("GB");
    reading.total = Wording::tr("of %1 GB").arg(Units::gib(static_cast<double>(memory.total), 0));
    reading.parts = {memoryPart(Wording::tr("App"), memory.app, memory.total),
        memoryPart(Wording::tr("Wired"), memory.wired, memory.total),
        memoryPart(Wording::tr("Compressed"), memory.compressed, memory.total)};
    reading.history = sample.memoryHistory;
    reading.high = memory.fraction() > highLoad;
    return reading;
}

DiskReading diskReading(const SystemSample& sample)
{
    DiskReading reading{.notice = missing(sample, SystemMeasure::disks, WidgetKind::disk)};
    const std::optional<DiskInfo> disk = sample.mainDisk();
    if (!disk) {
        if (!reading.notice)
            reading.notice = {symbol(WidgetKind::disk), Wording::tr("No volumes")};
        return reading;
    }
    reading.name = disk->name;
    reading.fraction = std::clamp(disk->usedFraction(), 0.0, 1.0);
    reading.percent = Units::percent(reading.fraction);
    const auto free = static_cast<double>(disk->free);
    reading.free = Units::gb(free, free < 10e9 ? 1 : 0);
    reading.unit = Wording::tr("GB");
    reading.total = Wording::tr("of %1 GB").arg(Units::gb(static_cast<double>(disk->total), 0));
    reading.high = reading.fraction > fullDisk;
    return reading;
}

BatteryReading batteryReading(const SystemSample& sample)
{
    BatteryReading reading{};
    const std::optional<BatteryInfo>& battery = sample.battery;
    if (!battery) {
        reading.notice = {u"powerplug.fill"_s, Wording::tr("No battery")};
        return reading;
    }
    reading.level = std::clamp(battery->percent, 0.0, 1.0);
    reading.percent = Units::percent(battery->percent);
    reading.state = batteryState(*battery);
    if (battery->minutesRemaining) {
        reading.remaining = (battery->isCharging ? Wording::tr("%1 to full") : Wording::tr("%1 left"))
                                .arg(hoursAndMinutes(*battery->minutesRemaining));
        reading.about = spanInWords(*battery);
    }
    if (battery->onAC)
        reading.symbol = battery->isCharging ? u"bolt.fill"_s : u"powerplug.fill"_s;
    reading.charging = battery->isCharging;
    reading.onMains = battery->onAC;
    reading.low = reading.percent <= lowBattery;
    return reading;
}

NetworkReading networkReading(const SystemSample& sample)
{
    NetworkReading reading{.notice = missing(sample, SystemMeasure::network, WidgetKind::network)};
    reading.down = Units::rate(sample.downRate);
    reading.up = Units::rate(sample.upRate);
    reading.downHistory = sample.downHistory;
    reading.upHistory = sample.upHistory;
    reading.peak = std::max(
        {quietNetwork, *std::ranges::max_element(reading.downHistory), *std::ranges::max_element(reading.upHistory)});
    return reading;
}

DownloadsReading downloadsReading(const SystemSample& sample, int resetMinutes)
{
    DownloadsReading reading{.notice = missing(sample, SystemMeasure::network, WidgetKind::downloads)};
    const auto down = static_cast<double>(sample.sessionDown);
    const auto up = static_cast<double>(sample.sessionUp);
    reading.down = Units::size(down);
    reading.up = Units::size(up);
    reading.hint = resetMinutes > 0 ? Wording::tr("Resets every %1 min").arg(resetMinutes) : Wording::tr("Since start");
    reading.share = down + up > 0 ? down / (down + up) : 0;
    return reading;
}

ProcessesReading processesReading(const SystemSample& sample)
{
    ProcessesReading reading{.notice = missing(sample, SystemMeasure::processes, WidgetKind::processes)};
    const QList<ProcessRow>& processes = sample.processes;
    if (processes.isEmpty() && !reading.notice)
        reading.notice = {symbol(WidgetKind::processes), Wording::tr("Measuring…")};
    const double busiest = processes.isEmpty() ? 0 : processes.first().cpu;
    for (const ProcessRow& process : processes) {
        reading.rows.append({process.name, QString::number(process.cpu, 'f', 1) + u'%',
            busiest > 0 ? std::clamp(process.cpu / busiest, 0.0, 1.0) : 0});
    }
    return reading;
}

} // namespace ambrelle
