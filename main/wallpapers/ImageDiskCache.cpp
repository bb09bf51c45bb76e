// SPDX-License-Identifier: MIT

#include "wallpapers/ImageDiskCache.h"

#include "foundation/WholeFile.h"
#include "wallpapers/Wallpaper.h"

#include <QBuffer>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int quality = 88; // percent

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
    return QImage(url, "JPEG");
}

void ImageDiskCache::write(const QImage& image, const QString& url)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "JPEG", quality))
        writeWhole(url, bytes);
}

} // namespace ambrelle
