// SPDX-License-Identifier: MIT

#include "platform/linux/bus/BusDevices.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>

#include <chrono>
#include <utility>

namespace ambrelle {

namespace {

constexpr std::chrono::milliseconds gatheringTime{100};

} // namespace

BusDevices::BusDevices(Service service, OpenBus openBus)
    : m_service(std::move(service))
    , m_openBus(std::move(openBus))
{
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &BusDevices::ownerChanged);
    m_gathering.setSingleShot(true);
    m_gathering.setInterval(gatheringTime);
    connect(&m_gathering, &QTimer::timeout, this, [this] {
        if (m_known)
            publishGathered();
    });
}

void BusDevices::refresh()
{
    if (std::exchange(m_asking, true)) {
        m_askAgain = true;
        return;
    }
    QMetaObject::invokeMethod(this, &BusDevices::connectOrAsk, Qt::QueuedConnection);
}

void BusDevices::ownerChanged(const QString&, const QString&, const QString& owner)
{
    // One that ended is not asked, or the bus would start it over and over when it fails.
    if (owner.isEmpty())
        lose(m_service.missing);
    else
        refresh();
}

void BusDevices::connectOrAsk()
{
    if (!m_bus.isConnected()) {
        m_bus = m_openBus();
        if (!m_bus.isConnected()) {
            finished({}, m_service.missing);
            return;
        }
        m_watcher.setConnection(m_bus);
        m_watcher.setWatchedServices({m_service.name});
        subscribe();
    }
    ask();
}

QDBusMessage BusDevices::request(const QString& path, const QString& interface, const QString& method) const
{
    auto message = QDBusMessage::createMethodCall(m_service.name, path, interface, method);
    message.setAutoStartService(m_service.startsOnDemand);
    return message;
}

void BusDevices::call(const QDBusMessage& message, Answered answered)
{
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, answered = std::move(answered)] {
        watcher->deleteLater();
        answered(watcher->reply());
    });
}

void BusDevices::finished(const QList<ConnectedDevice>& devices, const QString& whyNot)
{
    m_known = m_bus.isConnected();
    publish(devices, whyNot);
    endRound();
}

void BusDevices::failed(const QDBusMessage& error)
{
    const bool isAway = QDBusError(error).type() == QDBusError::ServiceUnknown
        || error.errorName() == u"org.freedesktop.DBus.Error.NameHasNoOwner";
    lose(isAway ? m_service.missing : m_service.silent);
    endRound();
}

void BusDevices::lose(const QString& whyNot)
{
    m_known = false;
    forget();
    publish({}, whyNot);
}

void BusDevices::publishSoon()
{
    if (!m_gathering.isActive())
        m_gathering.start();
}

void BusDevices::publish(const QList<ConnectedDevice>& devices, const QString& whyNot)
{
    if (m_devices == devices && m_whyNot == whyNot)
        return;
    m_devices = devices;
    m_whyNot = whyNot;
    Q_EMIT changed();
}

void BusDevices::endRound()
{
    m_asking = false;
    if (std::exchange(m_askAgain, false))
        refresh();
}

} // namespace ambrelle
