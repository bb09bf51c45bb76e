#pragma once

#include "platform/Announcer.h"

namespace ambrelle {

/// Says nothing to anybody.
class HeadlessAnnouncer final : public Announcer {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("This mode shows no notifications."); }
    void notify(const QString&, const QString&) override { }
    void play(AnnouncedSound) override { }
};

} // namespace ambrelle
