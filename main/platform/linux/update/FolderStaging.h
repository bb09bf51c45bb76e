// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/update/ProgramRoot.h"
#include "platform/linux/update/WorkFolder.h"
#include "platform/ProgramFolder.h"

namespace ambrelle {

/// A newer program in a fresh folder "Ambrelle-update-<UUID>".
class FolderStaging final : public StagedProgram {
public:
    /// In the work folder beside the running program, to take its place. None: the folder cannot be made.
    static std::unique_ptr<FolderStaging> beside(const ProgramRoot& root, std::unique_ptr<WorkFolder> work);
    /// In the system's folder for temporary files, to be looked at.
    static std::unique_ptr<FolderStaging> apart(const ProgramRoot& root);
    ~FolderStaging() override;

    int archive() override;
    Opened open(const Seal& seal, const std::stop_token& stop) override;
    std::optional<Identity> identity() const override;
    bool starts(const QString& version, const std::stop_token& stop) override;
    QString folder() const override { return m_folder; }
    void keep() override { m_isKept = true; }
    bool exchange(const QString& from, const QString& to) override;

private:
    FolderStaging(ProgramRoot root, std::unique_ptr<WorkFolder> work, QString folder);
    QString bundle() const;

    ProgramRoot m_root;
    std::unique_ptr<WorkFolder> m_work; // none: it will not take a place
    QString m_folder;
    int m_archive = -1;
    bool m_isKept = false;
};

} // namespace ambrelle
