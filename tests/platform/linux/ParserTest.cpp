// SPDX-License-Identifier: MIT

#include "support/TestData.h"

#include "platform/linux/kernel/InterfaceParser.h"
#include "platform/linux/kernel/MemoryParser.h"
#include "platform/linux/kernel/MountParser.h"
#include "platform/linux/kernel/PowerSupplyParser.h"
#include "platform/linux/kernel/ProcessorParser.h"
#include "platform/linux/kernel/ProcessParser.h"

#include <QDir>

#include <gmock/gmock.h>

#include <random>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

TEST(ProcessorParserTest, EachProcessorThatIsOnline)
{
    const auto two = parseProcessorTicks(view(testData("stat-two-processors.txt")));
    EXPECT_EQ(two, (QList<ProcessorTicks>{{38901, 10425, 202851, 563}, {44843, 12872, 194433, 758}}));
    const auto offline = parseProcessorTicks(view(testData("stat-processor-offline.txt")));
    ASSERT_TRUE(offline);
    EXPECT_EQ(offline->size(), 4);
    EXPECT_EQ(offline->last(), (ProcessorTicks{280000, 101000 + 30 + 1050 + 9, 7544000 + 22000, 1200}));

    // The oldest kernels have four figures.
    EXPECT_EQ(parseProcessorTicks("cpu0 4294967301 2 3 4\n"), (QList<ProcessorTicks>{{4294967301, 3, 4, 2}}));
    for (const char* damaged :
        {"", "cpu", "cpu 1 2 3 4 5", "cpu0 1 2 3", "cpu0 1 x 3 4", "cpu0 1 2 3 4 5 -6", "intr 1"})
        EXPECT_FALSE(parseProcessorTicks(damaged)) << damaged;
}

TEST(MemoryParserTest, NothingCountsTwice)
{
    const auto memory = parseMemory(view(testData("meminfo-laptop.txt")));
    ASSERT_TRUE(memory);
    EXPECT_EQ(memory->total, 16156348ULL * 1024);
    EXPECT_EQ(memory->kernel, (308224ULL + 24576 + 81920 + 4096 + 8192 + 262144) * 1024);
    EXPECT_EQ(memory->compressed, 262144ULL * 1024);
    EXPECT_EQ(useOf(*memory),
        (MemoryUse{.programs = (5242880ULL + 1048576 - 524288) * 1024,
            .wired = memory->kernel + 524288ULL * 1024,
            .compressed = memory->compressed}));

    const auto virtualMachine = parseMemory(view(testData("meminfo-virtual-machine.txt")));
    ASSERT_TRUE(virtualMachine);
    EXPECT_GT(virtualMachine->total, virtualMachine->anonymous);

    EXPECT_FALSE(parseMemory("MemTotal: 100 kB\n"));
    EXPECT_FALSE(parseMemory("AnonPages: 100 kB\n"));
    EXPECT_FALSE(parseMemory("MemTotal: 99999999999999999999 kB\nAnonPages: 100 kB\n"));
    EXPECT_EQ(parseMemory("MemTotal: 9 kB\nAnonPages: 8 kB\nShmem: -7 kB\nZswap 5")->shared, 0U);
    EXPECT_EQ(useOf({100, 10, 10, 4096 * 50, 0, 0}).programs, 0U);

    EXPECT_EQ(parseCompressedDevice("  4096 2048  73728 0 0 0 0 0 0\n"), 73728U);
    EXPECT_EQ(parseCompressedDevice("4096"), 0U);
}

QList<QByteArray> browsablePaths(const char* name)
{
    QList<QByteArray> paths;
    for (const auto& mount : browsableMounts(parseMounts(view(testData(name)))))
        paths.append(mount.path);
    return paths;
}

