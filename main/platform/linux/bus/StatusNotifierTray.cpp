// SPDX-License-Identifier: MIT

#include "platform/linux/bus/StatusNotifierTray.h"

#include "foundation/Wording.h"
#include "platform/linux/bus/OpenBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString watcherName = u"org.kde.StatusNotifierWatcher"_s; // also its interface
const QString watcherPath = u"/StatusNotifierWatcher"_s;

} // namespace

StatusNotifierTray::StatusNotifierTray(std::function<QDBusConnection()> openBus)
    : m_openBus(std::move(openBus))
{
}

QString StatusNotifierTray::whyNot() const
{
    return m_available ? QString() : Wording::tr("No panel shows items that are announced on the session bus.");
}

void StatusNotifierTray::start()
{
    QDBusConnection bus = m_openBus();
    if (!bus.isConnected())
        return;
    auto* owners = new QDBusServiceWatcher(watcherName, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owners, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierTray::ask);
    connect(owners, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setAvailable(false); });
    for (const QString& signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        bus.connect(watcherName, watcherPath, watcherName, signal, this, SLOT(ask()));
    ask();
}

void StatusNotifierTray::ask()
{
    auto call =
        QDBusMessage::createMethodCall(watcherName, watcherPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call.setArguments({watcherName, u"IsStatusNotifierHostRegistered"_s});
    call.setAutoStartService(false); // a tray is not to be started for this program's sake
    auto* answer = new QDBusPendingCallWatcher(m_openBus().asyncCall(call, busPatience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        setAvailable(!reply.isError() && reply.value().variant().toBool());
    });
}

void StatusNotifierTray::setAvailable(bool available)
{
    if (std::exchange(m_available, available) != available && available)
        Q_EMIT appeared();
}

} // namespace ambrelle
