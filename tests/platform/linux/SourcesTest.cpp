// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxSources.h"

#include "support/TestData.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"

#include <QProcess>

#include <gmock/gmock.h>

#include <sched.h>
#include <sys/mount.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace {

/// A folder that stands in for /proc, /sys or /dev.
class SourcesTest : public ::testing::Test {
protected:
    void write(const QString& name, const QByteArray& text) const { folder.write(name, text); }
    QByteArray root() const { return QFile::encodeName(folder.path()); }

    const TestFolder folder;
};

TEST_F(SourcesTest, AKeptFileFollowsItsPath)
{
    KeptFile file(root() + "/text");
    EXPECT_FALSE(file.read());
    write(u"text"_s, "one");
    EXPECT_EQ(file.read(), "one");
    const QByteArray longText(100'000, 'x');
    write(u"text"_s, longText);
    EXPECT_EQ(file.read(), view(longText));
    write(u"text"_s, "");
    EXPECT_EQ(file.read(), "");
    EXPECT_FALSE(KeptFile(root()).read()); // a folder opens and cannot be read

    KeptFile kernelFile("/proc/self/mountinfo");
    KeptFile moved(std::move(kernelFile));
    ASSERT_TRUE(moved.read());
    EXPECT_TRUE(moved.read()->ends_with('\n'));
}

TEST_F(SourcesTest, ProcessorCountersNeverGoBack)
{
    write(u"stat"_s, "cpu 0 0 0 0\ncpu0 100 0 50 1000 20 0 0 0\n");
    LinuxProcessorSource source(root());
    ASSERT_TRUE(source.isAvailable());
    source.ticks();
    write(u"stat"_s, "cpu 0 0 0 0\ncpu0 110 0 50 1000 15 0 0 0\n");
    EXPECT_EQ(source.ticks(), (QList<ProcessorTicks>{{110, 50, 1020, 0}}));
    write(u"stat"_s, "cpu 0 0 0 0\ncpu0 110 0 50 1010 15 0 0 0\n");
    EXPECT_EQ(source.ticks(), (QList<ProcessorTicks>{{110, 50, 1025, 0}})) << "counted twice";
    // After a sleep the time at rest begins anew, and goes on from where it was.
    write(u"stat"_s, "cpu 0 0 0 0\ncpu0 190 0 60 300 0 0 0 0\n");
    EXPECT_EQ(source.ticks(), (QList<ProcessorTicks>{{110, 50, 1025, 0}}));
    write(u"stat"_s, "cpu 0 0 0 0\ncpu0 200 0 60 490 0 0 0 0\n");
    EXPECT_EQ(source.ticks(), (QList<ProcessorTicks>{{120, 50, 1215, 0}}));
    write(u"stat"_s, "cpu 0 0 0 0\ncpu0 1 0 0 2\ncpu1 1 0 0 2\n");
    EXPECT_EQ(source.ticks()->size(), 2);
    write(u"stat"_s, "");
    EXPECT_FALSE(source.ticks());
    EXPECT_FALSE(source.isAvailable());
    EXPECT_FALSE(source.whyNot().isEmpty());
}

TEST_F(SourcesTest, CompressedSwapDevicesTakeMemory)
{
    write(u"meminfo"_s, "MemTotal: 4096 kB\nAnonPages: 400 kB\nZswap: 40 kB\n");
    write(u"block/zram0/mm_stat"_s, "900000 100 40960 0 0 0 0 0 0\n");
    write(u"block/zram1/mm_stat"_s, "900000 100 40960 0 0 0 0 0 0\n");
    LinuxMemorySource source(root(), root(), std::chrono::milliseconds(0));
    EXPECT_EQ(source.physicalMemory(), 4096U * 1024);
    EXPECT_EQ(source.use()->compressed, 3U * 40960);
    write(u"block/zram2/mm_stat"_s, "900000 100 40960 0 0 0 0 0 0\n");
    EXPECT_EQ(source.use()->compressed, 4U * 40960) << "it came later";
    EXPECT_FALSE(LinuxMemorySource("/nowhere", "/nowhere").isAvailable());
}

TEST_F(SourcesTest, VolumesAreNamedByTheirLabels)
{
    write(u"sda1"_s, "");
    QDir().mkpath(folder.filePath(u"disk/by-label"_s));
    ASSERT_TRUE(QFile::link(u"../../sda1"_s, folder.filePath(u"disk/by-label/My\\x20Disk\\xc3\\xa4"_s)));
    const auto device = root() + "/sda1";
    write(u"self/mountinfo"_s,
        "1 1 8:1 / / rw - ext4 /dev/none rw\n2 1 8:2 / /var rw - ext4 /dev/gone rw\n3 1 8:3 / " + root() + " rw - ext4 "
            + device + " rw\n4 1 8:4 / /nowhere rw - ext4 /dev/sdx rw\n");
    // Sources are taken for devices only below /dev.
    LinuxVolumeSource source(root(), root());
    ASSERT_TRUE(source.isAvailable());
    const auto volumes = source.volumes();
    ASSERT_EQ(volumes.size(), 2);
    EXPECT_EQ(volumes.at(0).name, u"System"_s);
    EXPECT_EQ(volumes.at(0).isRoot, true);
    EXPECT_GT(volumes.at(0).total, 0);
    EXPECT_GE(volumes.at(0).total, volumes.at(0).available);
    EXPECT_EQ(volumes.at(1).path, u"/var"_s);
    EXPECT_EQ(volumes.at(1).name, std::nullopt);

    write(u"self/mountinfo"_s, "1 1 8:1 / / rw - ext4 " + device + " rw\n");
    EXPECT_EQ(source.volumes().first().name, u"My Diskä"_s);
}

TEST_F(SourcesTest, ASlowVolumeJoinsOnceItAnswered)
{
    write(u"self/mountinfo"_s,
        "1 1 8:1 / / rw - ext4 /dev/none rw\n2 1 0:50 / /usr/../tmp rw - nfs4 server:/tmp rw\n"
        "3 1 0:51 / /nowhere rw - nfs4 server:/gone rw\n");
    LinuxVolumeSource source(root(), root());
    int changes = 0;
    QObject::connect(&source, &VolumeSource::changed, [&changes] { ++changes; });
    write(u"self/mountinfo"_s,
        "1 1 8:1 / / rw - ext4 /dev/none rw\n2 1 0:50 / /tmp rw - nfs4 server:/tmp rw\n"
        "3 1 0:51 / /nowhere rw - nfs4 server:/gone rw\n");
    EXPECT_EQ(source.volumes().size(), 1);
    ASSERT_TRUE(waitUntil([&changes] { return changes > 0; }));
    const auto volumes = source.volumes();
    ASSERT_EQ(volumes.size(), 2);
    EXPECT_EQ(volumes.at(1).path, u"/tmp"_s);
    EXPECT_EQ(changes, 1);
}

TEST_F(SourcesTest, AMountIsNoticedAtOnce)
{
    if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "needs the right to mount";
    LinuxVolumeSource source;
    int changes = 0;
    QObject::connect(&source, &VolumeSource::changed, [&changes] { ++changes; });
    QCoreApplication::processEvents();
    ASSERT_EQ(changes, 0);
    ASSERT_EQ(::mount("none", root().constData(), "tmpfs", 0, nullptr), 0);
    EXPECT_TRUE(waitUntil([&changes] { return changes > 0; }));
    const int mounted = changes;
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, mounted); // told once per change
    ASSERT_EQ(::umount(root().constData()), 0);
    EXPECT_TRUE(waitUntil([&changes, mounted] { return changes > mounted; }));
}

