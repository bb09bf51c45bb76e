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

/// Thumbnails of the skins' wallpapers: each is made once, in the background, and kept packed. Main thread only.
class WallpaperStore : public QObject {
    Q_OBJECT
public:
    static constexpr QSize pixels{1152, 720};
    static constexpr Skin samplePhoto = Skin::polar; ///< whose wallpaper photo widgets show before they have a folder

    WallpaperStore(Wallpaper wallpaper, ImageDiskCache cache);
    ~WallpaperStore() override;

    /// The thumbnail, or null after starting to make it; `changed()` tells when it is there. It is decoded each time.
    QImage image(Skin skin);
    /// The same as a JPEG file; empty after starting to make it.
    QByteArray packed(Skin skin);
    /// Calls `done` with the thumbnail: at once when it is there, else when it is made; callers in their order.
    void load(Skin skin, std::function<void(const QImage& image)> done);
    /// The thumbnail, made on this thread if need be.
    QImage imageNow(Skin skin);
    /// Nobody looks for it any more: unless it has begun, or a caller of load() waits, it is not made.
    void drop(Skin skin);
    /// Whether it could not be made; the picture is then a small blank one.
    bool hasFailed(Skin skin) const { return m_failed.contains(skin); }
    /// Lets go of pictures that are on the disk as well, and forgets failures.
    void release();

    /// The thumbnail from the cache, or made and put there; nobody keeps it. Any thread may call this.
    static QImage picture(const Wallpaper& wallpaper, const ImageDiskCache& cache, Skin skin);

Q_SIGNALS:
    void changed(ambrelle::Skin skin); ///< its thumbnail is there now

private:
    using Caller = std::function<void(const QImage&)>;

    /// Made on any thread.
    struct Made {
        PackedPicture packed;
        bool hasFailed = false;
    };

    static Made make(const Wallpaper& wallpaper, const ImageDiskCache& cache, Skin skin);
    void start(Skin skin);
    void startNext();
    void finish(Skin skin, const Made& made);

    Wallpaper m_wallpaper;
    ImageDiskCache m_cache;
    QMap<Skin, PackedPicture> m_images;
    QMap<Skin, QList<Caller>> m_waiting;
    QSet<Skin> m_started; // pending ones too
    QList<Skin> m_pending; // the oldest first
    QSet<Skin> m_failed;
    int m_running = 0;
    QThreadPool m_queue; // last, so that it goes first: its work comes back here
};

} // namespace ambrelle
