// SPDX-License-Identifier: MIT

#include "window/settings/FolderRow.h"

#include "foundation/ForeignText.h"
#include "platform/ProgramLauncher.h"
#include "window/frame/Undo.h"

#include <QDir>

namespace ambrelle {

QString shownFolder(const QString& folder)
{
    const QString home = QDir::homePath();
    const bool inside = folder == home || folder.startsWith(home + u'/');
    return foreignText(inside ? u'~' + folder.sliced(home.size()) : folder);
}

void openFolder(ProgramLauncher& programs, UndoKeeper& undo, const QString& folder)
{
    const QString complaint = programs.openFolder(folder);
    if (!complaint.isEmpty())
        undo.fail(complaint, [&programs, &undo, folder] { openFolder(programs, undo, folder); });
}

} // namespace ambrelle
