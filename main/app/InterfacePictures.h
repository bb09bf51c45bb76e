// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QImage>
#include <QString>

namespace ambrelle {

class Wallpaper;

/// Writes the desktop of each of the skins as "preset-<skin>.png", every tab of the main window as "ui-<tab>.png" and
/// its saved themes as "ui-mythemes.png" into `folder`, which is made when missing. The window is light and nowhere to
/// be seen, and shows the desktop of the first of the skins, with sample data; `photo` stands for photos and artwork.
/// Needs the application object. Gives the exit status: 0, or 1 after a sentence on standard error.
int renderInterface(const QString& folder, const QList<Skin>& skins, const Wallpaper& wallpaper, const QImage& photo);

} // namespace ambrelle
