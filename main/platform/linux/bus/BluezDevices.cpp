// SPDX-License-Identifier: MIT

#include "platform/linux/bus/BluezDevices.h"

#include "foundation/ForeignText.h"
#include "foundation/Wording.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const auto bluez = u"org.bluez"_s;
const auto root = u"/"_s;
const auto objectManager = u"org.freedesktop.DBus.ObjectManager"_s;
const auto adapterInterface = u"org.bluez.Adapter1"_s;
const auto bluezDevice = u"org.bluez.Device1"_s;
const auto batteryInterface = u"org.bluez.Battery1"_s;

using Interfaces = QMap<QString, QVariantMap>;

bool isOfInterest(const QString& interface)
{
    return interface == adapterInterface || interface == bluezDevice || interface == batteryInterface;
}

/// What is read below, and of texts what shows. Devices nearby tell much else, and during a search many times a second.
QVariantMap ofInterest(const QVariantMap& properties)
{
    QVariantMap kept;
    for (const auto& key :
        {u"Powered"_s, u"Connected"_s, u"Alias"_s, u"Name"_s, u"Address"_s, u"Icon"_s, u"Percentage"_s}) {
        if (const auto property = properties.constFind(key); property != properties.cend())
            kept.insert(key, property->typeId() == QMetaType::QString ? foreignText(property->toString()) : *property);
    }
    return kept;
}

/// The service's icon name, with a word for what it does not name.
QString iconWord(const QString& icon)
{
    if (icon == u"input-gaming")
        return icon + u" gamepad"_s;
    if (icon == u"audio-card") // whatever plays sound but is not worn on the head
        return icon + u" speaker"_s;
    return icon;
}

QString nameOf(const QVariantMap& device)
{
    for (const auto& key : {u"Alias"_s, u"Name"_s, u"Address"_s}) {
        if (QString name = device.value(key).toString(); !name.isEmpty())
            return name;
    }
    return {};
}

std::optional<double> bluezLevel(const QVariantMap& battery)
{
    bool isNumber = false;
    const uint percent = battery.value(u"Percentage"_s).toUInt(&isNumber);
    return isNumber && percent <= 100 ? std::optional(percent / 100.0) : std::nullopt;
}

} // namespace

QList<ConnectedDevice> connectedDevices(const BluezObjects& objects)
{
    QList<ConnectedDevice> devices;
    for (const Interfaces& object : objects) {
        const QVariantMap device = object.value(bluezDevice);
        const QString name = nameOf(device);
        if (!device.value(u"Connected"_s).toBool() || name.isEmpty())
            continue;
        devices.append({.name = name,
            .address = device.value(u"Address"_s).toString(),
            .minorType = iconWord(device.value(u"Icon"_s).toString()),
            .level = bluezLevel(object.value(batteryInterface))});
    }
    return devices;
}

QString whyNoDevices(const BluezObjects& objects)
{
    bool hasAdapter = false;
    for (const Interfaces& object : objects) {
        const auto adapter = object.constFind(adapterInterface);
        if (adapter == object.cend())
            continue;
        hasAdapter = true;
        if (adapter->value(u"Powered"_s).toBool())
            return {};
    }
    return hasAdapter ? Wording::tr("Bluetooth is off.") : Wording::tr("This machine has no Bluetooth adapter.");
}

BluezDevices::BluezDevices(OpenBus openBus)
    : BusDevices({.name = bluez,
                     .missing = Wording::tr("Bluetooth is not running on this machine."),
                     .silent = Wording::tr("Bluetooth does not answer.")},
        std::move(openBus))
{
}

void BluezDevices::subscribe()
{
    bus().connect(bluez, root, objectManager, u"InterfacesAdded"_s, this, SLOT(interfacesAdded(QDBusMessage)));
    bus().connect(bluez, root, objectManager, u"InterfacesRemoved"_s, this, SLOT(interfacesRemoved(QDBusMessage)));
    for (const QString& interface : {adapterInterface, bluezDevice, batteryInterface})
        bus().connect(bluez, {}, propertiesInterface, u"PropertiesChanged"_s, {interface}, {}, this,
            SLOT(propertiesChanged(QDBusMessage)));
}

void BluezDevices::ask()
{
    call(request(root, objectManager, u"GetManagedObjects"_s), [this](const QDBusMessage& answer) {
        if (answer.signature() != u"a{oa{sa{sv}}}") {
            failed(answer);
            return;
        }
        m_objects.clear();
        const auto objects = qdbus_cast<QMap<QDBusObjectPath, Interfaces>>(answer.arguments().constFirst());
        for (auto object = objects.cbegin(); object != objects.cend(); ++object)
            add(object.key().path(), object.value());
        const QString reason = whyNoDevices(m_objects);
        finished(reason.isEmpty() ? connectedDevices(m_objects) : QList<ConnectedDevice>(), reason);
    });
}

void BluezDevices::interfacesAdded(const QDBusMessage& message)
{
    if (message.signature() != u"oa{sa{sv}}")
        return;
    add(message.arguments().at(0).value<QDBusObjectPath>().path(), qdbus_cast<Interfaces>(message.arguments().at(1)));
    tell();
}

void BluezDevices::interfacesRemoved(const QDBusMessage& message)
{
    if (message.signature() != u"oas")
        return;
    const auto object = m_objects.find(message.arguments().at(0).value<QDBusObjectPath>().path());
    if (object == m_objects.end())
        return;
    for (const QString& interface : message.arguments().at(1).toStringList())
        object->remove(interface);
    if (object->isEmpty())
        m_objects.erase(object);
    tell();
}

void BluezDevices::propertiesChanged(const QDBusMessage& message)
{
    if (message.signature() != u"sa{sv}as")
        return;
    const QList<QVariant> arguments = message.arguments();
    const QVariantMap changes = ofInterest(qdbus_cast<QVariantMap>(arguments.at(1)));
    const QStringList withdrawn = arguments.at(2).toStringList();
    if (changes.isEmpty() && withdrawn.isEmpty())
        return;
    QVariantMap& properties = m_objects[message.path()][arguments.at(0).toString()];
    properties.insert(changes);
    for (const QString& key : withdrawn)
        properties.remove(key);
    tell();
}

void BluezDevices::add(const QString& path, const Interfaces& interfaces)
{
    for (auto interface = interfaces.cbegin(); interface != interfaces.cend(); ++interface) {
        if (isOfInterest(interface.key()))
            m_objects[path].insert(interface.key(), ofInterest(interface.value()));
    }
}

void BluezDevices::tell()
{
    if (!isKnown()) { // a signal of a service that did not answer yet
        refresh();
        return;
    }
    publishSoon();
}

void BluezDevices::publishGathered()
{
    const QString reason = whyNoDevices(m_objects);
    publish(reason.isEmpty() ? connectedDevices(m_objects) : QList<ConnectedDevice>(), reason);
}

} // namespace ambrelle
