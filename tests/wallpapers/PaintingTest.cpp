// SPDX-License-Identifier: MIT

#include "wallpapers/Painting.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

using namespace ambrelle;

namespace {

/// Red, green and blue averaged over a part of the picture, 0 to 255: dithering leaves the average right.
std::array<double, 3> average(const QImage& picture, const QRect& area)
{
    std::array<double, 3> sum{};
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            sum[0] += colour.red();
            sum[1] += colour.green();
            sum[2] += colour.blue();
        }
    }
    for (double& part : sum)
        part /= static_cast<double>(area.width()) * area.height();
    return sum;
}

QRect around(int x, int y)
{
    return {x - 4, y - 4, 8, 8};
}

TEST(Painting, FlatColoursAreExact)
{
    for (const std::uint32_t colour : {0x000000U, 0xFFFFFFU, 0x3A6EA5U, 0x010203U, 0xFEFDFCU}) {
        Painting painting(QSize(9, 9));
        painting.fill(hex(colour));
        const QImage picture = painting.render(1);
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < 9; ++x)
                EXPECT_EQ(picture.pixel(x, y) & 0xFFFFFFU, colour) << x << ',' << y;
    }
}

TEST(Painting, StandsUpright)
{
    Painting painting(QSize(640, 480));
    painting.verticalGradient(white(), black());
    painting.fill(QRectF(0, 0, 64, 48), hex(0xFF0000));
    painting.specks(1, [] { return std::pair{QRectF(600, 400, 30, 30), hex(0x00FF00)}; });
    painting.raster({320, 0, 320, 48}, 3, [](double x, double y) {
        return x >= 320.0 / 480 && x <= 640.0 / 480 && y >= 0 && y <= 0.1 ? hex(0x0000FF) : hex(0xFF00FF);
    });
    const QImage picture = painting.render(2);
    EXPECT_EQ(picture.pixelColor(10, 470), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(615, 65), QColor(0, 255, 0));
    EXPECT_EQ(picture.pixelColor(400, 470), QColor(0, 0, 255));
    EXPECT_GT(average(picture, around(200, 10))[0], 245);
    EXPECT_LT(average(picture, around(200, 470))[0], 10);
    EXPECT_NEAR(average(picture, around(200, 240))[1], 127.5, 3);
}

TEST(Painting, GradientsEndWhereTheyShould)
{
    Painting painting(QSize(800, 600));
    painting.fill(hex(0x808080));
    painting.fill(Ink::linear({200, 0}, {400, 0}, {{0, white()}, {1, white()}}, Ink::Ends::open));
    painting.glow({600, 300}, 100, black());
    const QImage picture = painting.render(1);
    EXPECT_EQ(picture.pixelColor(198, 300), QColor(128, 128, 128));
    EXPECT_EQ(picture.pixelColor(300, 300), QColor(255, 255, 255));
    EXPECT_EQ(picture.pixelColor(402, 300), QColor(128, 128, 128));
    EXPECT_LT(average(picture, around(600, 300))[0], 5);
    EXPECT_NEAR(average(picture, around(650, 300))[0], 64, 3);
    EXPECT_EQ(picture.pixelColor(703, 300), QColor(128, 128, 128));
    EXPECT_EQ(picture.pixelColor(600, 403), QColor(128, 128, 128));
}

TEST(Painting, VignetteLeavesTheMiddleAlone)
{
    Painting painting(QSize(1000, 600));
    painting.fill(white());
    painting.vignette(0.5);
    const QImage picture = painting.render(2);
    EXPECT_EQ(picture.pixelColor(500, 300), QColor(255, 255, 255));
    EXPECT_EQ(picture.pixelColor(500, 60), QColor(255, 255, 255));
    EXPECT_NEAR(average(picture, {0, 0, 8, 8})[0], 128, 3);
}

