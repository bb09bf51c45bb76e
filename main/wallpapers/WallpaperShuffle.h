// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Choice.h"
#include "model/Skin.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <variant>

namespace ambrelle {

class DesktopWallpaper;

/// Another wallpaper than the one on the desktop, by chance.
namespace WallpaperShuffle {

struct Extra {
    QString path; ///< of the shipped picture

    bool operator==(const Extra&) const = default;
};

struct Custom {
    QString path;

    bool operator==(const Custom&) const = default;
};

using Candidate = std::variant<Skin, Extra, Custom>;

/// Everything that could take the place of what is known to be on the desktop: the skins' wallpapers, the shipped
/// pictures, and those of the user's own that can be read.
QList<Candidate> candidates(const DesktopWallpaper& wallpaper, const QStringList& customWallpapers);

/// Asks the desktop what it shows and puts one of the candidates there; does nothing when there is none.
void shuffle(DesktopWallpaper& wallpaper, const QStringList& customWallpapers, const Choice& choose = chooseAtRandom);

} // namespace WallpaperShuffle

} // namespace ambrelle
