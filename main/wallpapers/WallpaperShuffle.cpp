// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperShuffle.h"

#include "wallpapers/DesktopWallpaper.h"

#include <QFileInfo>

#include <utility>

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

WallpaperShuffle::WallpaperShuffle(DesktopWallpaper& wallpaper, Look look)
    : m_wallpaper(wallpaper)
    , m_look(std::move(look))
{
}

WallpaperShuffle::Pictures WallpaperShuffle::look(const QString& extrasFolder, const QStringList& own)
{
    Pictures pictures{DesktopWallpaper::extrasIn(extrasFolder), own};
    pictures.own.removeIf([](const QString& path) { return !isReadableFile(path); });
    pictures.own.removeDuplicates();
    return pictures;
}

QList<WallpaperShuffle::Candidate> WallpaperShuffle::candidates(
    const DesktopWallpaper& wallpaper, const Pictures& pictures)
{
    const QString current = wallpaper.currentURL();
    QList<Candidate> list;
    for (const Skin skin : allCases<Skin>()) {
        if (skin != wallpaper.currentSkin())
            list.append(skin);
    }
    for (const QString& path : pictures.extras) {
        if (path != current && wallpaper.installedURL(path) != current)
            list.append(Extra{path});
    }
    for (const QString& path : pictures.own) {
        if (path != current)
            list.append(Custom{path});
    }
    return list;
}

void WallpaperShuffle::shuffle(const QStringList& own, const Choice& choose)
{
    if (std::exchange(m_isLooking, true))
        return;
    const auto found = [this, choose](const Pictures& pictures) {
        m_isLooking = false;
        m_wallpaper.refresh([&wallpaper = m_wallpaper, pictures, choose] {
            const QList<Candidate> list = candidates(wallpaper, pictures);
            if (!list.isEmpty())
                std::visit(Applier{wallpaper}, list.at(choose(list.size())));
        });
    };
    m_worker.run([look = m_look, folder = m_wallpaper.extrasFolder(), own] { return look(folder, own); }, found);
}

} // namespace ambrelle
