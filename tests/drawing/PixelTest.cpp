// SPDX-License-Identifier: MIT

#include "drawing/Drawn.h"
#include "drawing/PixelMask.h"
#include "drawing/PixelPaint.h"

#include <QLinearGradient>
#include <QPainter>
#include <QSet>

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

TEST(PixelPaint, FillsBlocksAsTheirPathWouldBe)
{
    QPainterPath path;
    for (const QRectF& block : {QRectF(1, 1, 3, 2), QRectF(3, 2, 1, 5), QRectF(8, 4, 2, 2)})
        path.addRect(block);
    path.setFillRule(Qt::WindingFill);
    struct {
        double scale;
        QPointF origin;
        QColor colour;
        bool possible;
    } const cases[] = {
        {1, {0, 0}, Qt::red, true}, {2, {3, 5}, Qt::red, true}, {1.25, {0, 0}, Qt::red, false},
        {1, {0.5, 0}, Qt::red, false},
        {1, {0, 0}, QColor(255, 0, 0, 128), false}, // where two overlap it would be darker
    };
    for (const auto& [scale, origin, colour, possible] : cases) {
        const auto image = [&](const std::function<void(QPainter&)>& draw) {
            QImage all(40, 40, QImage::Format_ARGB32_Premultiplied);
            all.fill(Qt::transparent);
            QPainter painter(&all);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.translate(origin);
            painter.scale(scale, scale);
            draw(painter);
            EXPECT_EQ(painter.transform().m11(), scale);
            return all;
        };
        bool done = false;
        const QImage blocks = image([&](QPainter& painter) { done = PixelPaint::blocks(painter, path, colour); });
        EXPECT_EQ(done, possible) << scale << ' ' << origin.x();
        const QImage whole = image([&](QPainter& painter) { painter.fillPath(path, colour); });
        EXPECT_EQ(blocks, possible ? whole : image([](QPainter&) {})) << scale << ' ' << origin.x();
    }
}

TEST(CrispCanvas, NoDigitTouchesItsNeighbour)
{
    for (const int weight : {400, 700}) {
        for (const QString& pair : {u"40"_s, u"44"_s, u"64"_s, u"00"_s, u"88"_s, u"47"_s}) {
            const FigurePath path =
                figurePath(pair, {}, {.face = pixelFace(weight), .cap = 26, .fill = Qt::black}, 200);
            QList<std::pair<double, double>> inks; // of each digit, from its left edge to its right one
            for (int index = 0; index + 4 < path.digits.elementCount(); index += 5) {
                const double left = path.digits.elementAt(index).x;
                const double right = path.digits.elementAt(index + 2).x;
                const bool second = left >= path.places.at(1) - 0.01;
                while (inks.size() <= (second ? 1 : 0))
                    inks.append({1000, -1000});
                auto& [from, to] = inks[second ? 1 : 0];
                from = std::min(from, left);
                to = std::max(to, right);
            }
            ASSERT_EQ(inks.size(), 2);
            EXPECT_GE(inks[1].first - inks[0].second, 2 - 0.01) << pair.toStdString() << ' ' << weight; // one square
        }
    }
}

namespace {

constexpr double fractions[] = {0.75, 1, 1.25, 2};

/// A crisp canvas of 64 x 64 points.
QImage crispPicture(double scale, const std::function<void(Canvas&)>& draw)
{
    return drawnWith(draw, {.finish = Finish::crisp}, scale, {64, 64});
}

/// The colours of a picture, the bare ground among them.
QSet<QRgb> coloursOf(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return colours;
}

} // namespace

