// SPDX-License-Identifier: MIT

#include "wallpapers/PngWriter.h"

#include "drawing/SeededRandom.h"

#include <gtest/gtest.h>

using namespace ambrelle;

namespace {

QImage noise(QSize size)
{
    QImage picture(size, QImage::Format_RGB888);
    SeededRandom random{7};
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < 3 * size.width(); ++x)
            picture.scanLine(y)[x] = static_cast<uchar>(random.next(256));
    return picture;
}

// libpng decodes: it checks the sums of all chunks and of the compressed data.
TEST(PngWriter, AnotherDecoderReadsTheSamePixels)
{
    QImage flat(1200, 800, QImage::Format_RGB888);
    flat.fill(QColor(1, 128, 255));
    for (const QImage& picture : {noise({1, 1}), noise({3, 5}), noise({641, 399}), flat}) {
        const QByteArray file = encodedAsPng(picture);
        const QImage read = QImage::fromData(file, "PNG");
        EXPECT_EQ(read.convertToFormat(QImage::Format_RGB888), picture) << picture.width();
        EXPECT_FALSE(read.hasAlphaChannel());
    }
    EXPECT_LT(encodedAsPng(flat).size(), 20000);
}

TEST(PngWriter, RefusesWhatItCannotWrite)
{
    EXPECT_TRUE(encodedAsPng(QImage()).isEmpty());
    EXPECT_TRUE(encodedAsPng(QImage(4, 4, QImage::Format_ARGB32)).isEmpty());
}

} // namespace