TEST(MountParserTest, VolumesAUserWouldName)
{
    EXPECT_THAT(browsablePaths("mountinfo-laptop.txt"),
        ElementsAre("/", "/media/anna/Holiday Photos\t1", "/mnt/data", "/mnt/nas", "/home/anna/server",
            "/run/media/anna/STICK"));
    EXPECT_THAT(browsablePaths("mountinfo-container.txt"), ElementsAre("/"));
    EXPECT_THAT(browsablePaths("mountinfo-virtual-machine.txt"), ElementsAre("/"));
    // The part seen first gives way to the one mounted higher up, the root to nothing.
    const auto chosen = browsableMounts(parseMounts("1 1 8:1 / /mnt/long/path rw - ext4 /dev/sda1 rw\n"
                                                    "1 1 8:1 / /mnt/short rw shared:1 master:2 - ext4 /dev/sda1 rw\n"
                                                    "1 1 8:2 / / rw - ext4 /dev/sda2 rw\n"
                                                    "1 1 8:2 / /a rw - ext4 /dev/sda2 rw\n"
                                                    "1 1 0:40 / /tank rw - zfs tank rw\n"
                                                    "1 1 0:41 / /tank/photos rw - zfs tank/photos rw\n"));
    QList<QByteArray> paths;
    for (const auto& mount : chosen)
        paths.append(mount.path);
    EXPECT_THAT(paths, ElementsAre("/mnt/short", "/", "/tank"));
}

TEST(MountParserTest, SlowVolumesAndEscapes)
{
    for (const char* type : {"nfs4", "cifs", "fuse.sshfs", "fuseblk", "vfat", "9p"})
        EXPECT_TRUE(mayBeSlow({{}, {}, {}, type, {}})) << type;
    for (const char* type : {"ext4", "btrfs", "xfs"})
        EXPECT_FALSE(mayBeSlow({{}, {}, {}, type, {}})) << type;
    EXPECT_EQ(decodeLabel("Holiday\\x20Photos\\x2f\\x5cx20"), QByteArray("Holiday Photos/\\x20"));
    EXPECT_EQ(decodeLabel("a\\x2"), QByteArray("a\\x2"));
    EXPECT_EQ(decodeLabel("\\xzz\\x00"), QByteArray("\\xzz\\x00"));
}

PowerSupply supplyFrom(const char* name, std::string_view type = {})
{
    return parsePowerSupply(view(testData(name)), type);
}

TEST(PowerSupplyParserTest, BatteriesInWattHoursAmpereHoursAndPerCent)
{
    using enum PowerSourceType;
    auto energy = supplyFrom("battery-energy.txt");
    auto charge = supplyFrom("battery-charge.txt", "Battery");
    const auto mouse = supplyFrom("battery-of-mouse.txt");
    auto mains = supplyFrom("mains.txt");

    // 36 Wh at 9 W last four hours, 12 Wh more take 80 minutes. The mouse neither feeds the machine nor is its battery.
    const auto unplugged = describe({mains, mouse, energy});
    ASSERT_EQ(unplugged.size(), 2);
    EXPECT_EQ(unplugged.first().type, other);
    EXPECT_EQ(
        unplugged.last(), (PowerSourceDescription{internalBattery, 36000000, 48000000, false, false, false, 80, 240}));

    // 4 Ah more at 2 A, which this driver counts as negative.
    mains.online = true;
    EXPECT_EQ(describe({charge, mains}).first(),
        (PowerSourceDescription{internalBattery, 2000000, 6000000, true, true, false, 120, 60}));
    EXPECT_TRUE(describe({charge}).first().onAC);
    EXPECT_FALSE(describe({energy}).first().onAC);

    // Power in place of current: 16 W at 8 V are 2 A.
    charge.current.reset();
    charge.power = 16000000;
    EXPECT_EQ(describe({charge}).first().timeToFullCharge, 120);
    charge.voltage.reset();
    EXPECT_EQ(describe({charge}).first().timeToFullCharge, -1);

    energy.energyFull = 0;
    const auto byPercent = describe({energy}).first();
    EXPECT_EQ(byPercent.currentCapacity, 75);
    EXPECT_EQ(byPercent.maxCapacity, 100);
    EXPECT_EQ(byPercent.timeToEmpty, -1);
    energy.secondsToEmpty = 1800;
    EXPECT_EQ(describe({energy}).first().timeToEmpty, 30);
    energy.present = false;
    EXPECT_TRUE(describe({energy}).isEmpty());
}

