// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <utility>

namespace ambrelle {

/// What a desktop's settings come to for windows, besides light and dark.
struct DesktopLook {
    bool contrast = false; ///< higher than usual
    bool reducesMotion = false;
    double textScale = 1; ///< 1 to 1.5, beyond what the resolution of the screen asks for

    bool operator==(const DesktopLook&) const = default;
};

/// The settings by section and key, as a portal names them; what is missing, or of a kind it cannot be, counts for
/// nothing.
using DesktopSettings = QHash<std::pair<QString, QString>, QVariant>;

/// Where the settings that matter are.
QStringList desktopLookSections();

/// The desktop's text scaling factor has an effect on the screens' resolution, which the toolkit follows itself, unless
/// it `isWayland`.
DesktopLook desktopLook(const DesktopSettings& settings, bool isWayland);

/// The settings of a list as the settings tool prints it: a line of section, key and value for each.
DesktopSettings listedSettings(const QString& list);

} // namespace ambrelle
