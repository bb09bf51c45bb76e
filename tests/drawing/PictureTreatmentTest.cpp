// SPDX-License-Identifier: MIT

#include "drawing/PictureTreatment.h"
#include "drawing/Drawn.h"

#include <QSet>

#include <gtest/gtest.h>

namespace ambrelle {

namespace {

/// Dark at the left, light at the right, a little coloured.
QImage landscape(int width = 200, int height = 100)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int level = 255 * x / (width - 1);
            image.setPixel(x, y, qRgb(level, level, std::max(0, level - 40 * y / height)));
        }
    }
    return image;
}

QImage flat(int grey)
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(QColor(grey, grey, grey));
    return image;
}

QList<PictureTreatment> treatments()
{
    return {{}, PictureTreatment::grey(), PictureTreatment::duotone(Qt::darkBlue, Qt::yellow),
        PictureTreatment::halftone(Qt::black, Qt::white), PictureTreatment::pixels(8), PictureTreatment::blurred(4)};
}

double lightOf(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += qGray(image.pixel(x, y));
    }
    return sum / (255.0 * image.width() * image.height());
}

} // namespace

TEST(PictureTreatment, IsMadeOnceForEachPictureAndSize)
{
    const QImage picture = landscape();
    QSet<qint64> seen;
    for (const PictureTreatment& treatment : treatments()) {
        for (const QSize& size : {QSize(40, 40), QSize(60, 30)}) {
            const QImage first = treatment.applied(picture, size);
            EXPECT_EQ(first.size(), size);
            EXPECT_EQ(treatment.applied(picture, size).cacheKey(), first.cacheKey()) << "made again";
            EXPECT_NE(treatment.applied(landscape(), size).cacheKey(), first.cacheKey()) << "another picture";
            EXPECT_EQ(treatment.applied(landscape(), size), first);
            seen.insert(first.cacheKey());
        }
    }
    EXPECT_EQ(seen.size(), 12) << "one treatment was taken for another";
}

TEST(PictureTreatment, HasTheColoursOfItsKind)
{
    const QImage picture = landscape();
    const QImage grey = PictureTreatment::grey().applied(picture, {100, 50});
    const QImage duotone = PictureTreatment::duotone(QColor(0, 0, 90), QColor(255, 250, 0)).applied(picture, {100, 50});
    for (int x = 0; x < 100; ++x) {
        const QColor colour = grey.pixelColor(x, 25);
        EXPECT_TRUE(colour.red() == colour.green() && colour.green() == colour.blue()) << x;
    }
    EXPECT_LT(qGray(grey.pixel(0, 25)), 10);
    EXPECT_GT(qGray(grey.pixel(99, 25)), 235);
    EXPECT_NEAR(duotone.pixelColor(0, 25).blue(), 90, 4);
    EXPECT_NEAR(duotone.pixelColor(99, 2).red(), 255, 8);

    const QImage pixels = PictureTreatment::pixels(4).applied(picture, {80, 40});
    for (int x = 0; x < 80; ++x) {
        for (int y = 0; y < 40; ++y)
            EXPECT_EQ(pixels.pixel(x, y), pixels.pixel(x / 20 * 20, y / 20 * 20)) << x << ' ' << y;
    }
    EXPECT_NE(pixels.pixel(0, 0), pixels.pixel(20, 0));
}

TEST(PictureTreatment, PrintedDotsAreAsDarkAsThePicture)
{
    double before = -0.01;
    for (const int level : {0, 40, 90, 128, 170, 220, 255}) {
        const QImage dots = PictureTreatment::halftone(Qt::black, Qt::white, 6).applied(flat(level), {120, 120}, 1);
        EXPECT_NEAR(lightOf(dots), level / 255.0, 0.09) << level;
        EXPECT_GT(lightOf(dots), before) << level;
        before = lightOf(dots);
    }
    // The same dots at twice the scale.
    const auto printed = [](double scale) {
        const QSize size = (QSizeF(60, 60) * scale).toSize();
        return PictureTreatment::halftone(Qt::black, Qt::white, 6).applied(flat(100), size, scale);
    };
    const QImage shrunk = printed(2).scaled(60, 60, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage small = printed(1);
    int different = 0;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 60; ++x)
            different += std::abs(qGray(shrunk.pixel(x, y)) - qGray(small.pixel(x, y))) > 90 ? 1 : 0;
    }
    EXPECT_LT(different, 36); // of 3600
}

TEST(PictureTreatment, PictureCoversItsShapeAndNothingElse)
{
    QPainterPath circle;
    circle.addEllipse(QRectF(20.25, 30.5, 60, 60));
    for (const PictureTreatment& treatment : treatments()) {
        for (const double scale : {0.75, 1.0, 1.5, 2.0}) {
            const auto drawn =
                drawnWith([&](Canvas& canvas) { drawPicture(canvas, circle, landscape(), treatment); }, {}, scale);
            const auto alpha = [&](QPointF point) { return qAlpha(drawn.pixel((point * scale).toPoint())); };
            EXPECT_EQ(alpha({50, 60}), 255) << scale;
            EXPECT_EQ(alpha({22, 60}), 255) << scale;
            EXPECT_EQ(alpha({78, 60}), 255) << scale;
            EXPECT_EQ(alpha({24, 34}), 0) << scale;
            EXPECT_EQ(alpha({18, 60}), 0) << scale;
        }
    }
    const QImage faint =
        drawnWith([&](Canvas& canvas) { drawPicture(canvas, circle, landscape(), PictureTreatment::grey(), 0.5); });
    EXPECT_NEAR(qAlpha(faint.pixel(50, 60)), 128, 1);
}

TEST(PictureTreatment, PictureThatIsNotTurnedIsShownPixelForPixel)
{
    const QImage dots = PictureTreatment::halftone(Qt::black, Qt::white).applied(landscape(), {60, 60});
    QPainterPath box;
    box.addRect(30, 30, 60, 60);
    const QImage drawn = drawnWith([&](Canvas& canvas) {
        drawPicture(canvas, box, landscape(), PictureTreatment::halftone(Qt::black, Qt::white));
    });
    EXPECT_EQ(drawn.copy(30, 30, 60, 60), dots);
}

TEST(PictureTreatment, NothingComesOfNothing)
{
    QPainterPath box;
    box.addRect(30, 30, 60, 60);
    for (const PictureTreatment& treatment : treatments()) {
        EXPECT_TRUE(treatment.applied({}, {10, 10}).isNull());
        EXPECT_TRUE(treatment.applied(landscape(), {0, 10}).isNull());
        EXPECT_EQ(treatment.applied(landscape(1000, 1), {10, 10}).size(), QSize(10, 10));
        const QImage drawn = drawnWith([&](Canvas& canvas) {
            drawPicture(canvas, box, {}, treatment);
            drawPicture(canvas, {}, landscape(), treatment);
        });
        EXPECT_EQ(inkOf(drawn), QRect());
    }
}

} // namespace ambrelle
