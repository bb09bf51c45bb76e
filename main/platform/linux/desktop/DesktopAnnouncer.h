// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Announcer.h"
#include "platform/linux/bus/OpenBus.h"
#include "platform/linux/desktop/EventSounds.h"

#include <QObject>

namespace ambrelle {

/// The event of the desktop's sound theme that sounds most like `sound`.
QString soundEvent(AnnouncedSound sound);

/// Notifications through the desktop's notification service, sounds through its sound theme.
class DesktopAnnouncer final : public Announcer {
public:
    explicit DesktopAnnouncer(OpenBus openBus = &QDBusConnection::sessionBus);

    bool isAvailable() const override { return m_whyNot.isEmpty(); }
    QString whyNot() const override { return m_whyNot; }
    void notify(const QString& title, const QString& body) override;
    void play(AnnouncedSound sound) override;

private:
    OpenBus m_openBus;
    QString m_whyNot; // after the last notification
    EventSounds m_sounds;
    QObject m_answers; // owns the calls that are under way
};

} // namespace ambrelle
