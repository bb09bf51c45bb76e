// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"
#include "platform/linux/picture/ConnectedScreens.h"
#include "platform/linux/picture/ToolRunner.h"

#include <QMap>

#include <optional>

namespace ambrelle {

/// Xfce's desktop: a picture for each workspace of each screen, kept in Xfconf.
class XfconfPicture final : public DesktopPicture {
public:
    explicit XfconfPicture(
        std::chrono::milliseconds patience = ToolRunner::usualPatience, ListScreens screens = &connectedScreens);

    bool isAvailable() const override { return whyNot().isEmpty(); }
    QString whyNot() const override;
    bool isPerScreen() const override { return true; }
    void set(const QList<ScreenPicture>& pictures, Done done) override;
    void read(const QString& connector, std::function<void(const QString& file)> done) override;
    void remember(const QString& folder, std::function<void(const QJsonObject& memory)> done) override;
    void giveBack(const QJsonObject& memory, Done done) override;

private:
    using Values = QMap<QString, std::optional<QString>>; ///< by property; nothing: it is not set
    /// What is known of the desktop while work runs.
    struct Desk {
        QMap<QString, QString> values; ///< by property, of the whole desktop
        int workspaces = 0;
        QStringList connectors; ///< of the connected screens
        QString error;

        std::optional<QString> value(const QString& property) const;
        QStringList listedPlaces() const;
        QStringList placesOf(const QString& connector) const;
    };

    QStringList connectors() const;
    // All of these wait.
    Desk look(const QStringList& connectors) const;
    int workspaceCount() const;
    QString show(const QList<ScreenPicture>& pictures, const Desk& before) const;
    QString write(const Values& wanted, const Desk& before) const;
    QString put(const QString& property, const std::optional<QString>& value) const;

    static QString shown(const QString& connector, const Desk& desk);
    static QJsonObject memory(const Desk& desk);

    ListScreens m_screens;
    ToolRunner m_tools;
};

} // namespace ambrelle
