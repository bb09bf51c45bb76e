// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>

#include <functional>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A message bus of the test's own. It ends with all connections that were made to it here.
class PrivateBus {
public:
    PrivateBus()
    {
        const QString daemon = QStandardPaths::findExecutable(u"dbus-daemon"_s);
        if (daemon.isEmpty())
            return;
        m_daemon.start(daemon, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        constexpr int patience = 60'000; // milliseconds
        if (m_daemon.waitForReadyRead(patience))
            m_address = QString::fromLatin1(m_daemon.readLine().trimmed());
    }
    ~PrivateBus()
    {
        for (const QString& name : std::as_const(m_names))
            QDBusConnection::disconnectFromBus(name);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// False where no bus can be started.
    bool isRunning() const { return !m_address.isEmpty(); }
    const QString& address() const { return m_address; }

    /// The connection of that name, made when it is first asked for.
    QDBusConnection connection(const QString& name) const
    {
        m_names.insert(name);
        return QDBusConnection::connectToBus(m_address, name);
    }
    /// Connects the code under test.
    std::function<QDBusConnection()> opener() const
    {
        return [this] { return connection(u"client"_s); };
    }

private:
    QProcess m_daemon;
    QString m_address;
    mutable QSet<QString> m_names;
};

} // namespace ambrelle
