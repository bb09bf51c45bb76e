// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"
#include "platform/linux/picture/ToolRunner.h"

namespace ambrelle {

/// Sway's desktop: each output's picture. Sway does not tell what it shows, so only what was set here is known, and
/// that only as long as the same Sway runs.
class SwayPicture final : public DesktopPicture {
public:
    /// `recordFile` is where to note what was set; `session` tells this run of Sway from others.
    SwayPicture(const QString& recordFile, const QString& session,
        std::chrono::milliseconds patience = ToolRunner::usualPatience);

    bool isAvailable() const override { return whyNot().isEmpty(); }
    QString whyNot() const override;
    bool isPerScreen() const override { return true; }
    void set(const QList<ScreenPicture>& pictures, Done done) override;
    void read(const QString& connector, std::function<void(const QString& file)> done) override;
    void remember(const QString& folder, std::function<void(const QJsonObject& memory)> done) override;
    void giveBack(const QJsonObject& memory, Done done) override;

private:
    // All of these wait.
    /// Returns why not. The pictures of outputs that have gone are `skipped` or a fault.
    enum class Gone { skipped, fault };
    QString show(const QList<ScreenPicture>& pictures, Gone gone) const;
    QStringList outputs(QString& error) const;
    QJsonObject record() const; ///< the file of each connector
    void note(const QList<ScreenPicture>& pictures) const;

    QString m_recordFile;
    QString m_session;
    ToolRunner m_tools;
};

} // namespace ambrelle
