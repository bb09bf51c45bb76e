// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace ambrelle {

/// What a run that makes pictures sees of the machine and its user: the same everywhere. English, the time zone UTC, no
/// settings, no caches, no fonts of the user's own.
namespace BatchSurroundings {

/// As the very first thing of the process: the toolkit remembers which language it saw when it was first asked for
/// anything.
void hideUser();
/// Before the application object. `plugin`: the toolkit's platform plugin to run on; `scale`: pixels per point of its
/// windows.
void prepare(const QByteArray& plugin, int scale = 1);
/// Once there is an application object.
void dress();

} // namespace BatchSurroundings

} // namespace ambrelle
