// SPDX-License-Identifier: MIT

#include "platform/linux/bus/PortalAppearance.h"

#include "foundation/Wording.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
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
constexpr uint darkScheme = 1; // 0: no preference, 2: light
constexpr int settlingTime = 200; // milliseconds in which the settings file is written and replaced

/// What lies inside however many variants within variants.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

PortalAppearance::PortalAppearance(OpenBus openBus)
    : m_openBus(std::move(openBus))
{
    QTimer::singleShot(0, this, &PortalAppearance::askPortal);
    connect(&m_settingsWatcher, &QFileSystemWatcher::fileChanged, this,
        [this] { QTimer::singleShot(settlingTime, this, &PortalAppearance::askSettings); });
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

    auto call = QDBusMessage::createMethodCall(portal, portalPath, interface, u"Read"_s);
    call.setArguments({section, key});
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, busPatience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        bool isNumber = false;
        const uint scheme = reply.isError() ? 0 : unwrapped(reply.value().variant()).toUInt(&isNumber);
        if (isNumber)
            accept(scheme == darkScheme);
        else if (!m_known) // no signal came meanwhile either
            askSettings();
    });
}

void PortalAppearance::settingChanged(const QDBusMessage& message)
{
    const auto arguments = message.arguments();
    if (arguments.size() < 3 || arguments.at(0).toString() != section || arguments.at(1).toString() != key)
        return;
    bool isNumber = false;
    const uint scheme = unwrapped(arguments.at(2)).toUInt(&isNumber);
    if (isNumber)
        accept(scheme == darkScheme);
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
        if (code != 0)
            return; // these settings are not installed
        accept(process->readAllStandardOutput().contains("prefer-dark"));
        watchSettings();
    });
    process->start(program, {u"get"_s, u"org.gnome.desktop.interface"_s, key});
}

void PortalAppearance::watchSettings()
{
    const auto file = QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) + u"/dconf/user"_s;
    // The file is replaced with every change, which ends the watch on it.
    if (!m_settingsWatcher.files().contains(file))
        m_settingsWatcher.addPath(file);
}

void PortalAppearance::accept(bool dark)
{
    m_known = true;
    if (std::exchange(m_dark, dark) != dark)
        Q_EMIT changed();
}

} // namespace ambrelle
