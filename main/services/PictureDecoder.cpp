// SPDX-License-Identifier: MIT

#include "services/PictureDecoder.h"

#include "services/PictureStructure.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace ambrelle::PictureDecoder {

namespace {

bool isTooMuch(const QByteArray& bytes, QSize size)
{
    const qint64 pixels = qint64{size.width()} * size.height();
    if (pixels <= mostWholePixels)
        return PictureStructure::passes(bytes) > mostPasses;
    return pixels > mostPixels || !PictureStructure::comesRowByRow(bytes);
}

/// What to decode a picture of that size at, so that it covers `shown`.
QSize decodedSize(QSize size, QSize shown)
{
    if (shown.isEmpty())
        return size;
    const QSize target = size.scaled(shown, Qt::KeepAspectRatioByExpanding).expandedTo({1, 1});
    return target.width() < size.width() && target.height() <= size.height() ? target : size;
}

QImage quicklyDrawn(QImage image)
{
    if (image.isNull())
        return image;
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return image;
}

} // namespace

QImage read(const QString& file, QSize shown)
{
    // Opening a pipe would wait for somebody to write into it.
    if (!QFileInfo(file).isFile())
        return {};
    QFile device(file);
    return device.open(QIODevice::ReadOnly) ? decode(device.read(mostBytes + 1), shown) : QImage();
}

QImage decode(const QByteArray& bytes, QSize shown)
{
    if (bytes.size() > mostBytes)
        return {};
    QBuffer device;
    device.setData(bytes);
    QImageReader reader(&device);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    // A format that does not tell its size beforehand cannot be held to a limit.
    if (size.isEmpty() || isTooMuch(bytes, size))
        return {};
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    if (const QSize target = decodedSize(size, turned ? shown.transposed() : shown); target != size)
        reader.setScaledSize(target);
    return quicklyDrawn(reader.read());
}

QImage covering(const QImage& picture, QSize shown)
{
    const QSize target = decodedSize(picture.size(), shown);
    return quicklyDrawn(
        target == picture.size() ? picture : picture.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace ambrelle::PictureDecoder
