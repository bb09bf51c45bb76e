// SPDX-License-Identifier: MIT

#pragma once

#include "app/CommandLine.h"

namespace ambrelle {

/// Carries a batch mode out and gives the exit status. There is no application object yet.
int runBatchMode(const CommandLine& commandLine, int& argc, char** argv);

} // namespace ambrelle
