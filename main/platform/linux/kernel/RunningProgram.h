// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// The absolute path of the program that runs, links resolved; empty where the kernel does not tell it. Needs no
/// application object.
QString runningProgram();

} // namespace ambrelle
