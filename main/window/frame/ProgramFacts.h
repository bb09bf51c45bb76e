// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <functional>

namespace ambrelle {

/// What the program tells of itself.
struct ProgramFacts {
    QString version;
    int build = 0;
    bool isOfSystem = false; ///< installed by the system's packages, which keep it up to date
    QString wallpapers; ///< folders, by their paths; they need not exist
    QString settings;
    QString previews;
    std::function<QString()> licence; ///< its text; empty where it cannot be read
    std::function<QStringList()> fonts; ///< the packages that they come from, by name
    std::function<bool()> hasWindowSystems{}; ///< more than one that could show windows here; empty: no
    bool isWindowSystemForced = false; ///< by the environment: the setting does not count
};

} // namespace ambrelle