TEST(PowerSupplyParserTest, SeveralBatteriesAreOne)
{
    const auto battery = [](const char* status, qint64 energy, qint64 full, qint64 power) {
        PowerSupply supply;
        supply.type = "Battery";
        supply.status = status;
        supply.energy = energy;
        supply.energyFull = full;
        supply.power = power;
        return supply;
    };
    const auto whole = [](const QList<PowerSupply>& supplies) {
        const auto descriptions = describe(supplies);
        EXPECT_EQ(descriptions.size(), 1);
        return descriptions.value(0);
    };
    using enum PowerSourceType;
    // One is used up first: 10 Wh and 20 Wh at 10 W last three hours.
    EXPECT_EQ(whole({battery("Unknown", 10000000, 20000000, 0), battery("Discharging", 20000000, 60000000, 10000000)}),
        (PowerSourceDescription{internalBattery, 30000000, 80000000, false, false, false, 300, 180}));
    EXPECT_EQ(whole({battery("Full", 20000000, 20000000, 0), battery("Charging", 20000000, 60000000, 20000000)}),
        (PowerSourceDescription{internalBattery, 40000000, 80000000, true, true, false, 120, 120}));
    const auto full = whole({battery("Full", 5, 5, 0), battery("Full", 5, 5, 0)});
    EXPECT_TRUE(full.isCharged.value_or(false));
    EXPECT_FALSE(full.isCharging.value_or(true));

    // 2 Ah of 6 Ah at 12 V are 24 Wh of 72 Wh. Without a voltage nobody knows which of the two is larger.
    PowerSupply charge = battery("Discharging", 0, 0, 0);
    charge.charge = 2000000;
    charge.chargeFull = 6000000;
    charge.voltage = 12000000;
    const auto second = battery("Not charging", 28000000, 28000000, 0);
    EXPECT_EQ(whole({charge, second}).currentCapacity, 52000000);
    EXPECT_EQ(whole({charge, second}).maxCapacity, 100000000);
    charge.voltage.reset();
    EXPECT_EQ(whole({charge, second}).currentCapacity, 67);
    EXPECT_EQ(whole({charge, second}).maxCapacity, 100);
}

TEST(PowerSupplyParserTest, NumbersBeyondReason)
{
    constexpr auto most = std::numeric_limits<qint64>::max();
    constexpr auto least = std::numeric_limits<qint64>::min();
    PowerSupply supply;
    supply.type = "Battery";
    for (const qint64 now : {least, qint64{-1}, qint64{0}, most}) {
        for (const qint64 rate : {least, qint64{0}, qint64{1}, most}) {
            supply.energy = now;
            supply.energyFull = most;
            supply.power = rate;
            supply.secondsToEmpty = rate;
            for (const auto& supplies : {QList{supply}, QList{supply, supply}}) {
                const auto description = describe(supplies).first();
                EXPECT_GE(description.currentCapacity, 0);
                EXPECT_LE(description.currentCapacity, description.maxCapacity);
                EXPECT_GE(*description.timeToEmpty, -1);
                EXPECT_GE(*description.timeToFullCharge, -1);
            }
        }
    }
}

QStringList interfacesIn(std::string_view text)
{
    QStringList found;
    parseInterfaces(text, [&found](const InterfaceLine& line) {
        found.append(u"%1 %2 %3"_s.arg(QString::fromUtf8(line.name.data(), static_cast<qsizetype>(line.name.size())))
                         .arg(line.received)
                         .arg(line.sent));
    });
    return found;
}

TEST(InterfaceParserTest, ByteCounters)
{
    const auto found = interfacesIn(view(testData("net-dev-laptop.txt")));
    EXPECT_EQ(found.size(), 6);
    EXPECT_EQ(found.at(1), u"enp3s0 5000000001 700000002"_s);
    EXPECT_EQ(interfacesIn("eth0:1 2 3 4 5 6 7 8\n:1 2 3 4 5 6 7 8 9\neth1: x 2 3 4 5 6 7 8 9\neth2:1 2 3 4 5 6 7 8 9"),
        QStringList(u"eth2 1 9"_s));
}

