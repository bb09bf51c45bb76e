// SPDX-License-Identifier: MIT

#pragma once

#include "app/CommandLine.h"

namespace ambrelle {

/// Carries a batch mode out and gives the exit status.
int runBatchMode(const CommandLine& commandLine);

} // namespace ambrelle
