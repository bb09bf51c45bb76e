// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/update/FolderJournal.h"
#include "platform/linux/update/WorkFolder.h"

namespace ambrelle {

/// Two folders on the same file system change places, at once or not at all; on the disk when this gives true. Where it
/// gives false they are where they were.
bool exchangeFolders(const QString& first, const QString& second);

/// The former program gets its place back; the journal says from then on that the newer one was rejected. False: that
/// did not work, and the newer one still stands there.
bool bringFormerBack(const QString& rootPath, const WorkFolder& folder, FolderJournal journal);

/// The newer program has proved itself. What the user put into the former one's folder is kept, beside the program's
/// folder and named after both; then nothing leads back any more. False: it is still there, but where the disk takes
/// that, the journal says that it no longer leads back.
bool confirmNewer(const QString& rootPath, const WorkFolder& folder, const FolderJournal& journal);

/// Moves what the user put into the rejected program's folder beside the program's own, so that the rest may go. False:
/// that did not work.
bool keepOfRejected(const QString& rootPath, const WorkFolder& folder, const FolderJournal& journal);

/// Whether the former program is there to come back.
bool isFormerThere(const WorkFolder& folder, const FolderJournal& journal);

/// Whether there are files in the folder of a program that do not belong to it.
bool hasForeignFiles(const QString& folder);

} // namespace ambrelle
