// SPDX-License-Identifier: MIT

#include "platform/linux/bus/UPowerDevices.h"

#include "foundation/ForeignText.h"
#include "foundation/Wording.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const auto upower = u"org.freedesktop.UPower"_s;
const auto upowerPath = u"/org/freedesktop/UPower"_s;
const auto upowerDevice = u"org.freedesktop.UPower.Device"_s;
constexpr uint unknownState = 0;
constexpr uint chargingState = 1;

/// What the service calls the device; nothing for what is no accessory.
QString typeWord(uint type)
{
    switch (type) {
    case 5: return u"mouse"_s;
    case 6: return u"keyboard"_s;
    case 10: return u"tablet"_s;
    case 12: return u"gamepad"_s;
    case 13: return u"pen"_s;
    case 14: return u"trackpad"_s;
    case 17: return u"headset"_s;
    case 18: return u"speaker"_s;
    case 19: return u"headphones"_s;
    case 21: return u"audio"_s;
    case 22: return u"remote control"_s;
    case 28: return u"bluetooth"_s;
    default: return {};
    }
}

std::optional<double> upowerLevel(const QVariantMap& properties)
{
    bool isNumber = false;
    const double percent = properties.value(u"Percentage"_s).toDouble(&isNumber);
    const bool isPresent = properties.value(u"IsPresent"_s, true).toBool();
    // A device that is known but has not reported yet.
    const bool isWaitedFor = percent == 0 && properties.value(u"State"_s).toUInt() == unknownState;
    // Written so that what is not a number fails too.
    const bool isLevel = isNumber && percent >= 0 && percent <= 100;
    return isLevel && isPresent && !isWaitedFor ? std::optional(percent / 100) : std::nullopt;
}

} // namespace

std::optional<ConnectedDevice> accessory(const QVariantMap& properties)
{
    const QString type = typeWord(properties.value(u"Type"_s).toUInt());
    if (type.isEmpty() || properties.value(u"PowerSupply"_s).toBool())
        return std::nullopt;
    QString name = foreignText(properties.value(u"Model"_s).toString());
    if (name.isEmpty())
        name = type.at(0).toUpper() + type.mid(1);
    return ConnectedDevice{.name = name,
        .address = properties.value(u"Serial"_s).toString(),
        .minorType = type,
        .level = upowerLevel(properties),
        .charging = properties.value(u"State"_s).toUInt() == chargingState};
}

UPowerDevices::UPowerDevices(OpenBus openBus)
    : BusDevices({.name = upower,
                     .startsOnDemand = true,
                     .missing = Wording::tr("The power service is not installed."),
                     .silent = Wording::tr("The power service does not answer.")},
        std::move(openBus))
{
}

void UPowerDevices::subscribe()
{
    for (const QString& signal : {u"DeviceAdded"_s, u"DeviceRemoved"_s})
        bus().connect(upower, upowerPath, upower, signal, this, SLOT(listChanged(QDBusMessage)));
}

void UPowerDevices::ask()
{
    call(request(upowerPath, upower, u"EnumerateDevices"_s), [this](const QDBusMessage& answer) {
        if (answer.signature() != u"ao") {
            failed(answer);
            return;
        }
        QStringList paths;
        for (const QDBusObjectPath& path : qdbus_cast<QList<QDBusObjectPath>>(answer.arguments().constFirst()))
            paths.append(path.path());
        for (const QString& known : m_objects.keys()) {
            if (!paths.contains(known))
                drop(known);
        }
        m_unanswered = paths.size() + 1;
        for (const QString& path : std::as_const(paths))
            read(path);
        answered();
    });
}

void UPowerDevices::read(const QString& path)
{
    auto question = request(path, propertiesInterface, u"GetAll"_s);
    question.setArguments({upowerDevice});
    call(question, [this, path](const QDBusMessage& answer) {
        // Refused: it went away meanwhile.
        keep(path,
            answer.signature() == u"a{sv}" ? qdbus_cast<QVariantMap>(answer.arguments().constFirst()) : QVariantMap());
        answered();
    });
}

void UPowerDevices::keep(const QString& path, const QVariantMap& properties)
{
    if (!accessory(properties)) {
        drop(path);
        return;
    }
    // Each by itself: the machine's own battery changes far more often, and is no concern here.
    if (!m_objects.contains(path))
        bus().connect(upower, path, propertiesInterface, u"PropertiesChanged"_s, {upowerDevice}, {}, this,
            SLOT(propertiesChanged(QDBusMessage)));
    m_objects.insert(path, properties);
}

void UPowerDevices::drop(const QString& path)
{
    if (m_objects.remove(path) > 0)
        bus().disconnect(upower, path, propertiesInterface, u"PropertiesChanged"_s, {upowerDevice}, {}, this,
            SLOT(propertiesChanged(QDBusMessage)));
}

void UPowerDevices::forget()
{
    for (const QString& path : m_objects.keys())
        drop(path);
}

void UPowerDevices::answered()
{
    if (--m_unanswered == 0)
        finished(accessories());
}

void UPowerDevices::propertiesChanged(const QDBusMessage& message)
{
    const auto object = m_objects.find(message.path());
    if (object == m_objects.end() || message.signature() != u"sa{sv}as")
        return;
    object->insert(qdbus_cast<QVariantMap>(message.arguments().at(1)));
    publishSoon();
}

void UPowerDevices::publishGathered()
{
    publish(accessories());
}

QList<ConnectedDevice> UPowerDevices::accessories() const
{
    QList<ConnectedDevice> devices;
    for (const QVariantMap& properties : m_objects) {
        if (const auto device = accessory(properties))
            devices.append(*device);
    }
    return devices;
}

} // namespace ambrelle
