// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

class ProgramLauncher;
class UndoKeeper;

/// A folder by its path, as it is shown: the home as ~.
QString shownFolder(const QString& folder);

/// Has a folder shown by the file manager; a failure comes to the window's foot.
void openFolder(ProgramLauncher& programs, UndoKeeper& undo, const QString& folder);

} // namespace ambrelle
