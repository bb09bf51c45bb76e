// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LoginItem.h"

#include <QStringList>

namespace ambrelle {

/// The login item of desktops that follow the XDG autostart rules: a desktop entry in the user's autostart folder,
/// which stands above entries of the same name that came with the system.
class AutostartEntry final : public LoginItem {
public:
    struct Folders {
        QString user; ///< $XDG_CONFIG_HOME
        QStringList system; ///< $XDG_CONFIG_DIRS, the first counts most

        static Folders standard();
    };

    /// `program`: the absolute path that is started.
    explicit AutostartEntry(QString program, Folders folders = Folders::standard());

    Status status() const override;
    QString whyNot() const override;
    QString setEnabled(bool enabled) override;

    QString path() const; ///< of the user's entry

private:
    QString systemEntry() const;
    QString enable(const QByteArray& present) const;
    QString disable(const QByteArray& present) const;

    QString m_program;
    Folders m_folders;
};

} // namespace ambrelle
