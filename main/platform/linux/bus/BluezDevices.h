// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/BusDevices.h"

#include <QMap>
#include <QVariantMap>

namespace ambrelle {

/// The objects of the Bluetooth service: the properties of every interface, by object path and interface.
using BluezObjects = QMap<QString, QMap<QString, QVariantMap>>;

/// The devices among them that are connected.
QList<ConnectedDevice> connectedDevices(const BluezObjects& objects);
/// Why no device can be connected: no adapter, or none that is switched on. Empty otherwise.
QString whyNoDevices(const BluezObjects& objects);

/// The Bluetooth devices that BlueZ tells.
class BluezDevices final : public BusDevices {
    Q_OBJECT
public:
    explicit BluezDevices(OpenBus openBus = &QDBusConnection::systemBus);

private Q_SLOTS:
    void interfacesAdded(const QDBusMessage& message);
    void interfacesRemoved(const QDBusMessage& message);
    void propertiesChanged(const QDBusMessage& message);

private:
    void subscribe() override;
    void ask() override;
    void forget() override { m_objects.clear(); }
    void publishGathered() override;
    void add(const QString& path, const QMap<QString, QVariantMap>& interfaces);
    void tell();

    BluezObjects m_objects;
};

} // namespace ambrelle
