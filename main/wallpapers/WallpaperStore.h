// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/ImageDiskCache.h"
#include "wallpapers/Wallpaper.h"

#include <QMap>
#include <QObject>
#include <QSet>
#include <QThreadPool>

#include <functional>

namespace ambrelle {

/// Thumbnails of the skins' wallpapers: each is made once, in the background, and kept. Main thread only.
class WallpaperStore : public QObject {
    Q_OBJECT
public:
    static constexpr QSize pixels{1152, 720};
    static constexpr Skin samplePhoto = Skin::polar; ///< whose wallpaper photo widgets show before they have a folder

    WallpaperStore(Wallpaper wallpaper, ImageDiskCache cache);
    ~WallpaperStore() override;

    /// The thumbnail, or null after starting to make it; `changed()` tells when it is there.
    QImage image(Skin skin);
    /// Calls `done` with the thumbnail: at once when it is there, else when it is made; callers in their order.
    void load(Skin skin, std::function<void(const QImage& image)> done);
    /// The thumbnail, made on this thread if need be.
    QImage imageNow(Skin skin);
    /// The thumbnail from the cache, or made and put there; nobody keeps it. Any thread may call this.
    static QImage picture(const Wallpaper& wallpaper, const ImageDiskCache& cache, Skin skin);

Q_SIGNALS:
    void changed(ambrelle::Skin skin); ///< its thumbnail is there now

private:
    using Caller = std::function<void(const QImage&)>;

    void finish(Skin skin, const QImage& image);

    Wallpaper m_wallpaper;
    ImageDiskCache m_cache;
    QMap<Skin, QImage> m_images;
    QMap<Skin, QList<Caller>> m_waiting;
    QSet<Skin> m_started;
    QThreadPool m_queue;
};

} // namespace ambrelle
