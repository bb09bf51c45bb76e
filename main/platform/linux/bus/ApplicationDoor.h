// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/OpenBus.h"
#include "platform/ProgramDoor.h"

#include <QVariantMap>

class QDBusPendingCallWatcher;

namespace ambrelle {

/// The program under its name on the session bus, as a desktop application that can be activated.
class ApplicationDoor final : public ProgramDoor {
    Q_OBJECT
public:
    static constexpr qsizetype mostFiles = 1000; ///< of one call; the others are left out

    explicit ApplicationDoor(OpenBus openBus = &QDBusConnection::sessionBus);

    bool isAvailable() const override { return m_isNamed; } ///< the name is this program's
    QString whyNot() const override;
    void open() override;

private:
    void named(const QDBusPendingCallWatcher& answer);

    OpenBus m_openBus;
    bool m_isNamed = false;
};

} // namespace ambrelle
