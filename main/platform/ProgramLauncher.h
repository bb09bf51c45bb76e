// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

namespace ambrelle {

/// Opens programs and settings panels that the user has installed, and folders.
class ProgramLauncher {
public:
    /// Gets one sentence why it did not work, empty when it did.
    using Done = std::function<void(const QString& error)>;

    virtual ~ProgramLauncher() = default;

    /// Whether a program of that name is there and meant for the running desktop. Its name is that of its desktop
    /// entry, without the suffix.
    virtual bool has(const QString& program) const = 0;
    /// Opens it as if it was chosen from the desktop's menu.
    virtual void open(const QString& program) = 0;
    /// Shows a folder, by its path, in the file manager; one that is not there is made before. Empty on success, else a
    /// sentence why nothing opens.
    virtual QString openFolder(const QString& folder) = 0;
    /// Opens the folder that the file (an absolute path) is in, with the file selected where the file manager can do
    /// that. `done` is called later or never.
    virtual void showInFolder(const QString& file, Done done) = 0;
};

} // namespace ambrelle
