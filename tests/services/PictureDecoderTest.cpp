// SPDX-License-Identifier: MIT

#include "services/PictureDecoder.h"
#include "services/PictureStructure.h"
#include "support/TestFolder.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

/// The left half red, the right half blue.
QImage halves(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    image.fill(Qt::red);
    QPainter(&image).fillRect(size.width() / 2, 0, size.width(), size.height(), Qt::blue);
    return image;
}

QByteArray encoded(const QImage& image, const char* format, bool progressive = false)
{
    QByteArray bytes;
    QBuffer device(&bytes);
    QImageWriter writer(&device, format);
    writer.setQuality(95);
    writer.setProgressiveScanWrite(progressive);
    EXPECT_TRUE(writer.write(image));
    return bytes;
}

/// The same file, which claims to be that much larger.
QByteArray claiming(QByteArray jpeg, quint16 side)
{
    const char frame = jpeg.contains("\xFF\xC2") ? '\xC2' : '\xC0';
    const qsizetype at = jpeg.indexOf(QByteArray("\xFF") + frame) + 5;
    for (const qsizetype place : {at, at + 2}) {
        jpeg[place] = static_cast<char>(side >> 8);
        jpeg[place + 1] = static_cast<char>(side & 255);
    }
    return jpeg;
}

/// As a camera writes it that was held upright.
QByteArray turned(QByteArray jpeg)
{
    const QByteArray exif("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0", 32);
    return jpeg.insert(2, QByteArray("\xFF\xE1\0\x22", 4) + exif);
}

long peakMegabytes()
{
    QFile status(u"/proc/self/status"_s);
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong() / 1024;
    }
    return 0;
}

bool forgetPeak()
{
    QFile file(u"/proc/self/clear_refs"_s);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write("5") == 1;
}

TEST(PictureDecoder, CoversWhatIsShownAndNeverEnlarges)
{
    const struct {
        QSize stored, shown, expected;
    } cases[] = {
        {{400, 200}, {100, 100}, {200, 100}},
        {{400, 200}, {100, 20}, {100, 50}},
        {{40, 20}, {100, 100}, {40, 20}},
        {{400, 20}, {100, 100}, {400, 20}},
        {{3000, 1}, {100, 100}, {3000, 1}},
        {{300, 200}, {}, {300, 200}},
    };
    for (const char* format : {"png", "jpg", "webp"}) {
        for (const auto& each : cases) {
            const QImage image = PictureDecoder::decode(encoded(halves(each.stored), format), each.shown);
            EXPECT_EQ(image.size(), each.expected) << format << " of " << each.stored.width();
            EXPECT_EQ(image.format(), QImage::Format_RGB32);
        }
    }
    const QImage clear = halves({8, 8}, QImage::Format_ARGB32);
    EXPECT_EQ(PictureDecoder::decode(encoded(clear, "png"), {4, 4}).format(), QImage::Format_ARGB32_Premultiplied);
}

