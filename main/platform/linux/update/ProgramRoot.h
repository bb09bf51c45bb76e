// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

#include <sys/types.h>

namespace ambrelle {

/// A folder of a program's own: `bin`, `lib` and `share`, with a list of the files that belong to it. A program that
/// was copied among others, as below /usr/local, has no such folder.
struct ProgramRoot {
    QString path; ///< absolute
    dev_t device = 0; ///< which folder that was when it was looked at
    ino_t number = 0;

    bool operator==(const ProgramRoot&) const = default;

    /// Of the program file at `program`. None: it does not stand in a folder of its own.
    static std::optional<ProgramRoot> of(const QString& program);
    /// The path alone, whatever is there; empty when `program` is not in a folder `bin`.
    static QString pathOf(const QString& program);

    QString parent() const;
    QString name() const;
    QString program() const; ///< the file that starts it
    QString helper() const; ///< the file that checks and unpacks archives
    /// Where a newer program is prepared, and the former one waits: beside the folder, so that they can change places.
    QString workFolder() const { return workFolderOf(path); }
    static QString workFolderOf(const QString& rootPath);
    /// Whether the same folder still stands there.
    bool isUnchanged() const;
};

/// Whether the folder holds a program that can update itself and nothing beside it, so that another folder can take its
/// place, and it the place of another.
bool isReplaceable(const QString& folder);
/// What the information file of a program says; none where it cannot be understood.
std::optional<QJsonObject> informationOf(const QString& folder);
QString versionOf(const QString& folder); ///< as it says; empty where it does not
/// Whether the folder has the program file and the information file of a whole program.
bool holdsProgram(const QString& folder);
/// The paths of a program's parts below its folder.
QString programFile(const QString& folder);
QString informationFile(const QString& folder);
QString fileList(const QString& folder);

} // namespace ambrelle
