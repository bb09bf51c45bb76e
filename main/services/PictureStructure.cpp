// SPDX-License-Identifier: MIT

#include "services/PictureStructure.h"

#include <QtEndian>

#include <algorithm>
#include <optional>

#include <libdeflate.h>

namespace ambrelle {

namespace {

quint8 byteAt(const QByteArray& bytes, qsizetype index)
{
    return index < bytes.size() ? static_cast<quint8>(bytes[index]) : 0;
}

bool isJpeg(const QByteArray& bytes)
{
    return bytes.startsWith("\xFF\xD8");
}

constexpr QByteArrayView pngStart("\x89PNG\r\n\x1A\n");

bool isRowWisePng(const QByteArray& bytes)
{
    constexpr qsizetype depth = 24;
    constexpr qsizetype colour = 25;
    constexpr qsizetype interlace = 28;
    constexpr quint8 rgb = 2;
    constexpr quint8 rgba = 6;
    return bytes.startsWith(pngStart) && byteAt(bytes, depth) == 8
        && (byteAt(bytes, colour) == rgb || byteAt(bytes, colour) == rgba) && byteAt(bytes, interlace) == 0;
}

// The codes of ITU-T T.81, table B.1.
namespace marker {
constexpr quint8 temporary = 0x01;
constexpr quint8 firstFrame = 0xC0;
constexpr quint8 lastFrame = 0xCF;
constexpr quint8 huffmanTables = 0xC4;
constexpr quint8 reserved = 0xC8;
constexpr quint8 arithmeticConditions = 0xCC;
constexpr quint8 firstRestart = 0xD0;
constexpr quint8 startOfImage = 0xD8;
constexpr quint8 endOfImage = 0xD9;
constexpr quint8 startOfScan = 0xDA;
} // namespace marker

bool isFrame(quint8 code)
{
    return code >= marker::firstFrame && code <= marker::lastFrame && code != marker::huffmanTables
        && code != marker::reserved && code != marker::arithmeticConditions;
}

bool isProgressive(quint8 frame)
{
    return (frame & 3) == 2;
}

bool standsAlone(quint8 code)
{
    return code == marker::temporary || (code >= marker::firstRestart && code <= marker::startOfImage);
}

/// Goes from segment to segment as decoders do: what lies between two of them is skipped.
class JpegWalk {
public:
    explicit JpegWalk(const QByteArray& bytes)
        : m_bytes(bytes)
    {
    }

    /// The code of the next segment; none at the end of the picture.
    std::optional<quint8> next()
    {
        m_at = m_end;
        while (true) {
            m_at = m_bytes.indexOf('\xFF', m_at);
            if (m_at < 0)
                return std::nullopt;
            while (byteAt(m_bytes, m_at) == 0xFF)
                ++m_at;
            const quint8 code = byteAt(m_bytes, m_at++);
            if (code == marker::endOfImage)
                return std::nullopt;
            if (code == 0 || standsAlone(code))
                continue; // 0: no marker, but a byte of the picture
            m_end = m_at + std::max(2, byteAt(m_bytes, m_at) << 8 | byteAt(m_bytes, m_at + 1));
            return code;
        }
    }
    /// A byte of that segment, counted from its length field.
    quint8 operator[](qsizetype index) const { return byteAt(m_bytes, m_at + index); }

private:
    const QByteArray& m_bytes;
    qsizetype m_at = 0;
    qsizetype m_end = 0;
};

/// Several, unless the first scan holds the whole picture: nothing after that is looked at.
int jpegScans(const QByteArray& bytes)
{
    constexpr qsizetype componentsOfFrame = 7;
    constexpr qsizetype componentsOfScan = 2;
    JpegWalk walk(bytes);
    quint8 components = 0;
    bool progressive = false;
    int scans = 0;
    while (const std::optional<quint8> code = walk.next()) {
        if (isFrame(*code)) {
            components = walk[componentsOfFrame];
            progressive = isProgressive(*code);
        } else if (*code == marker::startOfScan) {
            ++scans;
            if (!progressive && scans == 1 && walk[componentsOfScan] >= components)
                return 1;
        }
    }
    return std::max(scans, 2); // cut off, or in parts
}

} // namespace

// A file is a row of chunks: length, type, data, and a checksum over type and data.
bool PictureStructure::isDamagedPng(const QByteArray& bytes)
{
    constexpr qsizetype typeSize = 4;
    constexpr qsizetype frameSize = 12; // of all but the data
    constexpr char ancillary = 0x20; // in the first letter of the type
    if (!bytes.startsWith(pngStart))
        return false;
    QByteArrayView rest = QByteArrayView(bytes).sliced(pngStart.size());
    while (rest.size() >= frameSize) {
        const auto length = static_cast<qsizetype>(qFromBigEndian<quint32>(rest.data()));
        if (length > rest.size() - frameSize)
            return true;
        const QByteArrayView summed = rest.sliced(frameSize - 2 * typeSize, typeSize + length);
        const auto sum = qFromBigEndian<quint32>(rest.data() + frameSize - typeSize + length);
        const bool isCritical = !(summed.front() & ancillary);
        if (isCritical && libdeflate_crc32(0, summed.data(), static_cast<size_t>(summed.size())) != sum)
            return true;
        if (summed.startsWith("IEND"))
            return false;
        rest = rest.sliced(frameSize + length);
    }
    return true;
}

bool PictureStructure::comesRowByRow(const QByteArray& bytes)
{
    return isJpeg(bytes) ? jpegScans(bytes) == 1 : isRowWisePng(bytes);
}

int PictureStructure::passes(const QByteArray& bytes)
{
    return isJpeg(bytes) ? jpegScans(bytes) : 1;
}

} // namespace ambrelle
