// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// Opens programs and settings panels that the user has installed.
class ProgramLauncher {
public:
    virtual ~ProgramLauncher() = default;

    /// Whether a program of that name is there and meant for the running desktop. Its name is that of its desktop
    /// entry, without the suffix.
    virtual bool has(const QString& program) const = 0;
    /// Opens it as if it was chosen from the desktop's menu.
    virtual void open(const QString& program) = 0;
};

} // namespace ambrelle
