// SPDX-License-Identifier: MIT

#pragma once

#include "support/PrivateBus.h"
#include "support/WaitUntil.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>

#include <memory>
#include <vector>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A message bus of the test's own, and stand-ins for system services on it that python3-dbusmock plays.
class MockBus : public PrivateBus {
public:
    /// Starts the stand-in of that template and waits for its name on the bus. None when dbusmock is not installed.
    QProcess* start(const QString& kind, const QString& name)
    {
        const auto python = u"/usr/bin/python3"_s; // for which Debian's package is
        if (!QFileInfo::exists(python))
            return nullptr;
        auto process = std::unique_ptr<QProcess, void (*)(QProcess*)>(new QProcess, [](QProcess* each) {
            end(*each);
            delete each;
        });
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
            environment.insert(QLatin1StringView(variable), address());
        environment.insert(u"PYTHONUNBUFFERED"_s, u"1"_s);
        process->setProcessEnvironment(environment);
        process->start(python, {u"-m"_s, u"dbusmock"_s, u"--template"_s, kind});
        auto* running = process.get();
        m_services.push_back(std::move(process));
        const bool came = waitUntil([this, running, &name] {
            return running->state() == QProcess::NotRunning || m_driver.interface()->isServiceRegistered(name);
        });
        return came && running->state() != QProcess::NotRunning ? running : nullptr;
    }
    void stop(QProcess* service)
    {
        std::erase_if(m_services, [service](const auto& each) { return each.get() == service; });
    }

    /// Calls a method of a stand-in and waits for it; false when it is refused.
    bool call(const char* service, const QString& path, const char* interface, const char* method,
        const QVariantList& arguments)
    {
        auto message = QDBusMessage::createMethodCall(
            QLatin1StringView(service), path, QLatin1StringView(interface), QLatin1StringView(method));
        message.setArguments(arguments);
        return m_driver.call(message).type() == QDBusMessage::ReplyMessage;
    }
    bool setProperty(
        const char* service, const QString& path, const char* interface, const char* name, const QVariant& value)
    {
        return call(service, path, "org.freedesktop.DBus.Properties", "Set",
            {QLatin1StringView(interface), QLatin1StringView(name), QVariant::fromValue(QDBusVariant(value))});
    }

private:
    static void end(QProcess& process)
    {
        process.kill();
        process.waitForFinished();
    }

    QDBusConnection m_driver = connection(u"driver"_s);
    std::vector<std::unique_ptr<QProcess, void (*)(QProcess*)>> m_services;
};

} // namespace ambrelle