TEST(PictureDecoder, KnowsPicturesByTheirBeginnings)
{
    const TestFolder folder;
    const QByteArray jpeg = encoded(halves({64, 40}), "JPG");
    EXPECT_TRUE(PictureDecoder::isPicture(folder.write(u"named.txt"_s, jpeg)));
    EXPECT_TRUE(PictureDecoder::isPicture(folder.write(u"cut.jpg"_s, jpeg.chopped(20))));
    EXPECT_FALSE(PictureDecoder::isPicture(folder.write(u"text.jpg"_s, "no picture")));
    EXPECT_FALSE(PictureDecoder::isPicture(folder.path()));
    const QString pipe = folder.filePath(u"pipe.jpg"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(PictureDecoder::isPicture(pipe)) << "and nobody waits for a writer";
}

TEST(PictureDecoder, TurnsPicturesUpright)
{
    const QImage image = PictureDecoder::decode(turned(encoded(halves({400, 200}), "jpg")), {50, 50});
    ASSERT_EQ(image.size(), QSize(50, 100));
    EXPECT_GT(image.pixelColor(25, 10).red(), 200);
    EXPECT_GT(image.pixelColor(25, 90).blue(), 200);
}

TEST(PictureDecoder, RefusesWhatIsTooMuchOrNoPicture)
{
    QTemporaryDir folder;
    EXPECT_TRUE(PictureDecoder::read(folder.filePath(u"none.png"_s), {9, 9}).isNull());
    EXPECT_TRUE(PictureDecoder::read(folder.path(), {9, 9}).isNull());
    const QString pipe = folder.filePath(u"pipe.png"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(PictureDecoder::read(pipe, {9, 9}).isNull());

    QFile file(folder.filePath(u"picture.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(encoded(halves({20, 20}), "jpg")); // the content decides, not the name
    file.close();
    EXPECT_EQ(PictureDecoder::read(file.fileName(), {9, 9}).size(), QSize(9, 9));
    ASSERT_TRUE(file.resize(PictureDecoder::mostBytes));
    EXPECT_FALSE(PictureDecoder::read(file.fileName(), {9, 9}).isNull()) << "junk after the picture";
    ASSERT_TRUE(file.resize(PictureDecoder::mostBytes + 1));
    EXPECT_TRUE(PictureDecoder::read(file.fileName(), {9, 9}).isNull());

    for (const QByteArray& bytes : {QByteArray(), QByteArray("\xFF\xD8"), QByteArray("\x89PNG\r\n\x1A\n"),
             QByteArray("RIFF"), QByteArray("P6 99999999 99999999 255\n"), QByteArray("<svg width='9' height='9'/>")})
        EXPECT_TRUE(PictureDecoder::decode(bytes, {9, 9}).isNull());
}

TEST(PictureDecoder, OnlyFormatsOfTheWebAreTakenFromStrangers)
{
    const QByteArray gif = QByteArray::fromBase64("R0lGODlhAQABAIAAAP8AAAAAACwAAAAAAQABAAACAkQBADs=");
    EXPECT_EQ(PictureDecoder::decode(gif, {9, 9}).size(), QSize(1, 1));
    const TestFolder folder;
    for (const char* format : {"bmp", "ppm", "tiff", "ico"}) {
        const QByteArray bytes = encoded(halves({16, 8}), format);
        ASSERT_FALSE(bytes.isEmpty()) << format;
        EXPECT_TRUE(PictureDecoder::decode(bytes, {16, 8}).isNull()) << format;
        EXPECT_EQ(PictureDecoder::read(folder.write(u"photo"_s, bytes), {16, 8}).size(), QSize(16, 8)) << format;
        // What begins like a picture of the web stays one, however it goes on.
        EXPECT_TRUE(PictureDecoder::decode("GIF89a" + bytes, {16, 8}).isNull()) << format;
    }
}

TEST(PictureDecoder, SmallFilesCannotExhaustTheMemory)
{
    const QImage picture = halves({64, 64});
    QByteArray manyPasses = encoded(picture, "jpg", true);
    const qsizetype scan = manyPasses.indexOf("\xFF\xDA");
    const QByteArray scans = manyPasses.mid(scan, manyPasses.size() - 2 - scan);
    for (int i = 0; i < 40; ++i)
        manyPasses.insert(scan, scans);
    EXPECT_TRUE(PictureDecoder::decode(manyPasses, {32, 32}).isNull());
    EXPECT_FALSE(PictureDecoder::decode(encoded(picture, "jpg", true), {32, 32}).isNull());

    // A camera's picture of 196 million pixels is scaled down row by row.
    EXPECT_EQ(PictureDecoder::decode(claiming(encoded(picture, "jpg"), 14000), {600, 600}).size(), QSize(600, 600));
    if (!forgetPeak())
        GTEST_SKIP() << "the peak of the memory cannot be measured here";
    const long before = peakMegabytes();
    EXPECT_TRUE(PictureDecoder::decode(claiming(encoded(picture, "jpg", true), 14000), {600, 600}).isNull());
    EXPECT_TRUE(PictureDecoder::decode(claiming(encoded(picture, "jpg"), 65000), {600, 600}).isNull());
    EXPECT_LT(peakMegabytes() - before, 64);
}

TEST(PictureStructure, TellsHowAPictureIsStored)
{
    const QByteArray baseline = encoded(halves({64, 64}), "jpg");
    const QByteArray progressive = encoded(halves({64, 64}), "jpg", true);
    EXPECT_EQ(PictureStructure::passes(baseline), 1);
    EXPECT_TRUE(PictureStructure::comesRowByRow(baseline));
    EXPECT_EQ(PictureStructure::passes(progressive), progressive.count("\xFF\xDA"));
    EXPECT_FALSE(PictureStructure::comesRowByRow(progressive));

    QByteArray apart = baseline; // its first scan holds one of the three components
    apart[apart.indexOf("\xFF\xDA") + 4] = 1;
    EXPECT_FALSE(PictureStructure::comesRowByRow(apart));
    QByteArray hidden = progressive; // what looks like the end is a comment
    hidden.insert(hidden.lastIndexOf("\xFF\xC4"), QByteArray("\xFF\xFE\0\x04\xFF\xD9", 6));
    EXPECT_EQ(PictureStructure::passes(hidden), PictureStructure::passes(progressive));
    EXPECT_TRUE(PictureStructure::comesRowByRow(turned(baseline)));

    EXPECT_TRUE(PictureStructure::comesRowByRow(encoded(halves({8, 8}), "png")));
    const QImage grey = halves({8, 8}).convertToFormat(QImage::Format_Grayscale8);
    EXPECT_FALSE(PictureStructure::comesRowByRow(encoded(grey, "png")));
    EXPECT_FALSE(PictureStructure::comesRowByRow(encoded(halves({8, 8}), "bmp")));
}

TEST(PictureStructure, FindsDamagedPngFiles)
{
    const QByteArray whole = encoded(halves({64, 64}), "png");
    EXPECT_FALSE(PictureStructure::isDamagedPng(whole));
    EXPECT_FALSE(PictureStructure::isDamagedPng(whole + "more"));
    EXPECT_FALSE(PictureStructure::isDamagedPng(encoded(halves({64, 64}), "jpg")));
    const qsizetype density = whole.indexOf("pHYs"); // which nobody needs
    ASSERT_GT(density, 0);
    for (qsizetype at = 8; at < whole.size(); ++at) {
        EXPECT_TRUE(PictureStructure::isDamagedPng(whole.first(at))) << "cut off at " << at;
        QByteArray changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ 0x40);
        const bool isInDensity = at >= density - 4 && at <= density + 16;
        EXPECT_TRUE(isInDensity || PictureStructure::isDamagedPng(changed)) << "changed at " << at;
        const bool isItsValue = isInDensity && at > density + 4;
        EXPECT_TRUE(!isItsValue || !PictureDecoder::decode(changed, {8, 8}).isNull()) << "changed at " << at;
    }
}

/// Damage of every kind; what it finds are crashes, hangs and what sanitizers see.
TEST(PictureStructure, DamagedFilesHarmNothing)
{
    QRandomGenerator random(20250602);
    const QByteArray originals[] = {encoded(halves({64, 64}), "jpg"), encoded(halves({64, 64}), "jpg", true),
        turned(encoded(halves({64, 64}), "jpg")), encoded(halves({64, 64}), "png"), encoded(halves({64, 64}), "webp"),
        QByteArray::fromBase64("R0lGODlhAQABAIAAAP8AAAAAACwAAAAAAQABAAACAkQBADs=")};
    const int rounds = qEnvironmentVariable("AMBRELLE_MUTATIONS", u"400"_s).toInt();
    for (int round = 0; round < rounds; ++round) {
        QByteArray bytes = originals[round % std::ssize(originals)];
        if (random.bounded(2) == 0)
            bytes.truncate(1 + random.bounded(static_cast<int>(bytes.size())));
        for (int change = random.bounded(8); change > 0; --change)
            bytes[random.bounded(static_cast<int>(bytes.size()))] = static_cast<char>(random.bounded(256));
        EXPECT_GE(PictureStructure::passes(bytes), 1);
        const QImage image = PictureDecoder::decode(bytes, {16, 16});
        EXPECT_LE(qint64{image.width()} * image.height(), PictureDecoder::mostWholePixels);
    }
}

} // namespace
