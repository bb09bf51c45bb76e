#include "services/PictureDecoder.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

namespace ambrelle::PictureDecoder {

namespace {

QImage readFrom(QIODevice& device, QSize shown)
{
    if (device.size() > mostBytes)
        return {};
    QImageReader reader(&device);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    // A format that does not tell its size beforehand cannot be held to a limit.
    if (size.isEmpty() || qint64{size.width()} * size.height() > mostPixels)
        return {};
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    const QSize target = size.scaled(turned ? shown.transposed() : shown, Qt::KeepAspectRatioByExpanding);
    if (target.width() < size.width())
        reader.setScaledSize(target.expandedTo({1, 1}));
    return reader.read();
}

} // namespace

QImage read(const QString& file, QSize shown)
{
    QFile device(file);
    return device.open(QIODevice::ReadOnly) ? readFrom(device, shown) : QImage();
}

QImage decode(const QByteArray& bytes, QSize shown)
{
    QBuffer device;
    device.setData(bytes);
    return device.open(QIODevice::ReadOnly) ? readFrom(device, shown) : QImage();
}

} // namespace ambrelle::PictureDecoder
