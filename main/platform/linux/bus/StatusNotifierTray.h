// SPDX-License-Identifier: MIT

#pragma once

#include "platform/TrayPresence.h"

#include <QDBusConnection>

#include <functional>

namespace ambrelle {

/// A panel that shows the items announced on the session bus. Present when the watcher of items runs and a panel has
/// registered with it as their host.
class StatusNotifierTray final : public TrayPresence {
    Q_OBJECT
public:
    explicit StatusNotifierTray(std::function<QDBusConnection()> openBus = &QDBusConnection::sessionBus);

    bool isAvailable() const override { return m_available; }
    QString whyNot() const override;
    void start() override;

private Q_SLOTS:
    void ask();

private:
    void setAvailable(bool available);

    std::function<QDBusConnection()> m_openBus;
    bool m_available = false;
};

} // namespace ambrelle
