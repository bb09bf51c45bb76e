// SPDX-License-Identifier: MIT

#include "app/WindowPictures.h"

#include "app/Hosts.h"
#include "drawing/Kept.h"
#include "foundation/FreeMemory.h"

#include <QPixmapCache>

namespace ambrelle {

namespace {

/// The picture of sample photos, which the cache usually has.
std::function<QImage()> samplePhoto(const Wallpaper& wallpaper, const ImageDiskCache& cache)
{
    return [wallpaper, cache] { return WallpaperStore::picture(wallpaper, cache, WallpaperStore::samplePhoto); };
}

} // namespace

WindowPictures::WindowPictures(const Wallpaper& wallpaper, const ImageDiskCache& cache, ThemeAccent& accents)
    : m_wallpapers(wallpaper, cache)
    , m_desktops({wallpaper, cache, accents, samplePhoto(wallpaper, cache), makeHeadlessMachine})
{
}

void WindowPictures::release()
{
    m_shelf.release();
    m_wallpapers.release();
    m_desktops.release();
    QPixmapCache::clear();
    forgetKept();
    giveBackFreeMemory();
}

} // namespace ambrelle
