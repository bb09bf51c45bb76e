// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// What the information file beside the program says of it.
struct Information {
    QString identifier;
    QString version;
    int build = 0;
    QString forecastBase; ///< addresses of the weather's endpoints; empty: the usual ones
    QString geocodingBase;
    QString updateFeed; ///< where newer releases are told of; empty: this copy is updated by others
    QString download; ///< address of a page or file where others can get the program; empty: there is none

    /// Of the running program; the version alone where the file is missing. The environment variables
    /// AMBRELLE_FORECAST_BASE and AMBRELLE_GEOCODING_BASE stand above the file's addresses.
    static Information read();
};

/// Whether the program file stands where only the system's packages put programs.
bool isOfSystem(const QString& program);

/// A file of the program's own data, from the build folder or the installation; empty when it is in neither.
QString dataFile(const QString& name);
/// What is in it; empty when it cannot be read.
QString dataText(const QString& name);

} // namespace ambrelle
