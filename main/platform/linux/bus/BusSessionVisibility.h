// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/OpenBus.h"
#include "platform/SessionVisibility.h"

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QSet>
#include <QVariantMap>

#include <functional>

namespace ambrelle {

/// What the desktop's screen locker tells on the session bus, and the login manager on the system bus: locked, or
/// another session is on the screen. Asks once the event loop runs, never starts a service and never waits for an
/// answer. A request to lock is not taken for a lock: nobody may have followed it.
class BusSessionVisibility final : public SessionVisibility {
    Q_OBJECT
public:
    explicit BusSessionVisibility(
        OpenBus openSessionBus = &QDBusConnection::sessionBus, OpenBus openSystemBus = &QDBusConnection::systemBus);

    bool isAvailable() const override { return m_answered; }
    QString whyNot() const override;
    bool isVisible() const override
    {
        return m_activeSavers.isEmpty() && !m_isLocked && (m_isActive || !m_isGraphical);
    }

private Q_SLOTS:
    void saverChanged(const QDBusMessage& message);
    void sessionChanged(const QDBusMessage& message);

private:
    void listen();
    void listenToSavers();
    void listenToLogin();
    void askSaver(const QString& name);
    void askSession(const QString& path);
    void setSaverActive(const QString& name, bool active);
    void takeSession(const QVariantMap& properties); ///< the changed ones, or all
    /// Carries out a change of what is known, and tells if it makes a difference.
    void change(const std::function<void()>& step);

    OpenBus m_openSessionBus;
    OpenBus m_openSystemBus;
    QDBusServiceWatcher m_owners;
    QSet<QString> m_activeSavers;
    bool m_isLocked = false;
    bool m_isGraphical = false; ///< a session on a text console may have started the display of another seat
    bool m_isActive = true; ///< the one its seat shows
    bool m_answered = false;
};

} // namespace ambrelle
