// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/update/ProgramRoot.h"
#include "platform/ProgramFolder.h"

namespace ambrelle {

/// The folder of a program that was unpacked by itself, wherever the user likes.
class LinuxProgramFolder final : public ProgramFolder {
public:
    LinuxProgramFolder(ProgramRoot root, QString rejectedVersion);
    /// Of the running program; make it before anything moves. None: it does not stand in a folder of its own.
    static std::shared_ptr<ProgramFolder> ofRunningProgram(const QString& rejectedVersion);

    QString parent() const override { return m_root.parent(); }
    bool isWritable() const override;
    void awaitSettled(const std::stop_token& stop) const override;
    std::unique_ptr<StagedProgram> stage(Purpose purpose) override;
    QString rejectedVersion() const override { return m_rejectedVersion; }

private:
    const ProgramRoot m_root;
    const QString m_rejectedVersion;
};

} // namespace ambrelle
