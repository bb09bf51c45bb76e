// SPDX-License-Identifier: MIT

#include "window/cards/StorePictures.h"

#include "foundation/BackgroundThread.h"
#include "services/PictureDecoder.h"
#include "wallpapers/WallpaperStore.h"

#include <QPainter>

#include <algorithm>

namespace ambrelle {

namespace {

/// The picture scaled to fill the order and cut in its middle, with round corners.
QImage asOrdered(const QImage& picture, const PictureOrder& order)
{
    if (picture.isNull())
        return picture;
    const QSize size = picture.size().scaled(order.pixels, Qt::KeepAspectRatioByExpanding).expandedTo(order.pixels);
    const QImage filling =
        size == picture.size() ? picture : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QSize rest = size - order.pixels;
    QImage image(order.pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(filling);
    painter.setBrushOrigin(-rest.width() / 2, -rest.height() / 2);
    painter.drawRoundedRect(image.rect(), order.corner, order.corner);
    return image;
}

} // namespace

void StorePictures::Queue::add(const PictureOrder& order, Make make, Done done)
{
    m_tasks.append({order, std::move(make), std::move(done)});
    startNext();
}

bool StorePictures::Queue::drop(const PictureOrder& order)
{
    return m_tasks.removeIf([&](const Task& task) { return task.order == order; }) > 0;
}

void StorePictures::Queue::startNext()
{
    if (m_isWorking || m_tasks.isEmpty())
        return;
    m_isWorking = true;
    Task task = m_tasks.takeFirst();
    const auto work = [make = std::move(task.make)] {
        yieldToOthers();
        return make();
    };
    m_worker.run(work, [this, done = std::move(task.done)](const QImage& image) {
        m_isWorking = false;
        startNext();
        done(image);
    });
}

StorePictures::StorePictures(WallpaperStore& wallpapers, DesktopSnapshots& desktops)
    : m_wallpapers(wallpapers)
    , m_desktops(desktops)
{
    connect(&wallpapers, &WallpaperStore::changed, this,
        [this](Skin skin) { storeChanged(PictureKey::Source::wallpaper, rawValue(skin)); });
    connect(&desktops, &DesktopSnapshots::changed, this,
        [this](const QString& key) { storeChanged(PictureKey::Source::desktop, key); });
}

StorePictures::~StorePictures() = default;

void StorePictures::load(const PictureOrder& order, Done done)
{
    switch (order.key.source) {
    case PictureKey::Source::wallpaper: return loadWallpaper(order, std::move(done));
    case PictureKey::Source::desktop: return loadDesktop(order, std::move(done));
    case PictureKey::Source::file:
        m_reading.add(
            order, [order] { return asOrdered(PictureDecoder::read(order.key.name, order.pixels), order); },
            std::move(done));
    }
}

bool StorePictures::drop(const PictureOrder& order)
{
    if (std::erase_if(m_drawings, [&](const auto& drawing) { return drawing.second.first == order; }) > 0)
        return true;
    if (m_waiting.removeIf([&](const Waiting& each) { return each.order == order; }) == 0)
        return m_decoding.drop(order) || m_reading.drop(order);
    if (isAwaited(order.key))
        return true;
    if (order.key.source == PictureKey::Source::desktop)
        m_desktops.drop(order.key.name);
    else if (const std::optional<Skin> skin = parse<Skin>(order.key.name))
        m_wallpapers.drop(*skin);
    return true;
}

void StorePictures::loadWallpaper(const PictureOrder& order, Done done)
{
    const std::optional<Skin> skin = parse<Skin>(order.key.name);
    const QByteArray jpeg = skin ? m_wallpapers.packed(*skin) : QByteArray();
    if (skin && jpeg.isEmpty())
        m_waiting.append({order, std::move(done)});
    else
        decode(order, jpeg, std::move(done));
}

void StorePictures::loadDesktop(const PictureOrder& order, Done done)
{
    if (!order.key.wish)
        return decode(order, {}, std::move(done));
    const QSize miniature = DesktopSnapshots::pixels;
    if (order.pixels.width() > miniature.width() || order.pixels.height() > miniature.height())
        return drawDesktop(order, done);
    const QByteArray jpeg = m_desktops.packed(*order.key.wish);
    if (jpeg.isEmpty() && !m_desktops.hasFailed(order.key.name))
        m_waiting.append({order, std::move(done)});
    else
        decode(order, jpeg, std::move(done));
}

void StorePictures::drawDesktop(const PictureOrder& order, const Done& done)
{
    const quint64 number = ++m_lastDrawing;
    m_drawings[number] = {
        order, m_desktops.draw(*order.key.wish, order.pixels, [this, number, order, done](const QImage& image) {
            m_drawings.erase(number);
            m_decoding.add(
                order, [image, order] { return asOrdered(image, order); }, done);
        })};
}

void StorePictures::decode(const PictureOrder& order, const QByteArray& jpeg, Done done)
{
    const bool failed = hasFailed(order.key);
    const auto make = [jpeg, order, failed] {
        return failed ? QImage() : asOrdered(PictureDecoder::decode(jpeg, order.pixels), order);
    };
    m_decoding.add(order, make, std::move(done));
}

void StorePictures::storeChanged(PictureKey::Source source, const QString& name)
{
    const auto isMeant = [&](const Waiting& each) {
        return each.order.key.source == source && each.order.key.name == name;
    };
    QList<Waiting> served;
    std::ranges::copy_if(m_waiting, std::back_inserter(served), isMeant);
    m_waiting.removeIf(isMeant);
    for (const Waiting& each : served)
        load(each.order, each.done);
}

bool StorePictures::hasFailed(const PictureKey& key) const
{
    if (key.source == PictureKey::Source::desktop)
        return m_desktops.hasFailed(key.name);
    const std::optional<Skin> skin = parse<Skin>(key.name);
    return !skin || m_wallpapers.hasFailed(*skin);
}

bool StorePictures::isAwaited(const PictureKey& key) const
{
    return std::ranges::any_of(m_waiting, [&](const Waiting& each) { return each.order.key == key; });
}

} // namespace ambrelle
