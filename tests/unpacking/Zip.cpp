// SPDX-License-Identifier: MIT

#include "unpacking/Zip.h"

#include <memory>

#include <libdeflate.h>

namespace ambrelle::test {

namespace {

constexpr quint32 wide = 0xffffffff; ///< the true size stands elsewhere
constexpr int sizesFollow = 8; ///< a flag

class Bytes : public QByteArray {
public:
    Bytes& number(quint64 value, int bytes)
    {
        for (int i = 0; i < bytes; ++i)
            append(static_cast<char>(value >> (8 * i)));
        return *this;
    }
    Bytes& text(const QByteArray& bytes)
    {
        append(bytes);
        return *this;
    }
};

quint64 sizeOf(const QByteArray& bytes)
{
    return static_cast<quint64>(bytes.size());
}

QByteArray deflated(const QByteArray& content)
{
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(1), &libdeflate_free_compressor);
    const auto size = static_cast<std::size_t>(content.size());
    const std::size_t most = libdeflate_deflate_compress_bound(compressor.get(), size);
    QByteArray packed(static_cast<qsizetype>(most), '\0');
    packed.resize(static_cast<qsizetype>(
        libdeflate_deflate_compress(compressor.get(), content.constData(), size, packed.data(), most)));
    return packed;
}

/// The headers of one item.
struct Headers {
    QByteArray local; ///< with the content
    QByteArray central;

    Headers(const ZipItem& item, quint64 offset)
    {
        const QByteArray packed = item.method == 8 ? deflated(item.content) : item.content;
        const quint32 sum = item.toldChecksum.value_or(
            libdeflate_crc32(0, item.content.constData(), static_cast<std::size_t>(item.content.size())));
        const quint64 told = item.toldBytes.value_or(static_cast<quint32>(item.content.size()));
        const QByteArray sizes = item.hasWideSizes ? QByteArray(Bytes().number(wide, 4).number(wide, 4))
                                                   : QByteArray(Bytes().number(sizeOf(packed), 4).number(told, 4));
        const QByteArray wideSizes = Bytes().number(item.toldWideBytes.value_or(told), 8).number(sizeOf(packed), 8);
        const QByteArray extra = item.hasWideSizes ? Bytes().number(1, 2).number(16, 2).text(wideSizes) : QByteArray();
        const auto common = [&](const QByteArray& checked) {
            return Bytes()
                .number(static_cast<quint64>(item.flags | (item.hasDescriptor ? sizesFollow : 0)), 2)
                .number(static_cast<quint64>(item.method), 2)
                .number(0x5c210000, 4) // a date
                .text(checked);
        };
        const QByteArray checked = Bytes().number(sum, 4).text(sizes);
        const QByteArray localName = item.localName.value_or(item.name);
        local = Bytes()
                    .number(0x04034b50, 4)
                    .number(20, 2)
                    .text(common(item.hasDescriptor ? QByteArray(12, '\0') : checked))
                    .number(sizeOf(localName), 2)
                    .number(sizeOf(extra), 2)
                    .text(localName + extra + packed);
        if (item.hasDescriptor)
            local += Bytes().number(0x08074b50, 4).text(checked);
        central = Bytes()
                      .number(0x02014b50, 4)
                      .number(20, 1)
                      .number(static_cast<quint64>(item.system), 1)
                      .number(20, 2)
                      .text(common(checked))
                      .number(sizeOf(item.name), 2)
                      .number(sizeOf(extra + item.centralExtra), 2)
                      .number(0, 6) // comment, disk, kind of text
                      .number(item.system == 3 ? item.mode << 16 : 0, 4)
                      .number(offset, 4)
                      .text(item.name + extra + item.centralExtra);
    }
};

} // namespace

ZipItem zipFolder(const QByteArray& name)
{
    return {.name = name, .mode = 0040755, .method = 0};
}

ZipItem zipLink(const QByteArray& name, const QByteArray& target)
{
    return {.name = name, .content = target, .mode = 0120777, .method = 0};
}

QByteArray zipOf(const QList<ZipItem>& items, const ZipFrame& frame)
{
    QByteArray archive = frame.before;
    QByteArray list;
    for (const ZipItem& item : items) {
        const Headers headers(item, sizeOf(archive));
        archive += headers.local;
        list += headers.central;
    }
    const quint64 offset = sizeOf(archive);
    const auto count = static_cast<quint64>(items.size() * frame.repeats);
    list = list.repeated(frame.repeats);
    archive += list;
    archive += Bytes().number(0x06054b50, 4).number(0, 4).number(count, 2).number(count, 2).number(sizeOf(list), 4);
    archive += Bytes().number(offset, 4).number(0, 2);
    return archive + frame.after;
}

QList<ZipItem> goodItems()
{
    return {zipFolder("Ambrelle/"), zipFolder("Ambrelle/bin/"),
        {.name = "Ambrelle/bin/ambrelle", .content = QByteArray("program ").repeated(500), .mode = 0100755},
        zipFolder("Ambrelle/lib/"), {.name = "Ambrelle/lib/libOne.so.1", .content = QByteArray(3000, 'l')},
        zipFolder("Ambrelle/share/"), zipFolder("Ambrelle/share/ambrelle/"),
        {.name = "Ambrelle/share/ambrelle/org.ambrelle.Ambrelle.json", .content = "{}", .method = 0}};
}

} // namespace ambrelle::test