// A plane is what interpolation reproduces; half a sample at the edges is flat.
TEST(Painting, RastersInterpolateAtEveryScale)
{
    for (const double scale : {1.0, 1.2, 2.0, 3.0, 4.0}) {
        Painting painting(QSize(700, 300)); // several tiles, the last ones cut
        painting.raster(painting.all(), scale, [](double x, double y) { return rgb(x * 300 / 700, y, 0); });
        const QImage picture = painting.render(2);
        for (const QPoint place : {QPoint(20, 20), QPoint(350, 150), QPoint(512, 64), QPoint(680, 280)}) {
            const auto [red, green, blue] = average(picture, around(place.x(), place.y()));
            EXPECT_NEAR(red, 255.0 * place.x() / 700, 0.6) << scale;
            EXPECT_NEAR(green, 255.0 * (300 - place.y()) / 300, 0.6) << scale;
            EXPECT_EQ(blue, 0);
        }
    }
}

TEST(Painting, DarkGradientsHaveNoBands)
{
    Painting painting(QSize(64, 1600));
    painting.verticalGradient(hex(0x080808), hex(0x040404)); // four steps of a screen over 1600 rows
    const QImage picture = painting.render(1);
    double previous = average(picture, {0, 0, 64, 16})[0];
    for (int top = 16; top + 16 <= 1600; top += 16) {
        const double grey = average(picture, {0, top, 64, 16})[0];
        EXPECT_NEAR(previous - grey, 0.04, 0.02) << top;
        previous = grey;
    }
}

TEST(Painting, EdgesAreSmoothAndCountedByTheirArea)
{
    Painting painting(QSize(40, 40));
    painting.specks(1, [] { return std::pair{QRectF(10.25, 10.5, 1, 1), white()}; });
    painting.fill(QRectF(20.5, 20, 4, 4), white());
    const QImage picture = painting.render(1);
    const double spread = average(picture, {9, 27, 4, 4})[0] * 16;
    EXPECT_NEAR(spread, 255, 4) << "one pixel's light over its neighbours";
    EXPECT_NEAR(picture.pixelColor(20, 18).red(), 127, 2);
    EXPECT_EQ(picture.pixelColor(22, 18).red(), 255);
}

TEST(Painting, CountsItsDraws)
{
    struct Case {
        const char* name;
        void (*paint)(Painting&, SeededRandom&);
        int draws;
    };
    for (const Case& c : {
             Case{"grain", [](Painting&p, SeededRandom&r) { p.grain(0.02, r); }, 3 * 150},
             Case{"stars", [](Painting&p, SeededRandom&r) { p.stars(17, 1, r); }, 4 * 17},
             Case{"no stars", [](Painting&p, SeededRandom&r) { p.stars(0, 1, r); }, 0},
         }) {
        Painting painting(QSize(300, 200));
        SeededRandom drawn{99};
        c.paint(painting, drawn);
        SeededRandom expected{99};
        for (int i = 0; i < c.draws; ++i)
            expected.next();
        EXPECT_EQ(drawn.state, expected.state) << c.name;
    }
}

TEST(Painting, NothingInAPictureWithoutArea)
{
    SeededRandom random{1};
    Painting painting(QSize(0, 200));
    painting.grain(0.1, random);
    painting.vignette(0.5);
    painting.verticalGradient(white(), black());
    painting.raster(painting.all(), 2, [](double, double) { return white(); });
    EXPECT_EQ(random.state, 1U);
    EXPECT_TRUE(painting.render(2).isNull());
}

TEST(PaintingDeathTest, MistakesOfTheProgramStopIt)
{
    Painting painting(QSize(100, 100));
    SeededRandom random{1};
    const double nan = std::nan("");
    EXPECT_DEATH(painting.stars(-1, 1, random), "-1 things");
    EXPECT_DEATH(painting.stars(1, 0.3, random), "too low");
    EXPECT_DEATH(painting.glow({0, 0}, nan, white()), "no radius");
    EXPECT_DEATH(painting.fill(QRectF(0, 0, nan, 1), white()), "not finite");
    EXPECT_DEATH(painting.raster(painting.all(), 0.5, [](double, double) { return white(); }), "no scale");
    EXPECT_DEATH(Painting(QSize(-1, 1)), "no size");
    EXPECT_DEATH(random.next(0), "below 0");
    EXPECT_DEATH(random.in(1, 0), "no range");
}

} // namespace
