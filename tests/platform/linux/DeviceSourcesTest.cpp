// SPDX-License-Identifier: MIT

#include "platform/linux/bus/BluezDevices.h"
#include "platform/linux/bus/UPowerDevices.h"
#include "support/MockBus.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* bluez = "org.bluez";
constexpr const char* bluezMock = "org.bluez.Mock";
constexpr const char* upower = "org.freedesktop.UPower";
constexpr const char* mock = "org.freedesktop.DBus.Mock";
constexpr const char* powerDevice = "org.freedesktop.UPower.Device";

/// Starts a stand-in, or skips the test where that is not possible.
class DeviceSourcesTest : public ::testing::Test {
protected:
    QProcess* start(const char* kind, const char* name)
    {
        if (!bus.isRunning())
            return nullptr;
        return bus.start(QLatin1StringView(kind), QLatin1StringView(name));
    }
    static bool waitFor(const DeviceSource& source, const QList<ConnectedDevice>& expected)
    {
        return waitUntil([&] { return source.devices() == expected; });
    }
    static bool waitFor(const DeviceSource& source, const QString& whyNot)
    {
        return waitUntil([&] { return source.whyNot() == whyNot; });
    }

    bool plugIn(const char* name)
    {
        return bus.call(bluez, u"/"_s, bluezMock, "AddAdapter", {u"hci0"_s, QLatin1StringView(name)});
    }
    bool pair(const QString& address, const char* name, const char* icon)
    {
        return bus.call(bluez, u"/"_s, bluezMock, "AddDevice", {u"hci0"_s, address, QLatin1StringView(name)})
            && bus.call(bluez, u"/"_s, bluezMock, "PairDevice", {u"hci0"_s, address, 0})
            && bus.setProperty(bluez, deviceOf(address), "org.bluez.Device1", "Icon", QLatin1StringView(icon));
    }
    bool setConnected(const QString& address, bool connected)
    {
        return bus.call(
            bluez, u"/"_s, bluezMock, connected ? "ConnectDevice" : "DisconnectDevice", {u"hci0"_s, address});
    }
    static QString deviceOf(QString address) { return u"/org/bluez/hci0/dev_"_s + address.replace(u':', u'_'); }

    MockBus bus;
};

#define START_OR_SKIP(kind, name)                                                                                      \
    if (!start(kind, name))                                                                                            \
    GTEST_SKIP() << "dbus-daemon or python3-dbusmock is not installed"

TEST_F(DeviceSourcesTest, BluetoothDevicesComeAndGoBySignal)
{
    START_OR_SKIP("bluez5", bluez);
    BluezDevices source(bus.opener());
    EXPECT_FALSE(source.devices().has_value()) << "nothing is asked before the first call";
    source.refresh();
    ASSERT_TRUE(waitFor(source, u"This machine has no Bluetooth adapter."_s));
    EXPECT_EQ(source.devices(), QList<ConnectedDevice>());

    ASSERT_TRUE(plugIn("Laptop"));
    ASSERT_TRUE(waitFor(source, QString()));
    const QString mouse = u"11:22:33:44:55:66"_s;
    ASSERT_TRUE(pair(mouse, "MX Master", "input-mouse"));
    ASSERT_TRUE(setConnected(mouse, true));
    ConnectedDevice row{.name = u"MX Master"_s, .address = mouse, .minorType = u"input-mouse"_s};
    EXPECT_TRUE(waitFor(source, {row}));

    // Some stacks tell nothing when a battery appears: it is there after asking again.
    ASSERT_TRUE(bus.call(bluez, deviceOf(mouse), mock, "AddProperties",
        {u"org.bluez.Battery1"_s, QVariantMap{{u"Percentage"_s, QVariant::fromValue<uchar>(73)}}}));
    source.refresh();
    source.refresh();
    row.level = 0.73;
    EXPECT_TRUE(waitFor(source, {row}));
    ASSERT_TRUE(
        bus.setProperty(bluez, deviceOf(mouse), "org.bluez.Battery1", "Percentage", QVariant::fromValue<uchar>(72)));
    row.level = 0.72;
    EXPECT_TRUE(waitFor(source, {row}));

    ASSERT_TRUE(bus.setProperty(bluez, u"/org/bluez/hci0"_s, "org.bluez.Adapter1", "Powered", false));
    EXPECT_TRUE(waitFor(source, u"Bluetooth is off."_s));
    EXPECT_EQ(source.devices(), QList<ConnectedDevice>());
    ASSERT_TRUE(bus.setProperty(bluez, u"/org/bluez/hci0"_s, "org.bluez.Adapter1", "Powered", true));
    EXPECT_TRUE(waitFor(source, {row}));
    ASSERT_TRUE(setConnected(mouse, false));
    EXPECT_TRUE(waitFor(source, QList<ConnectedDevice>()));
    EXPECT_TRUE(source.isAvailable());
}

