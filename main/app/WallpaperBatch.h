// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Wallpaper.h"

namespace ambrelle {

/// Writes the wallpapers of the skins into `folder`, which is made when missing, as "<skin>.png" of the size that the
/// environment variables WIDTH and HEIGHT name, and tells each file and the seconds it took. Gives the exit status: 0,
/// or 1 after a sentence on standard error.
int renderWallpapers(const Wallpaper& wallpaper, const QString& folder, const QList<Skin>& skins);

} // namespace ambrelle
