// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"
#include "platform/linux/picture/ToolRunner.h"

#include <optional>

namespace ambrelle {

/// The desktop that a PCMan file manager draws for LXDE or LXQt: one picture for all screens.
class PcmanfmPicture final : public DesktopPicture {
public:
    enum class Family { lxde, lxqt };

    explicit PcmanfmPicture(Family family, std::chrono::milliseconds patience = ToolRunner::usualPatience);

    bool isAvailable() const override { return whyNot().isEmpty(); }
    QString whyNot() const override;
    bool isPerScreen() const override { return false; }
    void set(const QList<ScreenPicture>& pictures, Done done) override;
    void read(const QString& connector, std::function<void(const QString& file)> done) override;
    void remember(const QString& folder, std::function<void(const QJsonObject& memory)> done) override;
    void giveBack(const QJsonObject& memory, Done done) override;

private:
    struct Setting {
        QString file;
        QString mode; ///< how the picture is fitted, as the configuration has it
    };

    // All of these wait.
    std::optional<Setting> setting() const;
    QString apply(const Setting& wanted) const;
    bool isKept(const QString& file) const;

    const Family m_family;
    ToolRunner m_tools;
};

} // namespace ambrelle