TEST_F(DeviceSourcesTest, ASwarmOfSignalsIsToldAtOnce)
{
    START_OR_SKIP("bluez5", bluez);
    const QString mouse = u"11:22:33:44:55:66"_s;
    ASSERT_TRUE(plugIn("Laptop") && pair(mouse, "Mouse", "input-mouse") && setConnected(mouse, true));
    BluezDevices source(bus.opener());
    source.refresh();
    ASSERT_TRUE(waitUntil([&source] { return source.devices() && !source.devices()->isEmpty(); }));
    int changes = 0;
    QObject::connect(&source, &DeviceSource::changed, [&changes] { ++changes; });
    const QString last = u"Name 199"_s;
    for (int index = 0; index < 200; ++index)
        ASSERT_TRUE(
            bus.setProperty(bluez, deviceOf(mouse), "org.bluez.Device1", "Alias", u"Na\u202Eme %1"_s.arg(index)));
    EXPECT_TRUE(waitUntil([&] { return source.devices()->first().name == last; }));
    EXPECT_LT(changes, 100);
}

TEST_F(DeviceSourcesTest, TheBluetoothServiceMayStartLateAndEnd)
{
    if (!bus.isRunning())
        GTEST_SKIP() << "dbus-daemon is not installed";
    BluezDevices source(bus.opener());
    source.refresh();
    const auto missing = u"Bluetooth is not running on this machine."_s;
    ASSERT_TRUE(waitFor(source, missing));
    QProcess* service = start("bluez5", bluez);
    if (!service)
        GTEST_SKIP() << "python3-dbusmock is not installed";
    ASSERT_TRUE(waitFor(source, u"This machine has no Bluetooth adapter."_s));
    ASSERT_TRUE(plugIn("Laptop"));
    const QString pad = u"AA:BB:CC:DD:EE:FF"_s;
    ASSERT_TRUE(pair(pad, "SN30", "input-gaming"));
    ASSERT_TRUE(setConnected(pad, true));
    EXPECT_TRUE(waitFor(source, {{.name = u"SN30"_s, .address = pad, .minorType = u"input-gaming gamepad"_s}}));
    bus.stop(service);
    EXPECT_TRUE(waitFor(source, missing));
    EXPECT_EQ(source.devices(), QList<ConnectedDevice>());
}

TEST_F(DeviceSourcesTest, PowerDevicesWithoutTheMachinesOwn)
{
    START_OR_SKIP("upower", upower);
    const auto root = u"/org/freedesktop/UPower"_s;
    const auto add = [&](const char* id, const char* model, double level) {
        return bus.call(upower, root, mock, "AddDischargingBattery",
            {QLatin1StringView(id), QLatin1StringView(model), level, QVariant::fromValue<qlonglong>(5400)});
    };
    const auto set = [&](const char* id, const char* property, const QVariant& value) {
        return bus.setProperty(upower, root + u"/devices/"_s + QLatin1StringView(id), powerDevice, property, value);
    };
    ASSERT_TRUE(add("BAT0", "Main Battery", 62) && add("mouse", "Wireless Mouse", 40));
    ASSERT_TRUE(set("mouse", "Type", 5U) && set("mouse", "PowerSupply", false));

    UPowerDevices source(bus.opener());
    source.refresh();
    ConnectedDevice row{.name = u"Wireless Mouse"_s, .minorType = u"mouse"_s, .level = 0.4};
    ASSERT_TRUE(waitFor(source, {row}));
    ASSERT_TRUE(set("mouse", "Percentage", 41.0) && set("mouse", "State", 1U));
    row.level = 0.41;
    row.charging = true;
    EXPECT_TRUE(waitFor(source, {row}));

    // Announced as a battery like that of the machine, and something else only when asked.
    ASSERT_TRUE(add("pen", "", 5) && set("pen", "Type", 13U) && set("pen", "PowerSupply", false));
    source.refresh();
    EXPECT_TRUE(waitFor(source, {row, {.name = u"Pen"_s, .minorType = u"pen"_s, .level = 0.05}}));
    for (const char* id : {"mouse", "pen"})
        ASSERT_TRUE(bus.call(upower, root, mock, "RemoveDevice",
            {QVariant::fromValue(QDBusObjectPath(root + u"/devices/"_s + QLatin1StringView(id)))}));
    EXPECT_TRUE(waitFor(source, QList<ConnectedDevice>()));
    EXPECT_TRUE(source.isAvailable());
}