TEST_F(SourcesTest, BatteriesComeAndGo)
{
    EXPECT_FALSE(LinuxPowerSource(root()).isAvailable());
    const auto battery = u"class/power_supply/BAT0/uevent"_s;
    write(battery, testData("battery-energy.txt"));
    write(u"class/power_supply/BAT0/type"_s, "Battery\n");
    write(u"class/power_supply/AC/uevent"_s, "POWER_SUPPLY_ONLINE=1\n");
    write(u"class/power_supply/AC/type"_s, "Mains\n");
    write(u"class/power_supply/mouse/uevent"_s, testData("battery-of-mouse.txt"));
    write(u"class/power_supply/mouse/scope"_s, "Device\n");
    LinuxPowerSource source(root(), std::chrono::milliseconds(0));
    LinuxPowerSource patient(root());
    ASSERT_EQ(source.descriptions().size(), 1);
    EXPECT_TRUE(source.descriptions().first().onAC);
    EXPECT_TRUE(patient.descriptions().first().onAC);
    write(u"class/power_supply/AC/uevent"_s, "POWER_SUPPLY_ONLINE=0\n");
    EXPECT_FALSE(source.descriptions().first().onAC);
    EXPECT_TRUE(patient.descriptions().first().onAC) << "slow controllers are not asked by every sample";
    write(battery, "");
    EXPECT_EQ(source.descriptions().first().maxCapacity, 100);
}

