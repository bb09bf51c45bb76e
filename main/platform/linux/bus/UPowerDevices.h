// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/BusDevices.h"

#include <QMap>
#include <QVariantMap>

namespace ambrelle {

/// The accessory that these properties of a power device tell; nothing for the machine's own batteries and mains, and
/// for what is no accessory.
std::optional<ConnectedDevice> accessory(const QVariantMap& properties);

/// The batteries of mice, keyboards, headsets and the like, whatever they are connected by, as UPower tells them.
class UPowerDevices final : public BusDevices {
    Q_OBJECT
public:
    explicit UPowerDevices(OpenBus openBus = &QDBusConnection::systemBus);

private Q_SLOTS:
    void listChanged(const QDBusMessage&) { refresh(); }
    void propertiesChanged(const QDBusMessage& message);

private:
    void subscribe() override;
    void ask() override;
    void forget() override;
    void publishGathered() override;
    void read(const QString& path);
    void keep(const QString& path, const QVariantMap& properties);
    void drop(const QString& path);
    void answered();
    QList<ConnectedDevice> accessories() const;

    QMap<QString, QVariantMap> m_objects; // of the accessories, whose changes are listened to
    qsizetype m_unanswered = 0; // questions about single devices
};

} // namespace ambrelle