TEST(BluezDevicesTest, ReadsWhatIsConnected)
{
    const auto device = [](const QVariantMap& properties) {
        return QMap<QString, QVariantMap>{{u"org.bluez.Device1"_s, properties}};
    };
    BluezObjects objects{
        {u"/a"_s, device({{u"Connected"_s, true}, {u"Alias"_s, u"Mine"_s}, {u"Name"_s, u"Theirs"_s}})},
        {u"/b"_s, device({{u"Connected"_s, false}, {u"Alias"_s, u"Away"_s}})},
        {u"/c"_s, device({{u"Connected"_s, true}, {u"Name"_s, u"Box"_s}, {u"Icon"_s, u"audio-card"_s}})},
        {u"/d"_s, device({{u"Connected"_s, true}})},
        {u"/e"_s, {{u"org.bluez.Battery1"_s, {{u"Percentage"_s, 50}}}}},
    };
    objects[u"/a"_s].insert(u"org.bluez.Battery1"_s, {{u"Percentage"_s, 255}});
    EXPECT_EQ(connectedDevices(objects),
        (QList<ConnectedDevice>{{.name = u"Mine"_s}, {.name = u"Box"_s, .minorType = u"audio-card speaker"_s}}));
}

TEST(UPowerDevicesTest, TellsAccessoriesAndTrustsNoEmptyFigure)
{
    struct Case {
        const char* what;
        QVariantMap properties;
        std::optional<ConnectedDevice> expected;
    };
    const auto mouse = [](QVariantMap properties) {
        properties.insert({{u"Type"_s, 5U}, {u"Model"_s, u" Mouse\n2 "_s}, {u"Serial"_s, u"aa:bb"_s}});
        return properties;
    };
    ConnectedDevice plain{.name = u"Mouse 2"_s, .address = u"aa:bb"_s, .minorType = u"mouse"_s};
    ConnectedDevice empty = plain;
    empty.level = 0;
    const Case cases[] = {
        {"nothing", {}, {}},
        {"the machine's battery", {{u"Type"_s, 2U}, {u"PowerSupply"_s, true}, {u"Percentage"_s, 50.0}}, {}},
        {"a phone on a cable", {{u"Type"_s, 8U}, {u"Percentage"_s, 50.0}}, {}},
        {"an uninterruptible keyboard", {{u"Type"_s, 6U}, {u"PowerSupply"_s, true}}, {}},
        {"a type of the future", {{u"Type"_s, 99U}}, {}},
        {"no figure", mouse({}), plain},
        {"not reported yet", mouse({{u"Percentage"_s, 0.0}, {u"State"_s, 0U}}), plain},
        {"empty", mouse({{u"Percentage"_s, 0.0}, {u"State"_s, 2U}}), empty},
        {"absent", mouse({{u"Percentage"_s, 50.0}, {u"State"_s, 2U}, {u"IsPresent"_s, false}}), plain},
        {"too much", mouse({{u"Percentage"_s, 101.0}, {u"State"_s, 2U}}), plain},
        {"no number", mouse({{u"Percentage"_s, std::nan("")}, {u"State"_s, 2U}}), plain},
        {"a text", mouse({{u"Percentage"_s, u"full"_s}}), plain},
    };
    for (const Case& each : cases)
        EXPECT_EQ(accessory(each.properties), each.expected) << each.what;
}

} // namespace
} // namespace ambrelle
