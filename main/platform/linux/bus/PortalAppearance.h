// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/DesktopLook.h"
#include "platform/linux/bus/OpenBus.h"
#include "platform/SystemAppearance.h"

#include <QDBusMessage>
#include <QFileSystemWatcher>

namespace ambrelle {

/// The appearance the desktop portal tells, the settings of GNOME and KDE behind it included; where no portal runs, the
/// one in GNOME's settings. Asks both only once the event loop runs and never waits for an answer: it is unknown at
/// first, and known a moment later. A portal that takes its time is heard whenever it answers, though the settings
/// stand in for it meanwhile.
class PortalAppearance final : public SystemAppearance {
    Q_OBJECT
public:
    explicit PortalAppearance(OpenBus openBus = &QDBusConnection::sessionBus);
    ~PortalAppearance() override;

    bool isAvailable() const override { return m_known; }
    QString whyNot() const override;
    bool isDark() const override { return m_dark; }
    bool contrast() const override { return m_look.contrast; }
    bool reducesMotion() const override { return m_look.reducesMotion; }
    double textScale() const override { return m_look.textScale; }

private Q_SLOTS:
    void settingChanged(const QDBusMessage& message);

private:
    void askPortal();
    void askScheme(QDBusConnection& bus);
    void askLook(QDBusConnection& bus);
    void portalToldScheme(const QVariant& value);
    void askSettings();
    void watchSettings();
    void acceptSettings(const QString& list);
    void accept(bool dark);
    void updateLook();

    OpenBus m_openBus;
    QFileSystemWatcher m_settingsWatcher;
    bool m_portalTold = false; // light or dark, and counts from then on
    bool m_known = false;
    bool m_dark = false;
    DesktopSettings m_ofPortal;
    DesktopSettings m_listed; // without a portal
    DesktopLook m_look;
};

} // namespace ambrelle
