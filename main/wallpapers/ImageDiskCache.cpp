// SPDX-License-Identifier: MIT

#include "wallpapers/ImageDiskCache.h"

#include "foundation/PlainFile.h"
#include "foundation/WholeFile.h"
#include "wallpapers/Wallpaper.h"

#include <QBuffer>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int quality = 88; // percent
constexpr qint64 mostBytes = 16 * 1024 * 1024; // many times what the program writes

} // namespace

ImageDiskCache::ImageDiskCache(QString folder, int build)
    : m_folder(std::move(folder))
    , m_build(build)
{
}

QString ImageDiskCache::url(const QString& key) const
{
    return u"%1/%2-b%3-r%4.jpg"_s.arg(m_folder, key).arg(m_build).arg(Wallpaper::revision);
}

QImage ImageDiskCache::read(const QString& url)
{
    return unpacked(readPlainFile(url, mostBytes).value_or(QByteArray()));
}

void ImageDiskCache::write(const QImage& image, const QString& url)
{
    writePacked(packed(image), url);
}

QByteArray ImageDiskCache::packed(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "JPEG", quality) ? bytes : QByteArray();
}

QImage ImageDiskCache::unpacked(const QByteArray& jpeg)
{
    QImage image = QImage::fromData(jpeg, "JPEG");
    if (!image.isNull())
        image.convertTo(QImage::Format_RGB32);
    return image;
}

PackedPicture ImageDiskCache::readPacked(const QString& url, QSize pixels)
{
    const QByteArray bytes = readPlainFile(url, mostBytes).value_or(QByteArray());
    return unpacked(bytes).size() == pixels ? PackedPicture{bytes, true} : PackedPicture{};
}

PackedPicture ImageDiskCache::writePacked(const QByteArray& jpeg, const QString& url)
{
    return {jpeg, !jpeg.isEmpty() && writeWhole(url, jpeg).isEmpty()};
}

} // namespace ambrelle
