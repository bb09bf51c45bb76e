// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DeviceSource.h"
#include "platform/linux/bus/OpenBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QTimer>

#include <functional>

namespace ambrelle {

/// What the device sources on the system bus share: connecting late, asking one round after the other, and noticing
/// that the service comes and goes.
class BusDevices : public DeviceSource {
public:
    bool isAvailable() const final { return m_whyNot.isEmpty(); }
    QString whyNot() const final { return m_whyNot; }
    std::optional<QList<ConnectedDevice>> devices() const final { return m_devices; }
    void refresh() final;

protected:
    struct Service {
        QString name; ///< on the bus
        bool startsOnDemand = false; ///< the bus may start it
        QString missing; ///< the sentence when it does not run
        QString silent; ///< the sentence when it does not answer
    };
    using Answered = std::function<void(const QDBusMessage& answer)>;

    BusDevices(Service service, OpenBus openBus);

    virtual void subscribe() = 0; ///< to the service's signals, once
    virtual void ask() = 0; ///< everything; finished() or failed() ends it
    virtual void forget() = 0; ///< what the service told
    virtual void publishGathered() = 0; ///< what it told by signals

    QDBusConnection& bus() { return m_bus; }
    QDBusMessage request(const QString& path, const QString& interface, const QString& method) const;
    void call(const QDBusMessage& message, Answered answered);
    /// The round of questions is over; `devices` or the sentence why there are none is published.
    void finished(const QList<ConnectedDevice>& devices, const QString& whyNot = {});
    void failed(const QDBusMessage& error);
    /// Has what a signal told published in a moment: signals come in swarms, and each may be about any of many devices.
    void publishSoon();
    void publish(const QList<ConnectedDevice>& devices, const QString& whyNot = {});
    bool isKnown() const { return m_known; } ///< the service answered, so that signals have something to add to

private:
    void ownerChanged(const QString& service, const QString& before, const QString& owner);
    void connectOrAsk();
    void lose(const QString& whyNot);
    void endRound();

    Service m_service;
    OpenBus m_openBus;
    QDBusConnection m_bus{QString()};
    QDBusServiceWatcher m_watcher;
    QTimer m_gathering;
    std::optional<QList<ConnectedDevice>> m_devices;
    QString m_whyNot;
    bool m_asking = false;
    bool m_askAgain = false;
    bool m_known = false;
};

} // namespace ambrelle