TEST_F(SourcesTest, NetworkCardsCountAndWhatIsBuiltOnThemDoesNot)
{
    write(u"net/dev"_s, testData("net-dev-laptop.txt"));
    const auto makeInterface = [this](const char* name, const char* type, const QStringList& folders) {
        const auto base = u"class/net/"_s + QLatin1StringView(name);
        write(base + u"/type"_s, type);
        for (const auto& each : folders)
            QDir().mkpath(folder.filePath(base + u'/' + each));
    };
    makeInterface("lo", "772\n", {});
    makeInterface("enp3s0", "1\n", {u"device"_s});
    makeInterface("wlp2s0", "1\n", {u"device"_s});
    makeInterface("docker0", "1\n", {u"bridge"_s, u"device"_s});
    makeInterface("veth9c1", "1\n", {});
    makeInterface("tun0", "65534\n", {u"device"_s});
    makeInterface("wwan0", "519\n", {u"device"_s});
    write(u"class/net/wwan0/uevent"_s, "DEVTYPE=wwan\nINTERFACE=wwan0\n");
    const auto counted = [](NetworkSource& source) {
        QStringList names;
        const auto interfaces = source.interfaces().value_or(QList<InterfaceCounters>());
        for (const auto& each : interfaces) {
            if (each.counted)
                names.append(each.name);
        }
        return names;
    };
    LinuxNetworkSource source(root(), root());
    EXPECT_EQ(counted(source), QStringList({u"enp3s0"_s, u"wlp2s0"_s}));
    write(u"net/dev"_s, testData("net-dev-laptop.txt") + "wwan0:1 2 3 4 5 6 7 8 9\n");
    EXPECT_EQ(counted(source), QStringList({u"enp3s0"_s, u"wlp2s0"_s, u"wwan0"_s}));

    // The decision stays while the same interfaces are there, and is taken anew when one goes.
    write(u"net/dev"_s, "wlp2s0:1 2 3 4 5 6 7 8 9\ndocker0:1 2 3 4 5 6 7 8 9\n");
    EXPECT_EQ(counted(source), QStringList(u"wlp2s0"_s));
    write(u"net/dev"_s, "  eth0:1 2 3 4 5 6 7 8 9\ndocker0:1 2 3 4 5 6 7 8 9\n");
    EXPECT_EQ(counted(source), QStringList(u"eth0"_s));
    EXPECT_EQ(source.interfaces()->first(), (InterfaceCounters{u"eth0"_s, 1, 9, true}));
}

/// A process that keeps one processor busy, under a name of its choice.
class BusyProcess {
public:
    explicit BusyProcess(const QString& name)
    {
        m_process.start(
            u"/bin/sh"_s, {u"-c"_s, u"printf '%s' \"$0\" > /proc/$$/comm; echo; while :; do :; done"_s, name});
        m_process.waitForReadyRead();
    }
    ~BusyProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    qint64 id() const { return m_process.processId(); }

private:
    QProcess m_process;
};

/// What is told of that process once it stands out.
std::optional<ProcessRow> rowOf(const BusyProcess& busy, LinuxProcessSource& source)
{
    std::optional<ProcessRow> found;
    EXPECT_TRUE(waitUntil([&source, &found, &busy] {
        source.top(100'000, [&found, &busy](const QList<ProcessRow>& rows) {
            for (const auto& row : rows) {
                if (row.id == busy.id())
                    found = row;
            }
            EXPECT_TRUE(std::is_sorted(
                rows.begin(), rows.end(), [](const ProcessRow& a, const ProcessRow& b) { return a.cpu > b.cpu; }));
        });
        return found && found->cpu > 5;
    }));
    return found;
}

TEST(ProcessSourceTest, TheBusyProcessStandsOutWithItsName)
{
    LinuxProcessSource source;
    ASSERT_TRUE(source.isAvailable());
    source.top(8, [](const QList<ProcessRow>&) {});
    const auto found = rowOf(BusyProcess(u"busy ) R 1 (x"_s), source);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, u"busy ) R 1 (x"_s);
    EXPECT_LT(found->cpu, 150);
    EXPECT_GT(found->memory, 0);
    EXPECT_LT(found->memory, 50);
    EXPECT_FALSE(LinuxProcessSource("/nowhere").isAvailable());

    const auto cut = rowOf(BusyProcess(u"Isolated Web Content"_s), source);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->name, u"sh"_s) << "the kernel keeps 15 letters, and this one has no file";
}

TEST(LinuxSourcesTest, ThisMachineAnswersSensibly)
{
    LinuxSources machine;
    const auto sources = machine.sources();
    const auto loads = sources.processor.loadAverages();
    ASSERT_TRUE(loads);
    EXPECT_GE(loads->front(), 0);
    EXPECT_LT(loads->front(), 10'000);
    EXPECT_GT(sources.processor.uptime(), 0);
    ASSERT_TRUE(sources.processor.ticks());
    const auto memory = sources.memory.use();
    ASSERT_TRUE(memory);
    EXPECT_GT(memory->programs, 0U);
    EXPECT_LT(memory->programs, sources.memory.physicalMemory());
    EXPECT_TRUE(sources.network.interfaces());
    ASSERT_FALSE(sources.volumes.volumes().isEmpty());
}

} // namespace
} // namespace ambrelle
