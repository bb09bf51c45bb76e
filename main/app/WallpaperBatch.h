// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Wallpaper.h"

namespace ambrelle {

/// Writes the wallpaper of every skin (or only `only`) into `folder`, which is made when missing, as "<skin>.png" of
/// the size that the environment variables WIDTH and HEIGHT name. Gives the exit status: 0, or 1 after a sentence on
/// standard error.
int renderWallpapers(const Wallpaper& wallpaper, const QString& folder, std::optional<Skin> only);

} // namespace ambrelle
