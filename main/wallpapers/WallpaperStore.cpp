// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperStore.h"

#include "foundation/BackgroundThread.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int concurrentPictures = 3;

/// What callers get instead of waiting forever.
QImage blank()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::black);
    return image;
}

} // namespace

WallpaperStore::WallpaperStore(Wallpaper wallpaper, ImageDiskCache cache)
    : m_wallpaper(std::move(wallpaper))
    , m_cache(std::move(cache))
{
    m_queue.setMaxThreadCount(concurrentPictures);
}

WallpaperStore::~WallpaperStore()
{
    m_queue.clear(); // what has not begun is not wanted any more
}

QImage WallpaperStore::image(Skin skin)
{
    return ImageDiskCache::unpacked(packed(skin));
}

QByteArray WallpaperStore::packed(Skin skin)
{
    start(skin);
    return m_images.value(skin).jpeg;
}

void WallpaperStore::load(Skin skin, std::function<void(const QImage&)> done)
{
    if (m_images.contains(skin))
        return done(image(skin));
    m_waiting[skin].append(std::move(done));
    start(skin);
}

QImage WallpaperStore::imageNow(Skin skin)
{
    if (!m_images.contains(skin)) {
        m_pending.removeOne(skin);
        m_started.insert(skin);
        finish(skin, make(m_wallpaper, m_cache, skin));
    }
    return image(skin);
}

void WallpaperStore::drop(Skin skin)
{
    if (!m_waiting.contains(skin) && m_pending.removeOne(skin))
        m_started.remove(skin);
}

void WallpaperStore::release()
{
    for (const Skin skin : m_images.keys()) {
        if (!m_images[skin].isOnDisk && !m_failed.contains(skin))
            continue;
        m_images.remove(skin);
        m_started.remove(skin);
    }
    m_failed.clear();
}

void WallpaperStore::start(Skin skin)
{
    if (m_started.contains(skin))
        return;
    m_started.insert(skin);
    m_pending.append(skin);
    startNext();
}

void WallpaperStore::startNext()
{
    while (m_running < concurrentPictures && !m_pending.isEmpty()) {
        const Skin skin = m_pending.takeFirst();
        ++m_running;
        m_queue.start([this, wallpaper = m_wallpaper, cache = m_cache, skin] {
            yieldToOthers();
            const auto done = [this, skin, made = make(wallpaper, cache, skin)] {
                --m_running;
                startNext();
                finish(skin, made);
            };
            // Never within start(), even when this thread was the faster one.
            QMetaObject::invokeMethod(this, done, Qt::QueuedConnection);
        });
    }
}

WallpaperStore::Made WallpaperStore::make(const Wallpaper& wallpaper, const ImageDiskCache& cache, Skin skin)
{
    const QString url = cache.url(u"wallpaper-"_s + rawValue(skin));
    if (const PackedPicture kept = ImageDiskCache::readPacked(url, pixels); !kept.jpeg.isEmpty())
        return {kept};
    const QByteArray painted = ImageDiskCache::packed(wallpaper.picture(skin, pixels));
    if (painted.isEmpty())
        return {{ImageDiskCache::packed(blank())}, true};
    return {ImageDiskCache::writePacked(painted, url)};
}

QImage WallpaperStore::picture(const Wallpaper& wallpaper, const ImageDiskCache& cache, Skin skin)
{
    return ImageDiskCache::unpacked(make(wallpaper, cache, skin).packed.jpeg);
}

void WallpaperStore::finish(Skin skin, const Made& made)
{
    if (m_images.contains(skin))
        return; // made on this thread while it was waited for
    m_images.insert(skin, made.packed);
    if (made.hasFailed)
        m_failed.insert(skin);
    if (const QList<Caller> callers = m_waiting.take(skin); !callers.isEmpty()) {
        const QImage decoded = image(skin);
        for (const Caller& caller : callers)
            caller(decoded);
    }
    Q_EMIT changed(skin);
}

} // namespace ambrelle
