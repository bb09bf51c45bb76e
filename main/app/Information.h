#pragma once

#include <QString>

namespace ambrelle {

/// What the information file beside the program says of it.
struct Information {
    QString identifier;
    QString version;
    int build = 0;

    /// Of the running program; the version alone where the file is missing.
    static Information read();
};

/// A file of the program's own data, from the build folder or the installation; empty when it is in neither.
QString dataFile(const QString& name);

} // namespace ambrelle
