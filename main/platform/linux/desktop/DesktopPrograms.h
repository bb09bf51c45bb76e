// SPDX-License-Identifier: MIT

#pragma once

#include "platform/ProgramLauncher.h"

#include <QStringList>

namespace ambrelle {

class DesktopEntryText;

/// The programs that have a desktop entry. They are started through the desktop's own launcher, so that they open
/// what is running already, in the session's way.
class DesktopPrograms final : public ProgramLauncher {
public:
    /// `desktops` are those of XDG_CURRENT_DESKTOP.
    explicit DesktopPrograms(QStringList desktops);

    bool has(const QString& program) const override;
    void open(const QString& program) override;
    QString openFolder(const QString& folder) override;

    /// Whether it names a program that can be started on any of `desktops`.
    static bool isUsable(const DesktopEntryText& entry, const QStringList& desktops);

private:
    QString usableEntry(const QString& program) const;

    QStringList m_desktops;
};

} // namespace ambrelle
