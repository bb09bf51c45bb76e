// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace ambrelle {

/// Who may read a file besides its owner.
enum class Readers { owner, everyone };

/// Puts `bytes` into the file at `path`, in place of what it held: whole or not at all, and on the disk when this
/// returns. The folder is made when missing, and no other file in it is touched. Gives the reason of a failure as the
/// system words it; empty on success. A toolkit class with the same purpose takes a file cut short by a full disk for
/// whole.
QString writeWhole(const QString& path, const QByteArray& bytes, Readers readers = Readers::everyone);

} // namespace ambrelle
