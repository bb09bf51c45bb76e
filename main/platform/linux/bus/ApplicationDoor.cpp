// SPDX-License-Identifier: MIT

#include "platform/linux/bus/ApplicationDoor.h"

#include "foundation/Wording.h"
#include "platform/linux/bus/ApplicationInterface.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString programName = u"org.ambrelle.Ambrelle"_s;
const QString programPath = u"/org/ambrelle/Ambrelle"_s; // the name's, as the interface wants it
const QString busDaemon = u"org.freedesktop.DBus"_s; // also its interface
const QString busPath = u"/org/freedesktop/DBus"_s;

// Of the answers to a request for a name.
constexpr uint owner = 1;
constexpr uint alreadyOwner = 4;
constexpr uint doNotQueue = 4; // of the flags of the request

} // namespace

ApplicationDoor::ApplicationDoor(OpenBus openBus)
    : m_openBus(std::move(openBus))
{
    new ApplicationInterface(*this);
}

QString ApplicationDoor::whyNot() const
{
    return m_isNamed ? QString() : Wording::tr("Other programs cannot call this one on the session bus.");
}

void ApplicationDoor::open()
{
    QDBusConnection bus = m_openBus();
    // The object first: whoever waits for the name calls as soon as it is there.
    if (!bus.isConnected() || !bus.registerObject(programPath, this))
        return;
    auto call = QDBusMessage::createMethodCall(busDaemon, busPath, busDaemon, u"RequestName"_s);
    call.setArguments({programName, doNotQueue});
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call, busPatience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        named(*answer);
    });
}

void ApplicationDoor::named(const QDBusPendingCallWatcher& answer)
{
    const QDBusPendingReply<uint> reply = answer;
    m_isNamed = !reply.isError() && (reply.value() == owner || reply.value() == alreadyOwner);
    if (m_isNamed)
        Q_EMIT changed();
}

} // namespace ambrelle
