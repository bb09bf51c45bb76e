// SPDX-License-Identifier: MIT

#pragma once

#include "platform/ProgramFolder.h"
#include "platform/ReleaseServer.h"
#include "updates/Release.h"
#include "updates/UpdateError.h"

namespace ambrelle {

/// Takes a release in: from its address to a program that was verified and tried, and then to the place of the running
/// one. Every function blocks and is for a thread of its own; a copy owns all that it touches.
struct ReleaseIntake {
    std::shared_ptr<ReleaseServer> server;
    std::shared_ptr<ProgramFolder> folder;
    QStringList keys; ///< public ones; any of them may have signed the archive
    StagedProgram::Identity running; ///< the running program

    struct Taken {
        std::unique_ptr<StagedProgram> program; ///< none: it failed
        std::optional<UpdateError> error{}; ///< then
    };

    /// Fetches, verifies, unpacks and tries the release. The running program stays as it is.
    Taken take(const Release& release, ProgramFolder::Purpose purpose, const std::stop_token& stop) const;
    /// Puts the program into the place of the running one; none: that was done. What is not done goes from the disk.
    std::optional<UpdateError> exchange(std::unique_ptr<StagedProgram> program, const QString& version) const;

private:
    std::optional<UpdateError> whyNotThere() const;
    std::optional<UpdateError> fill(StagedProgram& program, const Release& release, const std::stop_token& stop) const;
};

} // namespace ambrelle
