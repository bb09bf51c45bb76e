// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/OpenBus.h"
#include "platform/ProgramLauncher.h"

#include <QObject>
#include <QProcessEnvironment>
#include <QStringList>

#include <functional>

namespace ambrelle {

class DesktopEntryText;

/// Gives the environment that a program gets which the user opens: `start` is called once, at once or soon.
using ProgramEnvironment = std::function<void(std::function<void(const QProcessEnvironment&)> start)>;

/// The programs that have a desktop entry. They are started through the desktop's own launcher, so that they open
/// what is running already, in the session's way. Folders are shown by the file manager on the session bus, else by
/// what the desktop opens folders with.
class DesktopPrograms final : public ProgramLauncher {
public:
    /// `desktops` are those of XDG_CURRENT_DESKTOP.
    explicit DesktopPrograms(QStringList desktops, OpenBus openBus = &QDBusConnection::sessionBus);

    bool has(const QString& program) const override;
    void open(const QString& program) override;
    QString openFolder(const QString& folder) override;
    void showInFolder(const QString& file, Done done) override;

    /// Without it programs get this program's own.
    void setProgramEnvironment(ProgramEnvironment environment) { m_environment = std::move(environment); }

    /// Whether it names a program that can be started on any of `desktops`.
    static bool isUsable(const DesktopEntryText& entry, const QStringList& desktops);

private:
    QString usableEntry(const QString& program) const;

    void start(QList<QStringList> commands);

    QStringList m_desktops;
    ProgramEnvironment m_environment;
    OpenBus m_openBus;
    QObject m_asked; ///< owns the questions to the file manager
};

} // namespace ambrelle
