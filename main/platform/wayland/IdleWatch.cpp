// SPDX-License-Identifier: MIT

#include "platform/wayland/IdleWatch.h"

#include "foundation/Wording.h"

#include <utility>

namespace ambrelle {

IdleWatch::IdleWatch(const WaylandConnection* connection, std::chrono::milliseconds shortest)
    : m_shortest(shortest)
{
    if (!connection)
        return;
    m_seat.reset(connection->bind<wl_seat>(wl_seat_interface, 1));
    m_notifier.reset(connection->bind<ext_idle_notifier_v1>(ext_idle_notifier_v1_interface, 1));
    if (!m_notifier)
        m_olderNotifier.reset(connection->bind<org_kde_kwin_idle>(org_kde_kwin_idle_interface, 1));
}

bool IdleWatch::isAvailable() const
{
    return m_seat && (m_notifier || m_olderNotifier);
}

QString IdleWatch::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("This desktop does not tell whether it is being used.");
}

void IdleWatch::start()
{
    if (!isAvailable() || isStarted())
        return;
    m_wasTold = false;
    m_since.start();
    const auto timeout = static_cast<uint32_t>(m_shortest.count());
    if (m_notifier) {
        static const ext_idle_notification_v1_listener listener{
            .idled = [](void* self, ext_idle_notification_v1*) { static_cast<IdleWatch*>(self)->setIdle(true); },
            .resumed = [](void* self, ext_idle_notification_v1*) { static_cast<IdleWatch*>(self)->setIdle(false); },
        };
        m_notification.reset(ext_idle_notifier_v1_get_idle_notification(m_notifier.get(), timeout, m_seat.get()));
        ext_idle_notification_v1_add_listener(m_notification.get(), &listener, this);
    } else {
        static const org_kde_kwin_idle_timeout_listener listener{
            .idle = [](void* self, org_kde_kwin_idle_timeout*) { static_cast<IdleWatch*>(self)->setIdle(true); },
            .resumed = [](void* self, org_kde_kwin_idle_timeout*) { static_cast<IdleWatch*>(self)->setIdle(false); },
        };
        m_olderNotification.reset(org_kde_kwin_idle_get_idle_timeout(m_olderNotifier.get(), m_seat.get(), timeout));
        org_kde_kwin_idle_timeout_add_listener(m_olderNotification.get(), &listener, this);
    }
}

void IdleWatch::stop()
{
    m_notification.reset();
    m_olderNotification.reset();
    if (std::exchange(m_idle, false))
        Q_EMIT idleChanged(false);
}

void IdleWatch::setIdle(bool idle)
{
    m_wasTold = true;
    m_since.start();
    if (std::exchange(m_idle, idle) != idle)
        Q_EMIT idleChanged(idle);
}

void IdleWatch::secondsSinceInput(QObject*, Answer answer)
{
    answer(seconds());
}

std::optional<double> IdleWatch::seconds() const
{
    const std::chrono::milliseconds since(m_since.isValid() ? m_since.elapsed() : 0);
    if (!isStarted() || (!m_wasTold && since < m_shortest))
        return std::nullopt;
    return m_idle ? std::chrono::duration<double>(m_shortest + since).count() : 0;
}

} // namespace ambrelle
