// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/OpenBus.h"
#include "platform/SystemAppearance.h"

#include <QDBusMessage>
#include <QFileSystemWatcher>

namespace ambrelle {

/// The appearance the desktop portal tells; where no portal runs, the one in GNOME's settings. Asks both only once the
/// event loop runs and never waits for an answer: it is unknown at first, and known a moment later. A portal that takes
/// its time is heard whenever it answers, though the settings stand in for it meanwhile.
class PortalAppearance final : public SystemAppearance {
    Q_OBJECT
public:
    explicit PortalAppearance(OpenBus openBus = &QDBusConnection::sessionBus);

    bool isAvailable() const override { return m_known; }
    QString whyNot() const override;
    bool isDark() const override { return m_dark; }

private Q_SLOTS:
    void settingChanged(const QDBusMessage& message);

private:
    void askPortal();
    void portalTold(const QVariant& value);
    void askSettings();
    void watchSettings();
    void accept(bool dark);

    OpenBus m_openBus;
    QFileSystemWatcher m_settingsWatcher;
    bool m_portalTold = false; // and counts from then on
    bool m_known = false;
    bool m_dark = false;
};

} // namespace ambrelle
