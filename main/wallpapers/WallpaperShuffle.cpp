// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperShuffle.h"

#include "wallpapers/DesktopWallpaper.h"

#include <QFileInfo>

namespace ambrelle {

namespace {

struct Applier {
    DesktopWallpaper& wallpaper;

    void operator()(Skin skin) const { wallpaper.apply(skin); }
    void operator()(const WallpaperShuffle::Extra& extra) const { wallpaper.applyExtra(extra.path); }
    void operator()(const WallpaperShuffle::Custom& custom) const { wallpaper.apply(custom.path); }
};

bool isReadableFile(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() && info.isReadable();
}

} // namespace

QList<WallpaperShuffle::Candidate> WallpaperShuffle::candidates(
    const DesktopWallpaper& wallpaper, const QStringList& customWallpapers)
{
    const QString current = wallpaper.currentURL();
    QList<Candidate> list;
    for (const Skin skin : allCases<Skin>()) {
        if (skin != wallpaper.currentSkin())
            list.append(skin);
    }
    for (const QString& path : wallpaper.extras()) {
        if (path != current && wallpaper.installedURL(path) != current)
            list.append(Extra{path});
    }
    for (const QString& path : customWallpapers) {
        if (path != current && isReadableFile(path) && !list.contains(Candidate(Custom{path})))
            list.append(Custom{path});
    }
    return list;
}

void WallpaperShuffle::shuffle(DesktopWallpaper& wallpaper, const QStringList& customWallpapers, const Choice& choose)
{
    wallpaper.refresh([&wallpaper, customWallpapers, choose] {
        const QList<Candidate> list = candidates(wallpaper, customWallpapers);
        if (!list.isEmpty())
            std::visit(Applier{wallpaper}, list.at(choose(list.size())));
    });
}

} // namespace ambrelle
