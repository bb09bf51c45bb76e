// SPDX-License-Identifier: MIT

#include "services/SystemMonitor.h"

#include "platform/headless/HeadlessSources.h"
#include "platform/recording/RecordingSources.h"
#include "services/ServiceTest.h"

#include <cmath>

namespace ambrelle {
namespace {

struct SystemMonitorTest : ServiceTest {
    SystemMonitorTest() { count(monitor); }

    void setTraffic(quint64 received, quint64 sent)
    {
        machine.network.currentInterfaces =
            QList<InterfaceCounters>{{u"lo"_s, 777, 777, false}, {u"eth0"_s, received, sent, true}};
    }

    RecordingSources machine;
    SystemMonitor monitor{machine.sources(), clock};
};

TEST(CPUReaderTest, SharesOfTheTimeBetweenReadings)
{
    constexpr quint64 large = quint64{1} << 40;
    struct Case {
        const char* what;
        QList<ProcessorTicks> before, after;
        double total;
        std::vector<double> perCore;
    };
    const Case cases[] = {
        {"busy is user, system and nice", {{0, 0, 0, 0}, {0, 0, 0, 0}}, {{10, 20, 60, 10}, {0, 0, 300, 0}}, 0.1,
            {0.4, 0}},
        {"differences beyond 32 bits", {{1, 1, 1, 1}}, {{large + 1, large + 1, 9 * large + 1, large + 1}}, 0.25,
            {0.25}},
        {"no time passed", {{5, 5, 5, 5}}, {{5, 5, 5, 5}}, 0, {0}},
        {"a processor went away", {{0, 0, 0, 0}, {0, 0, 0, 0}}, {{50, 0, 50, 0}}, 0, {0}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        RecordingProcessor processor;
        CPUReader reader(processor);
        processor.currentTicks = each.before;
        const auto first = reader.read();
        EXPECT_EQ(first.total, 0);
        EXPECT_EQ(first.perCore, QList<double>(each.before.size(), 0));
        processor.currentTicks = each.after;
        const auto second = reader.read();
        EXPECT_DOUBLE_EQ(second.total, each.total);
        EXPECT_EQ(std::vector<double>(second.perCore.begin(), second.perCore.end()), each.perCore);
    }
}

TEST(CPUReaderTest, AFailedReadingKeepsTheCountersBeforeIt)
{
    RecordingProcessor processor;
    CPUReader reader(processor);
    processor.currentTicks = {{0, 0, 0, 0}};
    reader.read();
    processor.currentTicks.reset();
    EXPECT_TRUE(reader.read().perCore.isEmpty());
    processor.currentTicks = {{30, 0, 70, 0}};
    EXPECT_DOUBLE_EQ(reader.read().total, 0.3);
}

TEST(MemoryReaderTest, CountsPressureInBytesAndNeverMoreThanThereIs)
{
    RecordingMemory memory;
    memory.currentPhysicalMemory = 1000;
    EXPECT_EQ(MemoryReader(memory).read(), (MemoryInfo{.total = 1000})) << "its use is not known";
    memory.currentUse = MemoryUse{.programs = 250, .wired = 100, .compressed = 70};
    MemoryInfo expected{.total = 1000, .used = 420, .app = 250, .wired = 100, .compressed = 70};
    EXPECT_EQ(MemoryReader(memory).read(), expected);
    memory.currentPhysicalMemory = expected.total = expected.used = 200;
    EXPECT_EQ(MemoryReader(memory).read(), expected);
    EXPECT_EQ(MemoryInfo().fraction(), 0);
}

TEST(DiskReaderTest, ListsBrowsableVolumesTheRootFirst)
{
    RecordingVolumes volumes;
    volumes.currentVolumes = {
        {.name = u"beta"_s, .path = u"/b2"_s, .browsable = true, .total = 100, .available = 30},
        {u"beta"_s, u"/b1"_s, true, 100, 30, 140, {}},
        {.path = u"/media/Alpha/"_s, .browsable = true, .total = 100},
        {.name = u"snapshot"_s, .path = u"/x"_s, .browsable = false, .total = 100},
        {.name = u"unknown"_s, .path = u"/y"_s, .total = 100},
        {.name = u"empty"_s, .path = u"/z"_s, .browsable = true, .total = 0},
        {.name = u"sizeless"_s, .path = u"/w"_s, .browsable = true},
        {.name = u"zeta"_s, .path = u"/"_s, .browsable = true, .total = 100, .isRoot = true},
    };

    const auto disks = DiskReader(volumes).read();
    QStringList names;
    for (const auto& disk : disks)
        names.append(disk.name + disk.path);
    EXPECT_EQ(names, QStringList({u"zeta/"_s, u"Alpha/media/Alpha/"_s, u"beta/b2"_s, u"beta/b1"_s}));
    EXPECT_EQ(disks.at(2).used(), 70);
    EXPECT_DOUBLE_EQ(disks.at(2).usedFraction(), 0.7);
    EXPECT_EQ(disks.at(3).free, 140);
    EXPECT_EQ(disks.at(3).used(), 0);
    EXPECT_EQ(disks.at(1).free, 0);
}

TEST(BatteryReaderTest, ReadsTheFirstInternalBattery)
{
    struct Case {
        const char* what;
        PowerSourceDescription description;
        BatteryInfo expected;
    };
    using enum PowerSourceType;
    const Case cases[] = {
        {"charging", {internalBattery, 30, 40, true, true, false, 25, 90}, {0.75, true, true, false, 25}},
        {"in use", {internalBattery, 30, 40, false, false, false, 25, 90}, {0.75, false, false, false, 90}},
        {"estimating", {internalBattery, 30, 40, false, false, false, 25, -1}, {0.75, false, false, false, {}}},
        {"full", {internalBattery, 40, 40, false, true, true, 0, 0}, {1, false, true, true, {}}},
        {"says nothing", {internalBattery, 40, 0, {}, false, {}, {}, {}}, {0, false, false, false, {}}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.what);
        RecordingPower power;
        power.currentDescriptions = {{other, 1, 2, true, true, true, 9, 9}, each.description, {internalBattery, 1, 9}};
        EXPECT_EQ(BatteryReader(power).read(), each.expected);
        power.currentDescriptions.resize(1);
        EXPECT_EQ(BatteryReader(power).read(), std::nullopt);
    }
}

TEST_F(SystemMonitorTest, TheFirstSampleHasNoRatesAndGrowsEveryHistory)
{
    machine.processor.currentTicks = {{1, 2, 3, 4}, {1, 2, 3, 4}};
    machine.processor.currentLoads = {{1.5, 1, 0.5}};
    machine.processor.currentUptime = 99;
    machine.memory.currentPhysicalMemory = 1000;
    machine.memory.currentUse = MemoryUse{.wired = 500};
    setTraffic(5000, 600);
    monitor.start(2);

    EXPECT_EQ(monitor.sample().cpu, 0);
    EXPECT_THAT(monitor.sample().perCore, ElementsAre(0, 0));
    EXPECT_EQ(monitor.sample().downRate, 0);
    EXPECT_EQ(monitor.sample().sessionDown, 0U);
    EXPECT_EQ(monitor.sample().uptime, 99);
    for (const auto* history : {&monitor.sample().cpuHistory, &monitor.sample().loadHistory,
             &monitor.sample().memoryHistory, &monitor.sample().downHistory, &monitor.sample().upHistory})
        EXPECT_EQ(history->size(), SystemSample::historyLength);
    EXPECT_EQ(monitor.sample().loadAverage.front(), 1.5);
    EXPECT_EQ(monitor.sample().loadHistory.last(), 1.5);
    EXPECT_EQ(monitor.sample().memoryHistory.last(), 0.5);

    machine.processor.currentLoads.reset();
    clock.advance(2s);
    EXPECT_THAT(monitor.sample().loadAverage, Each(0));
    EXPECT_EQ(monitor.sample().memoryHistory.at(SystemSample::historyLength - 2), 0.5);
    EXPECT_EQ(monitor.sample().memoryHistory.at(SystemSample::historyLength - 3), 0);
}

TEST_F(SystemMonitorTest, RatesAndTotalsFollowTheCounters)
{
    setTraffic(1000, 1000);
    monitor.start(2);
    setTraffic(5000, 1600);
    clock.advance(2s);
    EXPECT_DOUBLE_EQ(monitor.sample().downRate, 2000);
    EXPECT_DOUBLE_EQ(monitor.sample().upRate, 300);

    setTraffic(10, 2600); // one direction was reset
    clock.advance(2s);
    EXPECT_EQ(monitor.sample().downRate, 0);
    EXPECT_DOUBLE_EQ(monitor.sample().upRate, 500);
    EXPECT_EQ(monitor.sample().sessionDown, 4000U);
    EXPECT_EQ(monitor.sample().sessionUp, 1600U);

    setTraffic(12, 2600);
    monitor.start(2); // at the same moment: a millisecond is taken
    EXPECT_DOUBLE_EQ(monitor.sample().downRate, 2000);

    monitor.resetSessionTotals();
    EXPECT_EQ(monitor.sample().sessionDown, 0U);
    EXPECT_EQ(monitor.sample().sessionUp, 0U);
    EXPECT_DOUBLE_EQ(monitor.sample().downRate, 2000);
    EXPECT_DOUBLE_EQ(monitor.sample().downHistory.last(), 2000);
}

TEST_F(SystemMonitorTest, AnyIntervalFromTheSettingsGivesOneTimer)
{
    for (const double interval : {5.0, -1.0, 0.0, std::nan(""), 1e300, 2.0})
        monitor.start(interval);
    changes = 0;
    clock.advance(10s);
    EXPECT_EQ(changes, 5);
}

TEST_F(SystemMonitorTest, VolumesAreReadEveryThirtySecondsAndAfterAMount)
{
    monitor.start(10);
    EXPECT_EQ(machine.volumes.readings, 1);
    clock.advance(30s);
    EXPECT_EQ(machine.volumes.readings, 1);
    clock.advance(10s);
    EXPECT_EQ(machine.volumes.readings, 2);
    EXPECT_FALSE(monitor.sample().mainDisk());

    machine.volumes.currentVolumes = {{u"System"_s, u"/"_s, true, 100, 50, {}, true}};
    Q_EMIT machine.volumes.changed();
    EXPECT_EQ(machine.volumes.readings, 2);
    clock.advance(10s);
    EXPECT_EQ(machine.volumes.readings, 3);
    ASSERT_TRUE(monitor.sample().mainDisk());
    EXPECT_EQ(monitor.sample().mainDisk()->id(), u"/"_s);
}

TEST_F(SystemMonitorTest, ListsProcessesOneAtATimeWhileWanted)
{
    int published = 0;
    QObject::connect(&monitor, &SystemMonitor::processesChanged, [&published] { ++published; });
    monitor.start(1);
    EXPECT_TRUE(machine.processes.requests.isEmpty());
    monitor.setWantsProcesses(true);
    clock.advance(3s);
    EXPECT_THAT(machine.processes.requests, ElementsAre(8));

    QList<ProcessRow> rows;
    for (int i = 0; i < 9; ++i)
        rows.append({i, u"worker"_s, 9.0 - i, 1});
    machine.processes.answer(rows);
    EXPECT_EQ(published, 1);
    EXPECT_EQ(monitor.sample().processes, rows.first(8));
    clock.advance(1s);
    EXPECT_EQ(machine.processes.requests.size(), 2);
    EXPECT_EQ(monitor.sample().processes.size(), 8); // the old list stays meanwhile
    monitor.setWantsProcesses(false);
    machine.processes.answer({});
    clock.advance(5s);
    EXPECT_EQ(machine.processes.requests.size(), 2);
}

TEST_F(SystemMonitorTest, AListThatComesTooLateIsDropped)
{
    {
        SystemMonitor shortLived(machine.sources(), clock);
        shortLived.setWantsProcesses(true);
        shortLived.start(1);
    }
    ASSERT_TRUE(machine.processes.pending);
    machine.processes.answer({{1, u"late"_s, 1, 1}});
    clock.advance(5s);
    EXPECT_EQ(machine.processes.requests.size(), 1);
}

TEST_F(SystemMonitorTest, WhatCannotBeMeasuredIsNotZero)
{
    machine.network.setWhyNot(u"No network here."_s);
    machine.network.currentInterfaces.reset();
    monitor.start(1);
    EXPECT_EQ(monitor.sample().whyNot(SystemMeasure::processor), QString());
    EXPECT_EQ(monitor.sample().whyNot(SystemMeasure::network), u"No network here."_s);

    monitor.loadPreviewData();
    EXPECT_EQ(monitor.sample(), previewSample());
    EXPECT_EQ(monitor.sample().whyNot(SystemMeasure::network), QString());
    clock.advance(1s);
    EXPECT_EQ(monitor.sample().whyNot(SystemMeasure::network), u"No network here."_s);

    machine.processor.setWhyNot(u"processor"_s);
    machine.memory.setWhyNot(u"memory"_s);
    machine.volumes.setWhyNot(u"volumes"_s);
    machine.power.setWhyNot(u"power"_s);
    machine.network.setWhyNot(u"network"_s);
    machine.processes.setWhyNot(u"processes"_s);
    const SystemMonitor nothingStarted(machine.sources(), clock);
    const std::pair<SystemMeasure, QString> expected[] = {{SystemMeasure::processor, u"processor"_s},
        {SystemMeasure::memory, u"memory"_s}, {SystemMeasure::disks, u"volumes"_s},
        {SystemMeasure::battery, u"power"_s}, {SystemMeasure::network, u"network"_s},
        {SystemMeasure::processes, u"processes"_s}};
    for (const auto& [measure, sentence] : expected)
        EXPECT_EQ(nothingStarted.sample().whyNot(measure), sentence);
}

TEST(SystemMonitorPreviewTest, SamplesFitTogetherOnAMachineWithoutSources)
{
    HeadlessSources machine;
    ManualClock clock;
    SystemMonitor monitor(machine.sources(), clock);
    monitor.setWantsProcesses(true);
    monitor.start(1);
    EXPECT_TRUE(monitor.sample().perCore.isEmpty());
    EXPECT_TRUE(monitor.sample().processes.isEmpty());
    EXPECT_FALSE(monitor.sample().battery);

    const SystemSample preview = previewSample();
    EXPECT_EQ(preview.cpu, preview.cpuHistory.last());
    EXPECT_NEAR(preview.memory.fraction(), preview.memoryHistory.last(), 1e-9);
    EXPECT_EQ(preview.memory.used, preview.memory.app + preview.memory.wired + preview.memory.compressed);
    EXPECT_EQ(preview.perCore.size(), 8);
    EXPECT_EQ(preview.processes.size(), 8);
    EXPECT_TRUE(preview.mainDisk() && preview.mainDisk()->isRoot);
    EXPECT_TRUE(preview.battery);
}

} // namespace
} // namespace ambrelle
