// SPDX-License-Identifier: MIT

#include "services/PictureDecoder.h"

#include "foundation/PlainFile.h"
#include "services/PictureStructure.h"

#include <QBuffer>
#include <QImageReader>
#include <QLibrary>

#include <mutex>

namespace ambrelle::PictureDecoder {

using namespace Qt::StringLiterals;

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

/// The format of pictures on the web that the bytes begin like; empty: none of them.
QByteArray webFormat(const QByteArray& bytes)
{
    if (bytes.startsWith("\xFF\xD8\xFF"))
        return "jpeg";
    if (bytes.startsWith("\x89PNG\r\n\x1A\n"))
        return "png";
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a"))
        return "gif";
    return bytes.startsWith("RIFF") && bytes.sliced(std::min<qsizetype>(8, bytes.size())).startsWith("WEBP")
        ? "webp"
        : QByteArray();
}

/// The library writes to standard error unless it is told not to, and the toolkit does not tell it.
void silenceTiff()
{
    using SetHandler = void* (*)(void* handler);
    constexpr int interfaceVersion = 6; // of the library's binary interface
    QLibrary library(u"tiff"_s, interfaceVersion);
    for (const char* name : {"TIFFSetWarningHandler", "TIFFSetErrorHandler"}) {
        if (const auto set = reinterpret_cast<SetHandler>(library.resolve(name)))
            set(nullptr);
    }
}

bool isTiff(const QByteArray& bytes)
{
    return bytes.startsWith("II") || bytes.startsWith("MM");
}

void silenceIfTiff(const QByteArray& bytes)
{
    static std::once_flag once;
    if (isTiff(bytes))
        std::call_once(once, silenceTiff);
}

/// Damaged files lead beyond their end, of which a plain buffer would write to standard error.
class QuietBuffer final : public QBuffer {
public:
    explicit QuietBuffer(const QByteArray& bytes) { setData(bytes); }
    bool seek(qint64 position) override { return position <= size() && QBuffer::seek(position); }
};

/// What the reader makes of its device, which holds those bytes.
QImage picture(QImageReader& reader, const QByteArray& bytes, QSize shown)
{
    if (PictureStructure::isDamagedPng(bytes))
        return {};
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    // A format that does not tell its size beforehand cannot be held to a limit.
    if (size.isEmpty() || isTooMuch(bytes, size))
        return {};
    const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
    if (const QSize target = decodedSize(size, turned ? shown.transposed() : shown); target != size)
        reader.setScaledSize(target);
    return quicklyDrawn(reader.read());
}

} // namespace

bool isPicture(const QString& file)
{
    const std::unique_ptr<QFile> plain = openPlainFile(file);
    if (!plain)
        return false;
    silenceIfTiff(plain->peek(2));
    QImageReader reader(plain.get());
    reader.setDecideFormatFromContent(true);
    return reader.canRead() && !reader.size().isEmpty();
}

QImage read(const QString& file, QSize shown)
{
    const std::optional<QByteArray> bytes = readPlainFile(file, mostBytes);
    if (!bytes)
        return {};
    silenceIfTiff(*bytes);
    QuietBuffer device(*bytes);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    return picture(reader, *bytes, shown);
}

QImage decode(const QByteArray& bytes, QSize shown)
{
    const QByteArray format = webFormat(bytes);
    if (format.isEmpty() || bytes.size() > mostBytes)
        return {};
    QuietBuffer device(bytes);
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false); // or others are asked when this one fails
    return picture(reader, bytes, shown);
}

QImage covering(const QImage& picture, QSize shown)
{
    const QSize target = decodedSize(picture.size(), shown);
    return quicklyDrawn(
        target == picture.size() ? picture : picture.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace ambrelle::PictureDecoder
