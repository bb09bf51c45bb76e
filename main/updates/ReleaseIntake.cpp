// SPDX-License-Identifier: MIT

#include "updates/ReleaseIntake.h"

#include <utility>

namespace ambrelle {

/// Why the running program cannot be replaced where it stands; none: it can.
std::optional<UpdateError> ReleaseIntake::whyNotThere() const
{
    const QString parent = folder->parent();
    if (parent.isEmpty())
        return UpdateError::notInstalled();
    if (!folder->isWritable())
        return UpdateError::notWritable(parent);
    return std::nullopt;
}

ReleaseIntake::Taken ReleaseIntake::take(
    const Release& release, ProgramFolder::Purpose purpose, const std::stop_token& stop) const
{
    if (!isSecureAddress(release.url))
        return {.error = UpdateError::notSecure()};
    // Before the download: it would be in vain every time.
    if (purpose == ProgramFolder::Purpose::update) {
        if (auto error = whyNotThere())
            return {.error = std::move(error)};
        folder->awaitSettled(stop);
    }
    std::unique_ptr<StagedProgram> program = folder->stage(purpose);
    if (!program)
        return {.error = UpdateError::notInstalled()};
    if (auto error = fill(*program, release, stop))
        return {.error = std::move(error)};
    return {.program = std::move(program)};
}

std::optional<UpdateError> ReleaseIntake::fill(
    StagedProgram& program, const Release& release, const std::stop_token& stop) const
{
    const int archive = program.archive();
    if (archive < 0)
        return UpdateError::downloadFailed();
    const std::optional<FetchedArchive> fetched = server->fetch(release.url, archive, stop);
    if (!fetched)
        return UpdateError::downloadFailed();
    if (fetched->sha256 != release.sha256.toLower())
        return UpdateError::wrongChecksum();
    const StagedProgram::Seal seal{
        .signature = fetched->signature, .keys = keys, .comment = running.identifier + u' ' + release.version};
    switch (program.open(seal, stop)) {
    case StagedProgram::Opened::done: break;
    case StagedProgram::Opened::otherRelease: return UpdateError::otherRelease();
    case StagedProgram::Opened::refused: return UpdateError::notVerified();
    }
    const std::optional<StagedProgram::Identity> identity = program.identity();
    if (!identity)
        return UpdateError::notVerified();
    if (*identity != StagedProgram::Identity{running.identifier, release.version})
        return UpdateError::otherRelease();
    if (!program.starts(release.version, stop))
        return UpdateError::notVerified();
    return std::nullopt;
}

std::optional<UpdateError> ReleaseIntake::exchange(std::unique_ptr<StagedProgram> program, const QString& version) const
{
    if (auto error = whyNotThere())
        return error;
    if (!program->exchange(running.version, version))
        return UpdateError::notInstalled();
    return std::nullopt;
}

} // namespace ambrelle
