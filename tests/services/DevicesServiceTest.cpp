// SPDX-License-Identifier: MIT

#include "services/DevicesService.h"

#include "platform/recording/RecordingDevices.h"
#include "services/ServiceTest.h"

#include <QElapsedTimer>

namespace ambrelle {
namespace {

struct DevicesServiceTest : ServiceTest {
    DevicesServiceTest() { count(service); }

    RecordingDevices bluetooth, power;
    DevicesService service{{&bluetooth, &power}, clock};
};

TEST(DeviceKindTest, TheMostTellingWordDecides)
{
    struct Case {
        const char* name;
        const char* minorType;
        DeviceKind kind;
    };
    using enum DeviceKind;
    const Case cases[] = {
        {"AirPods Pro", "Headphones", earbuds},
        {"Anna's Buds", "audio-headset", earbuds},
        {"Magic Trackpad", "", trackpad},
        {"Trackpad", "Mouse", trackpad},
        {"Keyboard with mouse", "", keyboard},
        {"K380", "input-keyboard", keyboard},
        {"MX Master", "input-mouse", mouse},
        {"XBOX WIRELESS CONTROLLER", "", controller},
        {"SN30", "input-gaming gamepad", controller},
        {"Stick", "joystick", controller},
        {"Speaker headset", "", speaker},
        {"WH-1000", "audio-headset", headphones},
        {"WH-1000", "audio-headphones", headphones},
        {"Beats Flex", "", headphones},
        {"Thing", "", other},
        {"", "phone", other},
    };
    for (const Case& each : cases)
        EXPECT_EQ(kindOf(QLatin1StringView(each.name), QLatin1StringView(each.minorType)), each.kind) << each.name;
    EXPECT_EQ(symbol(other), u"dot.radiowaves.left.and.right"_s);
}

TEST(DeviceRowsTest, ThousandsOfDevicesHoldNobodyUp)
{
    QList<ConnectedDevice> many;
    for (int index = 0; index < 5000; ++index)
        many.append({.name = u"Device %1"_s.arg(index), .address = u"00:%1"_s.arg(index), .level = 0.5});
    const QList<ConnectedDevice> twice = many + many;
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(deviceRows(twice).size(), 5000);
    EXPECT_LT(timer.elapsed(), 1000) << "a hundredth of that, were every pair not compared";
}

TEST(DeviceRowsTest, OneRowForEachNameByName)
{
    const auto rows = deviceRows({
        {.name = u"mouse B"_s, .minorType = u"input-mouse"_s},
        {.name = u"Buds"_s, .level = 0.5, .left = 0.824, .right = 0.85, .caseLevel = 0.6},
        {.name = u"Alpha"_s, .address = u"AA:00"_s, .level = 0.4},
        {.name = u"One ear"_s, .right = 0.0},
        {.name = u"mouse B"_s, .minorType = u"keyboard"_s, .level = 0.7, .charging = true},
        {.name = u"Alpha as the kernel calls it"_s, .address = u"aa:00"_s, .minorType = u"mouse"_s, .level = 0.9},
        {.name = u"Mouse a"_s},
        {.name = u"Mouse c"_s},
    });
    const QList<DeviceRow> expected{
        {u"Alpha"_s, u"Alpha"_s, DeviceKind::mouse, 0.4, false, {}},
        {u"Buds"_s, u"Buds"_s, DeviceKind::earbuds, 0.5, false, u"L 82 · R 85 · Case 60"_s},
        {u"Mouse a"_s, u"Mouse a"_s, DeviceKind::mouse, {}, false, {}},
        {u"mouse B"_s, u"mouse B"_s, DeviceKind::mouse, 0.7, true, {}},
        {u"Mouse c"_s, u"Mouse c"_s, DeviceKind::mouse, {}, false, {}},
        {u"One ear"_s, u"One ear"_s, DeviceKind::other, {}, false, u"R 0"_s},
    };
    EXPECT_EQ(rows, expected);
}

TEST_F(DevicesServiceTest, ListensOnlyOnceStarted)
{
    bluetooth.tell({{.name = u"Early"_s}});
    clock.advance(10min);
    EXPECT_TRUE(service.devices().isEmpty());
    EXPECT_EQ(bluetooth.refreshes, 0);
    service.start();
    service.start();
    EXPECT_EQ(bluetooth.refreshes, 1);
    EXPECT_EQ(power.refreshes, 1);
    EXPECT_EQ(service.devices().size(), 1) << "what was told already";
    EXPECT_TRUE(service.isSearching()) << "the other source is not done";
    power.tell({});
    EXPECT_FALSE(service.isSearching());
}

TEST_F(DevicesServiceTest, LooksAgainEveryMinuteWhileSomethingIsConnected)
{
    service.start();
    bluetooth.tell({});
    power.tell({});
    clock.advance(24h);
    EXPECT_EQ(bluetooth.refreshes, 1) << "nothing is connected: a signal will tell";

    bluetooth.tell({{.name = u"Mouse"_s}});
    clock.advance(3min);
    EXPECT_EQ(bluetooth.refreshes, 4);
    EXPECT_EQ(power.refreshes, 4);
    bluetooth.tell({});
    clock.advance(24h);
    EXPECT_EQ(bluetooth.refreshes, 4);
}

TEST_F(DevicesServiceTest, TellsWhatChangedOnly)
{
    service.start();
    bluetooth.tell({{.name = u"Mouse"_s, .address = u"1"_s, .level = 0.5}});
    power.tell({});
    const int before = changes;
    power.tell({{.name = u"Mouse"_s, .level = 0.8}}); // fills nothing
    bluetooth.tell({{.name = u"Mouse"_s, .address = u"2"_s, .level = 0.5}});
    EXPECT_EQ(changes, before);
    bluetooth.tell({{.name = u"Mouse"_s}});
    EXPECT_EQ(changes, before + 1);
    EXPECT_EQ(service.devices().first().battery, 0.8);
}

TEST_F(DevicesServiceTest, TheFirstSourceDecidesWhetherDevicesCanBeFound)
{
    service.start();
    power.tellWhyNot(u"No power service."_s);
    bluetooth.tell({});
    EXPECT_EQ(service.whyNot(), QString());
    bluetooth.tellWhyNot(u"Bluetooth is off."_s);
    EXPECT_EQ(service.whyNot(), u"Bluetooth is off."_s);
    power.tell({{.name = u"Mouse"_s}});
    EXPECT_EQ(service.devices().size(), 1) << "the other source goes on";
}

TEST_F(DevicesServiceTest, SamplesStayWhateverIsTold)
{
    service.start();
    bluetooth.tell({{.name = u"Mouse"_s}});
    service.loadPreviewData();
    const auto samples = service.devices();
    EXPECT_THAT(samples, ::testing::Contains(::testing::Field(&DeviceRow::detail, u"L 82 · R 85 · Case 60"_s)));
    const int refreshes = bluetooth.refreshes;
    bluetooth.tell({});
    service.start();
    service.refresh();
    clock.advance(1h);
    EXPECT_EQ(service.devices(), samples);
    EXPECT_EQ(bluetooth.refreshes, refreshes);
}

} // namespace
} // namespace ambrelle
