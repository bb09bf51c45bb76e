// SPDX-License-Identifier: MIT

#include "foundation/PictureFile.h"

#include "foundation/Wording.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr qint64 mostBytes = 200'000'000;
constexpr qint64 mostPixels = 120'000'000;
constexpr int mostMegabytes = 500; // of memory, for that many pixels

QString faultOf(QImageReader& reader)
{
    const QFileInfo info(reader.fileName());
    if (!info.isFile())
        return Wording::tr("There is no picture “%1”.").arg(info.filePath());
    if (info.size() > mostBytes)
        return Wording::tr("The picture “%1” is too large a file.").arg(info.fileName());
    if (!reader.canRead())
        return Wording::tr("“%1” cannot be read as a picture.").arg(info.fileName());
    const QSize size = reader.size(); // invalid where the format tells it only with the pixels
    if (size.isValid() && static_cast<qint64>(size.width()) * size.height() > mostPixels)
        return Wording::tr("The picture “%1” has too many pixels.").arg(info.fileName());
    return {};
}

QSize sizeFilling(const QSize& target, const QSize& picture)
{
    return picture.scaled(target, Qt::KeepAspectRatioByExpanding).expandedTo(target);
}

QImage cutInTheMiddle(const QImage& image, const QSize& size)
{
    const QSize rest = image.size() - size;
    return image.copy(QRect({rest.width() / 2, rest.height() / 2}, size));
}

} // namespace

QString PictureFile::fault(const QString& file)
{
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    return faultOf(reader);
}

PictureFile::Decoded PictureFile::filling(const QString& file, const QSize& size)
{
    // A limit of the whole process: it only ever rises, and to the same value.
    QImageReader::setAllocationLimit(std::max(QImageReader::allocationLimit(), mostMegabytes));
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (const QString fault = faultOf(reader); !fault.isEmpty())
        return {.error = fault};
    QImage image = reader.read();
    if (image.isNull())
        return {.error = Wording::tr("“%1” cannot be read as a picture: %2.")
                             .arg(QFileInfo(file).fileName(), reader.errorString())};
    if (image.size() != size) {
        const QSize scaled = sizeFilling(size, image.size());
        image = cutInTheMiddle(image.scaled(scaled, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), size);
    }
    return {.image = image.convertToFormat(QImage::Format_RGB32)};
}

} // namespace ambrelle
