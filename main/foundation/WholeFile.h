// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace ambrelle {

/// Who may read a file besides its owner.
enum class Readers { owner, everyone };

/// The nearest folder above `path` that is there.
QString standingFolder(const QString& path);

/// Sees to it that a power cut does not take the folders between `standing` and the file at `path`, made since
/// standingFolder() told it; waits for the disk.
void flushMadeFolders(const QString& path, const QString& standing);

/// Puts `bytes` into the file at `path`, in place of what it held: whole or not at all, and on the disk when this
/// returns. The folder is made when missing, and no other file in it is touched. Gives the reason of a failure as the
/// system words it; empty on success. A toolkit class with the same purpose takes a file cut short by a full disk for
/// whole.
QString writeWhole(const QString& path, const QByteArray& bytes, Readers readers = Readers::everyone);

} // namespace ambrelle
