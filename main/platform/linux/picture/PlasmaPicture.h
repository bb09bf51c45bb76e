// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"
#include "platform/linux/picture/ConnectedScreens.h"

#include <QDBusConnection>
#include <QJsonValue>

#include <chrono>

namespace ambrelle {

/// Plasma's desktop: each screen's picture, changed by scripts that its shell runs.
class PlasmaPicture final : public DesktopPicture {
public:
    explicit PlasmaPicture(QDBusConnection bus = QDBusConnection::sessionBus(),
        std::chrono::milliseconds patience = std::chrono::seconds(5), ListScreens screens = &connectedScreens);

    bool isAvailable() const override { return m_bus.isConnected(); }
    QString whyNot() const override;
    bool isPerScreen() const override { return true; }
    void set(const QList<ScreenPicture>& pictures, Done done) override;
    void read(const QString& connector, std::function<void(const QString& file)> done) override;
    void remember(const QString& folder, std::function<void(const QJsonObject& memory)> done) override;
    void giveBack(const QJsonObject& memory, Done done) override;

private:
    using Result = std::function<void(const QJsonValue& result, const QString& error)>;

    int rankOf(const QString& connector) const;
    void change(const QString& function, const QJsonObject& argument, Done done);
    void evaluate(const QString& script, Result result);
    void fail(const QString& error, const Done& done);

    QDBusConnection m_bus;
    std::chrono::milliseconds m_patience;
    ListScreens m_screens;
};

} // namespace ambrelle
