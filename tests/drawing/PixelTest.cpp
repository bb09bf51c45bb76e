// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"
#include "drawing/PixelMask.h"

#include <QPainter>

#include <cmath>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

Typeface pixelFace(int weight)
{
    return {.family = u"DotGothic16"_s, .weight = weight, .capRatio = 13.0 / 16, .cell = 1, .pixel = true};
}

QImage drawn(int scale)
{
    QImage image(120 * scale, 60 * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    Canvas canvas(painter, {.finish = Finish::oneBit});
    canvas.fill(Box(1.5, 2.3, 17.7, 9.1), QColor(0x80, 0x80, 0x80));
    canvas.frame(Box(21.5, 2.5, 30, 14.5), QPen(Qt::black, 1), 4);
    canvas.disc({70.2, 10.7}, 8, QColor(255, 0, 0, 120));
    canvas.line({85, 1}, {110, 14}, QPen(Qt::blue, 1.2));
    canvas.text(Box(2.5, 18.3, 100, 16), u"Åre 12:30"_s, {pixelFace(700), 16, Qt::black});
    canvas.figure(Box(3.3, 36, 90, 22.6), u"10.4"_s, u"%"_s, {pixelFace(700), 13, Qt::black});
    canvas.symbol(Box(96, 36, 22, 22), u"bolt.fill"_s, 17, Qt::black);
    return image;
}

} // namespace

TEST(OneBitCanvas, LargerWholeScalesOnlyEnlargeThePixels)
{
    const QImage plain = drawn(1);
    const QImage blackAndWhite = plain.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
    EXPECT_EQ(blackAndWhite.convertToFormat(plain.format()), plain);
    for (const int scale : {2, 3})
        EXPECT_EQ(drawn(scale), plain.scaled(plain.size() * scale)) << scale;
}

TEST(DitherTile, HasAsManyDotsAsTheColourIsDark)
{
    const std::pair<QColor, int> cases[] = {{Qt::black, 16}, {QColor(0x80, 0x80, 0x80), 8},
        {QColor(0xC0, 0xC0, 0xC0), 4}, {Qt::white, 0}, {QColor(0, 0, 0, 128), 8}};
    for (const auto& [colour, dots] : cases) {
        const QImage tile = ditherTile(colour, 1);
        int black = 0;
        for (int place = 0; place < 16; ++place)
            black += tile.pixel(place % 4, place / 4) == 0xFF000000 ? 1 : 0;
        EXPECT_EQ(black, dots) << colour.name(QColor::HexArgb).toStdString();
    }
    const QImage half = ditherTile(QColor(0x80, 0x80, 0x80), 1);
    for (int place = 0; place < 16; ++place)
        EXPECT_NE(half.pixel(place % 4, place / 4), half.pixel((place + 1) % 4, place / 4)) << place;
}

TEST(PixelFigure, ShrinksByWholeSquaresOnly)
{
    const FigureStyle style{pixelFace(700), 39, Qt::black};
    for (const double room : {200.0, 100.0, 70.0, 5.0}) {
        const FigurePath figure = figurePath(u"1234"_s, {}, style, room);
        EXPECT_EQ(std::fmod(figure.cap, 13), 0) << room;
        EXPECT_GE(figure.cap, 13) << room;
        const bool possible = room >= 36; // four cells of nine squares
        EXPECT_TRUE(!possible || figure.width <= room) << room;
    }
}

} // namespace ambrelle
