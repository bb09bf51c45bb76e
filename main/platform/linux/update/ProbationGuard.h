// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle::ProbationGuard {

/// Opens the standard descriptors where they are closed, so that nothing of importance gets their numbers. Call it
/// first.
void openStandardDescriptors();

/// Starts a process that does nothing until this one ends. If dismiss() was not called by then, it undoes the update
/// and becomes the former program, unless there was another start since the one of that number. Call it before there
/// are threads. Where no process can be made there is no guard: the journal counts the starts all the same.
void start(const QString& program, int attempt);
/// Whatever happens to this process from now on is not the newer version's fault. A signal handler may call it.
void dismiss();

} // namespace ambrelle::ProbationGuard
