// SPDX-License-Identifier: MIT

#pragma once

#include "updates/Updater.h"

namespace ambrelle {

/// Looks for a newer release and tries it without installing it; prints a line on what came of it. Needs the
/// application object, and waits with its event loops; whoever ends these ends the look, and nothing is printed.
/// `running` is this program. Gives the exit status.
int checkForUpdate(std::shared_ptr<ReleaseServer> server, std::shared_ptr<ProgramFolder> folder,
    const Updater::Trust& trust, const StagedProgram::Identity& running);

} // namespace ambrelle
