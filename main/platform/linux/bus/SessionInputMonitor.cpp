// SPDX-License-Identifier: MIT

#include "platform/linux/bus/SessionInputMonitor.h"

#include "foundation/Wording.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QDBusMessage idleQuestion()
{
    auto call = QDBusMessage::createMethodCall(u"org.gnome.Mutter.IdleMonitor"_s,
        u"/org/gnome/Mutter/IdleMonitor/Core"_s, u"org.gnome.Mutter.IdleMonitor"_s, u"GetIdletime"_s);
    call.setAutoStartService(false); // one that has to be started first knows nothing
    return call;
}

std::optional<double> secondsIn(const QDBusMessage& reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return std::nullopt;
    bool isNumber = false;
    const double milliseconds = reply.arguments().constFirst().toDouble(&isNumber);
    return isNumber ? std::optional(milliseconds / 1000) : std::nullopt;
}

} // namespace

SessionInputMonitor::SessionInputMonitor(OpenBus openBus)
    : m_openBus(std::move(openBus))
{
}

QString SessionInputMonitor::whyNot() const
{
    return m_answered ? QString() : Wording::tr("This desktop does not tell whether it is being used.");
}

void SessionInputMonitor::secondsSinceInput(QObject* context, Answer answer)
{
    if (!m_started)
        return answer(std::nullopt);
    QDBusConnection bus = m_openBus();
    if (!bus.isConnected()) {
        m_answered = false;
        return answer(std::nullopt);
    }
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(idleQuestion(), busPatience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [this, watcher, asker = QPointer(context), answer = std::move(answer)] {
            watcher->deleteLater();
            const std::optional<double> seconds = secondsIn(watcher->reply());
            m_answered = seconds.has_value();
            if (asker)
                answer(seconds);
        });
}

} // namespace ambrelle
