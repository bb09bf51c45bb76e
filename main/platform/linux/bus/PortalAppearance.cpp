// SPDX-License-Identifier: MIT

#include "platform/linux/bus/PortalAppearance.h"

#include "foundation/Wording.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const auto portal = u"org.freedesktop.portal.Desktop"_s;
const auto portalPath = u"/org/freedesktop/portal/desktop"_s;
const auto interface = u"org.freedesktop.portal.Settings"_s;
const auto section = u"org.freedesktop.appearance"_s;
const auto key = u"color-scheme"_s;
const auto gnomeSection = u"org.gnome.desktop.interface"_s;
constexpr uint darkScheme = 1; // 0: no preference, 2: light
constexpr int longPatience = 60'000; // milliseconds for a portal that starts with everything else
constexpr int settlingTime = 200; // milliseconds in which the settings file is written and replaced

/// What lies inside however many variants within variants.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// Of an answer that has everything in some sections; empty if it is of another form.
DesktopSettings settingsIn(const QDBusMessage& answer)
{
    DesktopSettings settings;
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "a{sa{sv}}"_L1)
        return settings;
    const auto sections = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().first());
    for (auto group = sections.begin(); group != sections.end(); ++group) {
        for (auto value = group->begin(); value != group->end(); ++value)
            settings.insert({group.key(), value.key()}, unwrapped(*value));
    }
    return settings;
}

} // namespace

PortalAppearance::PortalAppearance(OpenBus openBus)
    : m_openBus(std::move(openBus))
{
    QTimer::singleShot(0, this, &PortalAppearance::askPortal);
    connect(&m_settingsWatcher, &QFileSystemWatcher::fileChanged, this,
        [this] { QTimer::singleShot(settlingTime, this, &PortalAppearance::askSettings); });
}

PortalAppearance::~PortalAppearance()
{
    for (QProcess* process : findChildren<QProcess*>()) {
        process->disconnect(this);
        process->kill(); // else the toolkit does so and complains of it
        process->waitForFinished();
    }
}

QString PortalAppearance::whyNot() const
{
    return m_known ? QString() : Wording::tr("The desktop does not tell whether it is light or dark.");
}

void PortalAppearance::askPortal()
{
    auto bus = m_openBus();
    if (!bus.isConnected()) {
        askSettings();
        return;
    }
    // The slot takes the whole message: one with a QDBusVariant parameter is refused until that type is registered.
    bus.connect(portal, portalPath, interface, u"SettingChanged"_s, this, SLOT(settingChanged(QDBusMessage)));
    askScheme(bus);
    askLook(bus);
}

void PortalAppearance::askScheme(QDBusConnection& bus)
{
    auto call = QDBusMessage::createMethodCall(portal, portalPath, interface, u"Read"_s);
    call.setArguments({section, key});
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, longPatience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError())
            portalToldScheme(reply.value().variant());
        if (!m_known) // no signal came meanwhile either
            askSettings();
    });
    QTimer::singleShot(busPatience, this, [this] {
        if (!m_known)
            askSettings();
    });
}

void PortalAppearance::askLook(QDBusConnection& bus)
{
    auto call = QDBusMessage::createMethodCall(portal, portalPath, interface, u"ReadAll"_s);
    call.setArguments({desktopLookSections()});
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, longPatience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        m_ofPortal.insert(settingsIn(watcher->reply()));
        updateLook();
    });
}

void PortalAppearance::portalToldScheme(const QVariant& value)
{
    bool isNumber = false;
    const uint scheme = unwrapped(value).toUInt(&isNumber);
    if (!isNumber)
        return;
    m_portalTold = true;
    accept(scheme == darkScheme);
}

void PortalAppearance::settingChanged(const QDBusMessage& message)
{
    const auto arguments = message.arguments();
    if (arguments.size() < 3 || !desktopLookSections().contains(arguments.at(0).toString()))
        return;
    if (arguments.at(0).toString() == section && arguments.at(1).toString() == key)
        portalToldScheme(arguments.at(2));
    m_ofPortal.insert({arguments.at(0).toString(), arguments.at(1).toString()}, unwrapped(arguments.at(2)));
    updateLook();
}

void PortalAppearance::askSettings()
{
    const auto program = QStandardPaths::findExecutable(u"gsettings"_s);
    if (program.isEmpty())
        return;
    auto* process = new QProcess(this);
    process->setStandardErrorFile(QProcess::nullDevice());
    connect(process, &QProcess::finished, this, [this, process](int code) {
        process->deleteLater();
        if (code != 0 || m_portalTold)
            return; // these settings are not installed, or were needed no longer
        acceptSettings(QString::fromUtf8(process->readAllStandardOutput()));
        watchSettings();
    });
    process->start(program, {u"list-recursively"_s, gnomeSection});
}

void PortalAppearance::watchSettings()
{
    const auto file = QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + u"/dconf/user"_s;
    // The file is replaced with every change, which ends the watch on it.
    if (!m_settingsWatcher.files().contains(file))
        m_settingsWatcher.addPath(file);
}

void PortalAppearance::acceptSettings(const QString& list)
{
    m_listed = listedSettings(list);
    updateLook();
    const auto scheme = m_listed.constFind({gnomeSection, key});
    if (scheme != m_listed.constEnd()) // older settings lack it
        accept(scheme->toString() == "prefer-dark"_L1);
}

void PortalAppearance::accept(bool dark)
{
    const bool wasKnown = std::exchange(m_known, true);
    if (std::exchange(m_dark, dark) != dark || !wasKnown)
        Q_EMIT changed();
}

void PortalAppearance::updateLook()
{
    DesktopSettings settings = m_listed;
    settings.insert(m_ofPortal);
    const auto look = desktopLook(settings, QGuiApplication::platformName().startsWith("wayland"_L1));
    if (std::exchange(m_look, look) != look)
        Q_EMIT changed();
}

} // namespace ambrelle
