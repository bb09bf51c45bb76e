// SPDX-License-Identifier: MIT

#include "platform/linux/bus/SessionInputMonitor.h"

#include "foundation/Wording.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPointer>

#include <array>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct IdleService {
    QLatin1StringView name;
    QLatin1StringView path;
    QLatin1StringView interface;
    QLatin1StringView method;
    double unit; ///< seconds
};

constexpr std::array services{
    IdleService{"org.gnome.Mutter.IdleMonitor"_L1, "/org/gnome/Mutter/IdleMonitor/Core"_L1,
        "org.gnome.Mutter.IdleMonitor"_L1, "GetIdletime"_L1, 0.001},
    IdleService{"org.freedesktop.ScreenSaver"_L1, "/org/freedesktop/ScreenSaver"_L1, "org.freedesktop.ScreenSaver"_L1,
        "GetSessionIdleTime"_L1, 1},
};

QDBusMessage idleQuestion(const IdleService& service)
{
    auto call = QDBusMessage::createMethodCall(service.name, service.path, service.interface, service.method);
    call.setAutoStartService(false); // one that has to be started first knows nothing
    return call;
}

std::optional<double> answered(const QDBusMessage& reply, const IdleService& service)
{
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return std::nullopt;
    bool isNumber = false;
    const double idle = reply.arguments().constFirst().toDouble(&isNumber);
    return isNumber ? std::optional(idle * service.unit) : std::nullopt;
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
    if (m_started)
        ask(0, context, answer);
    else
        answer(std::nullopt);
}

/// Asks that service, and those after it when it does not answer.
void SessionInputMonitor::ask(std::size_t service, QObject* context, const Answer& answer)
{
    QDBusConnection bus = m_openBus();
    if (service == services.size() || !bus.isConnected()) {
        m_answered = false;
        return answer(std::nullopt);
    }
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(idleQuestion(services[service]), busPatience), this);
    connect(
        watcher, &QDBusPendingCallWatcher::finished, this, [this, service, watcher, asker = QPointer(context), answer] {
            watcher->deleteLater();
            if (!asker)
                return;
            const std::optional<double> seconds = answered(watcher->reply(), services[service]);
            if (!seconds)
                return ask(service + 1, asker, answer);
            m_answered = true;
            answer(seconds);
        });
}

} // namespace ambrelle