TEST(ProcessParserTest, ANameMayHoldAnything)
{
    const auto text = testData("process-stat.txt");
    const auto stat = parseProcessStat(view(text));
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->id, 4242);
    EXPECT_EQ(stat->name, "tmux: (a) ) R 1\n");
    EXPECT_EQ(stat->ticks, 2000U);
    EXPECT_EQ(stat->start, 98765U);
    EXPECT_EQ(stat->residentPages, 1500U);
    for (const char* damaged :
        {"", "1", "1 (", "1 (a", "1 (a) S 1", ") 1 (", "x (a) S 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1"})
        EXPECT_FALSE(parseProcessStat(damaged)) << damaged;
}

TEST(ProcessParserTest, ANameThatWasCutIsToldByTheCommandLine)
{
    const struct {
        const char* name;
        const char* commandLine;
        const char* whole;
    } cases[] = {
        {"gnome-terminal-", "/usr/libexec/gnome-terminal-server|--x|", "gnome-terminal-server"},
        {"Isolated Web Co", "/usr/lib/firefox/firefox|-contentproc|", "firefox"},
        {"unattended-upgr", "/usr/bin/python3|-u|/usr/bin/unattended-upgrade|", "unattended-upgrade"},
        {"element-desktop", "/opt/element/element-desktop --type=renderer --user-data-dir=/home/x/.config/Element",
            "element-desktop"},
        {"Isolated Web Co", "/opt/My Browser/browser -contentproc /a/b", "browser"},
        {"systemd-resolve", "systemd-resolved", "systemd-resolved"},
        {"kworker/u8:1-ev", "", "kworker/u8:1-ev"},
        {"exactly15letter", "|", "exactly15letter"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(wholeProcessName(each.name, QByteArray(each.commandLine).replace('|', '\0')), each.whole);
}

/// Reads `text` with every parser and checks what must hold of any text.
void readWithAll(std::string_view text)
{
    if (const auto processors = parseProcessorTicks(text)) {
        ASSERT_FALSE(processors->isEmpty());
    }
    if (const auto memory = parseMemory(text)) {
        ASSERT_LE(useOf(*memory).wired, quint64{1} << 50);
    }
    parseCompressedDevice(text);
    for (const auto& mount : browsableMounts(parseMounts(text)))
        ASSERT_TRUE(mount.path.startsWith('/'));
    for (const auto& description : describe({parsePowerSupply(text, "Battery")}))
        ASSERT_LE(description.currentCapacity, description.maxCapacity);
    parseInterfaces(text, [](const InterfaceLine& line) { ASSERT_FALSE(line.name.empty()); });
    if (const auto stat = parseProcessStat(text)) {
        ASSERT_LE(stat->name.size(), text.size());
    }
    decodeLabel(QByteArray(text.data(), static_cast<qsizetype>(text.size())));
}

TEST(ParserTest, DamagedTextsGiveLessAndNeverWorse)
{
    std::mt19937 random(20250602);
    const QDir folder(QString::fromUtf8(AMBRELLE_TEST_DATA "/linux"));
    const auto names = folder.entryList(QDir::Files);
    ASSERT_GE(names.size(), 14);
    for (const auto& name : names) {
        SCOPED_TRACE(name.toStdString());
        const auto text = testData(name.toLatin1().constData());
        for (qsizetype length = 0; length <= text.size(); length += 1 + length / 400)
            readWithAll(view(text.first(length)));
        for (int round = 0; round < 300; ++round) {
            auto damaged = text;
            for (int i = 0; i < 8; ++i)
                damaged[static_cast<qsizetype>(random() % static_cast<std::size_t>(damaged.size()))] =
                    static_cast<char>(random());
            readWithAll(view(damaged));
        }
        if (::testing::Test::HasFatalFailure())
            return;
    }
}

} // namespace
} // namespace ambrelle
