// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"
#include "platform/linux/picture/ToolRunner.h"

#include <QMap>

namespace ambrelle {

/// The picture of a desktop that keeps it in GSettings: one for all screens.
class GSettingsPicture final : public DesktopPicture {
public:
    enum class Family {
        gnome, ///< also others that have kept its settings
        cinnamon,
        mate,
    };

    explicit GSettingsPicture(Family family, std::chrono::milliseconds patience = ToolRunner::usualPatience);

    bool isAvailable() const override { return whyNot().isEmpty(); }
    QString whyNot() const override;
    bool isPerScreen() const override { return false; }
    void set(const QList<ScreenPicture>& pictures, Done done) override;
    void read(const QString& connector, std::function<void(const QString& file)> done) override;
    void remember(const QString& folder, std::function<void(const QJsonObject& memory)> done) override;
    void giveBack(const QJsonObject& memory, Done done) override;

private:
    using Values = QMap<QString, QString>; ///< by key, as the tool prints them
    struct Settings {
        Values values;
        QString error;
    };

    // All of these wait.
    Settings settings() const;
    QString show(const QString& file) const;
    QString shown() const;
    QString write(const Values& wanted) const;
    QString tryToWrite(const Values& wanted) const;
    QString put(const Values& wanted) const;

    const Family m_family;
    ToolRunner m_tools;
};

} // namespace ambrelle
