// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/WallpaperStore.h"
#include "window/cards/PictureShelf.h"
#include "window/cards/StorePictures.h"

namespace ambrelle {

/// The pictures of the main window, from the disk and from the painter to the card.
class WindowPictures {
public:
    WindowPictures(const Wallpaper& wallpaper, const ImageDiskCache& cache, ThemeAccent& accents);

    WallpaperStore& wallpapers() { return m_wallpapers; }
    DesktopSnapshots& desktops() { return m_desktops; }
    PictureShelf& shelf() { return m_shelf; }
    /// Nobody looks any more: what can be had again goes from memory. What the disk could not keep stays, packed.
    void release();

private:
    WallpaperStore m_wallpapers;
    DesktopSnapshots m_desktops;
    StorePictures m_loader{m_wallpapers, m_desktops};
    PictureShelf m_shelf{m_loader};
};

} // namespace ambrelle