TEST(CrispCanvas, GradientsLieWhereTheShapesLieAtEveryScale)
{
    QLinearGradient gradient(0, 10, 0, 60);
    gradient.setColorAt(0, Qt::black);
    gradient.setColorAt(1, Qt::red);
    const Box box(10, 10, 40, 50);
    const std::pair<const char*, std::function<void(Canvas&)>> shapes[] = {
        {"box", [&](Canvas& canvas) { canvas.fill(box, gradient); }},
        {"path", [&](Canvas& canvas) { canvas.fill(box, gradient, 3); }},
        {"frame", [&](Canvas& canvas) { canvas.frame(box, QPen(gradient, 2)); }},
        {"round frame", [&](Canvas& canvas) { canvas.frame(box, QPen(gradient, 2), 3); }},
        {"turned box",
            [&](Canvas& canvas) {
                canvas.turned({30, 35}, 180, [&] {
                    QLinearGradient back(0, 60, 0, 10);
                    back.setStops(gradient.stops());
                    canvas.fill(box, back);
                });
            }},
    };
    for (const auto& [name, draw] : shapes) {
        for (const double scale : fractions) {
            const QImage image = crispPicture(scale, draw);
            for (const double y : {16.0, 30.0, 54.0}) {
                const int row = static_cast<int>(y * scale);
                const QColor colour = image.pixelColor(static_cast<int>(std::lround(10 * scale)), row);
                const double expected = ((row + 0.5) / scale - 10) / 50 * 255;
                EXPECT_NEAR(colour.red(), expected, 255 * 1.2 / 50 / std::min(1.0, scale)) << name << ' ' << scale;
            }
        }
    }
}

TEST(CrispCanvas, PicturesKeepTheirColoursAndLieOnWholePixels)
{
    QImage small(4, 4, QImage::Format_RGB32);
    QImage large(640, 640, QImage::Format_RGB32);
    for (QImage* image : {&small, &large}) {
        for (int y = 0; y < image->height(); ++y)
            for (int x = 0; x < image->width(); ++x)
                image->setPixel(x, y, (x + y) % 2 == 0 ? 0xFFFF0000 : 0xFF0000FF);
    }
    for (const double scale : fractions) {
        const auto shown = [&](const QImage& image) {
            return crispPicture(scale, [&](Canvas& canvas) {
                canvas.paint([&](QPainter& painter) {
                    PixelPaint(painter, Finish::crisp).picture({12.3, 12.3, 40, 40}, image, image.rect());
                });
            });
        };
        EXPECT_EQ(coloursOf(shown(small)), (QSet<QRgb>{0, 0xFFFF0000, 0xFF0000FF})) << scale;
        // Far more pixels than there is room for: what they have in common, not one of them by chance.
        for (const QRgb colour : coloursOf(shown(large)))
            EXPECT_TRUE(colour == 0 || std::abs(qRed(colour) - 127) < 30) << scale << ' ' << qRed(colour);
    }
}

TEST(CrispCanvas, ShapesFiguresAndSymbolsAreOfWholePixels)
{
    const Typeface plain{.family = u"Inter"_s};
    for (const double scale : fractions) {
        const QImage image = crispPicture(scale, [&](Canvas& canvas) {
            canvas.fill(Box(1.3, 1.3, 10, 6), Qt::red);
            canvas.figure({2.7, 8.2, 60, 30}, u"42"_s, {}, {pixelFace(400), 26, Qt::red});
            canvas.figure({30.7, 8.2, 60, 30}, u"7"_s, u"%"_s, {plain, 26, Qt::red});
            canvas.symbol({2, 40, 20, 20}, u"bolt.fill"_s, 17, Qt::red);
            canvas.stroke(roundedPath({30.2, 41.4, 20, 17}, 6), QPen(Qt::red, 1.4));
        });
        EXPECT_EQ(coloursOf(image), (QSet<QRgb>{0, 0xFFFF0000})) << scale;
    }
}

TEST(CrispCanvas, WhatIsMovedKeepsItsPixelsAtEveryWholeScale)
{
    const auto moved = [](double scale) {
        return crispPicture(scale, [](Canvas& canvas) {
            canvas.mapped(QTransform::fromTranslate(3.5, 2.4), [&] {
                canvas.disc({20.2, 20.7}, 11, Qt::red);
                canvas.text({8, 40, 50, 16}, u"12:30"_s, {pixelFace(700), 16, Qt::black});
            });
        });
    };
    const QImage plain = moved(1);
    EXPECT_EQ(moved(2), plain.scaled(plain.size() * 2));
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
