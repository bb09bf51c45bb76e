// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/DesktopAnnouncer.h"

#include "foundation/Wording.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const auto service = u"org.freedesktop.Notifications"_s;
const auto path = u"/org/freedesktop/Notifications"_s;
const auto applicationName = u"Ambrelle"_s;
const auto applicationId = u"org.ambrelle.Ambrelle"_s; // of the desktop entry and the icon
constexpr uint newNotification = 0; // replaces none
constexpr int desktopsTime = -1; // how long it is shown is for the desktop to say

QString nobodyShowsThem()
{
    return Wording::tr("This desktop shows no notifications.");
}

} // namespace

QString soundEvent(AnnouncedSound sound)
{
    switch (sound) {
    case AnnouncedSound::glass: return u"bell"_s;
    case AnnouncedSound::hero: break;
    }
    return u"complete"_s;
}

DesktopAnnouncer::DesktopAnnouncer(OpenBus openBus)
    : m_openBus(std::move(openBus))
    , m_sounds({applicationName, applicationId})
{
}

void DesktopAnnouncer::notify(const QString& title, const QString& body)
{
    const QDBusConnection bus = m_openBus();
    if (!bus.isConnected()) {
        m_whyNot = nobodyShowsThem();
        return;
    }
    // The user decides in Ambrelle whether there is a sound, so the desktop must not add its own.
    const QVariantMap hints{{u"desktop-entry"_s, applicationId}, {u"suppress-sound"_s, true}};
    auto call = QDBusMessage::createMethodCall(service, path, service, u"Notify"_s);
    call.setArguments(
        {applicationName, newNotification, applicationId, title, body, QStringList(), hints, desktopsTime});
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), &m_answers);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &m_answers, [this, watcher] {
        watcher->deleteLater();
        m_whyNot = watcher->isError() ? nobodyShowsThem() : QString();
    });
}

void DesktopAnnouncer::play(AnnouncedSound sound)
{
    m_sounds.play(soundEvent(sound));
}

} // namespace ambrelle
