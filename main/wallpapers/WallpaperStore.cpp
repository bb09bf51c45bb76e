// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperStore.h"

#include "foundation/BackgroundThread.h"

#include <QtConcurrentRun>

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
    if (m_images.contains(skin))
        return m_images.value(skin);
    if (!m_started.contains(skin))
        load(skin, [](const QImage&) {});
    return {};
}

void WallpaperStore::load(Skin skin, std::function<void(const QImage&)> done)
{
    if (m_images.contains(skin))
        return done(m_images.value(skin));
    m_waiting[skin].append(std::move(done));
    if (m_started.contains(skin))
        return;
    m_started.insert(skin);
    const auto work = [wallpaper = m_wallpaper, cache = m_cache, skin] {
        yieldToOthers();
        return picture(wallpaper, cache, skin);
    };
    QtConcurrent::run(&m_queue, work).then(this, [this, skin](const QImage& image) { finish(skin, image); });
}

QImage WallpaperStore::imageNow(Skin skin)
{
    if (!m_images.contains(skin)) {
        m_started.insert(skin);
        finish(skin, picture(m_wallpaper, m_cache, skin));
    }
    return m_images.value(skin);
}

QImage WallpaperStore::picture(const Wallpaper& wallpaper, const ImageDiskCache& cache, Skin skin)
{
    const QString url = cache.url(u"wallpaper-"_s + rawValue(skin));
    if (QImage image = ImageDiskCache::read(url); image.size() == pixels)
        return image;
    const QImage painted = wallpaper.picture(skin, pixels);
    if (painted.isNull())
        return blank();
    ImageDiskCache::write(painted, url);
    return painted.convertToFormat(QImage::Format_RGB32);
}

void WallpaperStore::finish(Skin skin, const QImage& image)
{
    if (m_images.contains(skin))
        return; // made on this thread while it was waited for
    m_images.insert(skin, image);
    for (const Caller& caller : m_waiting.take(skin))
        caller(image);
    Q_EMIT changed(skin);
}

} // namespace ambrelle
