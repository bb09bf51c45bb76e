// SPDX-License-Identifier: MIT

#include "platform/mac/ListerProcessSource.h"
#include "platform/mac/ProcessList.h"
#include "platform/mac/ProfilerDevices.h"
#include "platform/mac/ProfilerReport.h"
#include "support/AnswerOf.h"
#include "support/TestData.h"
#include "support/TestFolder.h"

#include <random>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

TEST(ProcessListTest, ReadsTheLinesOfTheLister)
{
    const auto text = testData("process-list.txt", "mac");
    EXPECT_EQ(parseProcessList(view(text), 8),
        (QList<ProcessRow>{{1841, u"Web Content"_s, 12.5, 4.1}, {912, u"Xorg"_s, 3, 1.2},
            {17, u"kworker/0:1H-kblockd"_s, 0, 0}, {3100, u"gnome shell  extension"_s, 0, 0.3}}));
    EXPECT_EQ(parseProcessList(view(text), 2).size(), 2);
    EXPECT_TRUE(parseProcessList(view(text), 0).isEmpty());
    for (qsizetype length = 0; length < text.size(); ++length) {
        for (const auto& row : parseProcessList(view(text.first(length)), 8))
            EXPECT_FALSE(row.name.isEmpty()) << length;
    }
}

TEST(ListerProcessSourceTest, RunsApartAndMayFail)
{
    const auto topOf = [](ListerProcessSource& source) {
        return answerOf<QList<ProcessRow>>([&source](const auto& take) { source.top(3, take); });
    };
    ListerProcessSource lister;
    if (!lister.isAvailable())
        GTEST_SKIP() << "ps is not installed";
    EXPECT_EQ(topOf(lister).size(), 3);
    ListerProcessSource failing(u"false"_s, {});
    EXPECT_TRUE(topOf(failing).isEmpty());
    EXPECT_FALSE(ListerProcessSource(u"no-such-lister"_s).isAvailable());
    ListerProcessSource(u"sleep"_s, {u"30"_s}).top(3, [](const auto&) { ADD_FAILURE() << "nobody asks any more"; });
    QCoreApplication::processEvents();
}

TEST(ProfilerReportTest, ListsTheConnectedDevices)
{
    const QByteArray report = testData("bluetooth-report.json", "mac");
    const QList<ConnectedDevice> expected{
        {.name = u"Anna’s AirPods Pro"_s,
            .address = u"11:22:33:44:55:01"_s,
            .minorType = u"Headphones"_s,
            .left = 0.82,
            .right = 0.85,
            .caseLevel = 0.6},
        {.name = u"Magic Trackpad"_s, .address = u"11:22:33:44:55:02"_s, .minorType = u"Mouse"_s, .level = 0.47},
        {.name = u"Desk Keyboard"_s, .minorType = u"Keyboard"_s, .level = 1},
        {.name = u"Odd one"_s},
        {.name = u"Bare"_s},
        {.name = u"Second adapter's mouse"_s, .level = 0},
    };
    EXPECT_EQ(devicesOfProfilerReport(report), expected);

    EXPECT_EQ(devicesOfProfilerReport(R"({"SPBluetoothDataType":[]})"), QList<ConnectedDevice>());
    for (const char* other : {"", "[]", "{}", R"({"SPBluetoothDataType":{}})", R"({"SPBluetoothDataType":[)"})
        EXPECT_FALSE(devicesOfProfilerReport(other)) << other;
}

TEST(ProfilerReportTest, ADamagedReportNeverGivesAWrongLevel)
{
    const QByteArray report = testData("bluetooth-report.json", "mac");
    std::mt19937 random(7);
    const auto below = [&random](
                           qsizetype limit) { return static_cast<qsizetype>(random() % static_cast<quint64>(limit)); };
    const QByteArray bytes = "0123456789%{}[]\":, ne-";
    int readable = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray damaged = report;
        for (auto changes = below(4); changes >= 0; --changes)
            damaged[below(damaged.size())] = bytes[below(bytes.size())];
        const auto devices = devicesOfProfilerReport(damaged);
        if (!devices)
            continue;
        ++readable;
        for (const ConnectedDevice& device : *devices) {
            for (const auto& level : {device.level, device.left, device.right, device.caseLevel})
                EXPECT_TRUE(!level || (*level >= 0 && *level <= 1)) << damaged.constData();
        }
    }
    EXPECT_GT(readable, 0);
}

TEST(ProfilerDevicesTest, RunsTheToolAndReadsItsReport)
{
    const TestFolder folder;
    const auto tool = [&folder](const QByteArray& script) { return folder.writeScript(u"profiler"_s, script); };
    ProfilerDevices source(tool("[ \"$*\" = 'SPBluetoothDataType -json' ] || exit 1\n"
                                "cat " AMBRELLE_TEST_DATA "/mac/bluetooth-report.json\n"));
    source.refresh();
    source.refresh(); // while it runs
    ASSERT_TRUE(waitUntil([&source] { return source.devices().has_value(); }));
    EXPECT_EQ(source.devices()->size(), 6);

    for (const char* script :
        {"echo '{}'\n", "cat " AMBRELLE_TEST_DATA "/mac/bluetooth-report.json; exit 3\n", "kill -9 $$\n"}) {
        ProfilerDevices failing(tool(script));
        failing.refresh();
        EXPECT_TRUE(waitUntil([&failing] { return !failing.isAvailable(); })) << script;
    }
    ProfilerDevices missing(u"/nowhere/profiler"_s);
    missing.refresh();
    EXPECT_TRUE(waitUntil([&missing] { return !missing.isAvailable(); }));
    EXPECT_EQ(missing.devices(), QList<ConnectedDevice>());
}

} // namespace
} // namespace ambrelle
