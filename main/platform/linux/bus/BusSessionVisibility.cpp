// SPDX-License-Identifier: MIT

#include "platform/linux/bus/BusSessionVisibility.h"

#include "foundation/Wording.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// Each is the name of the service and of its interface, and with "/" the path.
const QStringList savers{u"org.freedesktop.ScreenSaver"_s, u"org.gnome.ScreenSaver"_s, u"org.cinnamon.ScreenSaver"_s,
    u"org.mate.ScreenSaver"_s, u"org.xfce.ScreenSaver"_s};

const QString loginService = u"org.freedesktop.login1"_s;
const QString loginSession = u"org.freedesktop.login1.Session"_s;

QString pathOf(const QString& saver)
{
    return u'/' + QString(saver).replace(u'.', u'/');
}

/// Calls without waiting; `take` gets the answer unless there is none.
void ask(const QDBusConnection& bus, QDBusMessage call, QObject* context,
    const std::function<void(const QDBusMessage&)>& take)
{
    call.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, busPatience), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, take] {
        watcher->deleteLater();
        if (!watcher->isError())
            take(watcher->reply());
    });
}

QDBusMessage sessionQuestion(const QString& service, const QString& path, const QString& interface,
    const QString& method, const QVariantList& arguments = {})
{
    auto call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    return call;
}

} // namespace

BusSessionVisibility::BusSessionVisibility(OpenBus openSessionBus, OpenBus openSystemBus)
    : m_openSessionBus(std::move(openSessionBus))
    , m_openSystemBus(std::move(openSystemBus))
{
    QTimer::singleShot(0, this, &BusSessionVisibility::listen);
}

QString BusSessionVisibility::whyNot() const
{
    return m_answered ? QString() : Wording::tr("This desktop does not tell whether the screen is locked.");
}

void BusSessionVisibility::listen()
{
    listenToSavers();
    listenToLogin();
}

void BusSessionVisibility::listenToSavers()
{
    QDBusConnection bus = m_openSessionBus();
    if (!bus.isConnected())
        return;
    m_owners.setConnection(bus);
    m_owners.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_owners.setWatchedServices(savers);
    connect(&m_owners, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString& name, const QString&, const QString& owner) {
            setSaverActive(name, false); // one that has gone locks nothing any more
            if (!owner.isEmpty())
                askSaver(name);
        });
    for (const QString& name : savers) {
        bus.connect({}, {}, name, u"ActiveChanged"_s, this, SLOT(saverChanged(QDBusMessage)));
        askSaver(name);
    }
}

void BusSessionVisibility::askSaver(const QString& name)
{
    ask(m_openSessionBus(), sessionQuestion(name, pathOf(name), name, u"GetActive"_s), this,
        [this, name](const QDBusMessage& reply) {
            m_answered = true;
            setSaverActive(name, reply.arguments().value(0).toBool());
        });
}

void BusSessionVisibility::saverChanged(const QDBusMessage& message)
{
    setSaverActive(message.interface(), message.arguments().value(0).toBool());
}

void BusSessionVisibility::setSaverActive(const QString& name, bool active)
{
    change([&] {
        if (active)
            m_activeSavers.insert(name);
        else
            m_activeSavers.remove(name);
    });
}

void BusSessionVisibility::listenToLogin()
{
    QDBusConnection bus = m_openSystemBus();
    if (!bus.isConnected())
        return;
    const QString session = qEnvironmentVariable("XDG_SESSION_ID", u"auto"_s);
    const QString manager = u"org.freedesktop.login1.Manager"_s;
    ask(bus, sessionQuestion(loginService, u"/org/freedesktop/login1"_s, manager, u"GetSession"_s, {session}), this,
        [this](const QDBusMessage& reply) { askSession(reply.arguments().value(0).value<QDBusObjectPath>().path()); });
}

void BusSessionVisibility::askSession(const QString& path)
{
    QDBusConnection bus = m_openSystemBus();
    bus.connect({}, path, propertiesInterface, u"PropertiesChanged"_s, this, SLOT(sessionChanged(QDBusMessage)));
    ask(bus, sessionQuestion(loginService, path, propertiesInterface, u"GetAll"_s, {loginSession}), this,
        [this](const QDBusMessage& reply) {
            const auto properties = qdbus_cast<QVariantMap>(reply.arguments().value(0));
            const QString type = properties.value(u"Type"_s).toString();
            m_isGraphical = type == "x11"_L1 || type == "wayland"_L1;
            m_answered = m_answered || m_isGraphical;
            takeSession(properties);
        });
}

void BusSessionVisibility::sessionChanged(const QDBusMessage& message)
{
    takeSession(qdbus_cast<QVariantMap>(message.arguments().value(1)));
}

void BusSessionVisibility::takeSession(const QVariantMap& properties)
{
    change([&] {
        m_isLocked = properties.value(u"LockedHint"_s, m_isLocked).toBool();
        m_isActive = properties.value(u"Active"_s, m_isActive).toBool();
    });
}

void BusSessionVisibility::change(const std::function<void()>& step)
{
    const bool before = isVisible();
    step();
    if (isVisible() != before)
        Q_EMIT changed();
}

} // namespace ambrelle
