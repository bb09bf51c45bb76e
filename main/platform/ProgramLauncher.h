// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// Opens programs, settings panels and folders of the user.
class ProgramLauncher {
public:
    virtual ~ProgramLauncher() = default;

    /// Whether a program of that name is there and meant for the running desktop. Its name is that of its desktop
    /// entry, without the suffix.
    virtual bool has(const QString& program) const = 0;
    /// Opens it as if it was chosen from the desktop's menu.
    virtual void open(const QString& program) = 0;
    /// Shows a folder, by its path, in the file manager; one that is not there is made before. Empty on success, else a
    /// sentence why nothing opens.
    virtual QString openFolder(const QString& folder) = 0;
};

} // namespace ambrelle
