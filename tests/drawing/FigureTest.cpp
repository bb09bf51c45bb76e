// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"
#include "drawing/Drawn.h"
#include "drawing/LayerCache.h"

#include <gtest/gtest.h>

#include <QLinearGradient>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const FigureStyle light{.face = {.family = u"Inter Display"_s, .weight = 300, .capRatio = 0.74}};

/// Red to the middle of the capitals, blue below it.
QBrush redOverBlue()
{
    QLinearGradient gradient(0, 0, 0, 1);
    gradient.setColorAt(0, Qt::red);
    gradient.setColorAt(0.5, Qt::red);
    gradient.setColorAt(0.5001, Qt::blue);
    gradient.setColorAt(1, Qt::blue);
    return gradient;
}

QImage pictured(double scale, Finish finish, CanvasRecord* record, const std::function<void(Canvas&)>& draw)
{
    return drawnWith(draw, {.record = record, .ground = Qt::black, .finish = finish}, scale, {160, 80});
}

qsizetype inkBetween(const QImage& image, int top, int bottom, const std::function<bool(const QColor&)>& counted)
{
    qsizetype count = 0;
    for (int y = std::max(0, top); y < std::min(bottom, image.height()); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            count += colour.alpha() > 0 && counted(colour) ? 1 : 0;
        }
    }
    return count;
}

} // namespace

TEST(Figure, DigitsStayPutWhateverTheyAre)
{
    const double width = figurePath(u"00:00"_s, {}, light, 1000).width;
    for (const QString& time : {u"11:11"_s, u"09:41"_s, u"23:58"_s})
        EXPECT_DOUBLE_EQ(figurePath(time, {}, light, 1000).width, width) << qPrintable(time);
}

TEST(Figure, AFigureSpaceIsADigitThatIsNotThere)
{
    const FigurePath padded = figurePath(u"\u2007\u200741"_s, {}, light, 1000);
    EXPECT_DOUBLE_EQ(padded.width, figurePath(u"0041"_s, {}, light, 1000).width);
    EXPECT_GT(padded.digits.boundingRect().left(), padded.width / 2);
}

TEST(Figure, APointWithoutAWidthStandsApartFromTheDigits)
{
    const FigureStyle segments{.face = {.family = u"DSEG7 Classic"_s, .weight = 700, .capRatio = 1}, .cap = 100};
    const FigurePath whole = figurePath(u"8.8"_s, {}, segments, 1000);
    const QPainterPath first = figurePath(u"8"_s, {}, segments, 1000).digits;
    const QPainterPath dot = figurePath(u"."_s, {}, segments, 1000).digits.translated(whole.places[1], 0);
    EXPECT_GT(dot.boundingRect().left(), first.boundingRect().right());
    EXPECT_LT(dot.boundingRect().right(), first.translated(whole.places[2], 0).boundingRect().left());
}

TEST(Figure, KernedDigitsTakeTheirOwnWidths)
{
    const FigureStyle kerned = light.kerned();
    EXPECT_LT(figureWidth(u"11"_s, {}, kerned, 1000), figureWidth(u"00"_s, {}, kerned, 1000) - 5);
    const QRectF apart = figurePath(u"41"_s, {}, light, 1000).digits.boundingRect();
    const QRectF together = figurePath(u"41"_s, {}, kerned, 1000).digits.boundingRect();
    EXPECT_LT(together.width(), apart.width());
    // The font's pairs: in Lato a 7 draws the 4 that follows it near.
    const FigureStyle lato{.face = {.family = u"Lato"_s}, .cap = 100, .tabular = false};
    const double pair = figureWidth(u"74"_s, {}, lato, 1000);
    EXPECT_LE(pair, figureWidth(u"7"_s, {}, lato, 1000) + figureWidth(u"4"_s, {}, lato, 1000) + 1e-6);
}

TEST(Figure, DigitsOfAnIntricateFaceAreKeptAndLookAsFilledAtOnce)
{
    const FigureStyle sketched{
        .face = {.family = u"CabinSketch"_s, .weight = 700, .capRatio = 0.7, .cell = 0.92}, .cap = 22, .fill = Qt::red};
    const FigureStyle variants[]{sketched, sketched.filled(Qt::blue), sketched.kerned().aligned(Align::right)};
    LayerCache layers; // one for all: a digit of another colour, size or place must not be taken for the same
    for (const double scale : {1.0, 1.25}) {
        for (const FigureStyle& style : variants) {
            for (const QString& value : {u"09:41"_s, u"14:90"_s, u"1000.41"_s}) {
                const auto draw = [&](Canvas& canvas) { canvas.figure({5.3, 10, 108, 40}, value, u"%"_s, style); };
                const QImage direct = drawnWith(draw, {}, scale);
                EXPECT_FALSE(inkOf(direct).isEmpty());
                for (int time = 0; time < 2; ++time) {
                    const QImage kept = drawnWith(draw, {.layers = &layers, .layerKey = u"test"_s}, scale);
                    int farthest = 0;
                    for (int y = 0; y < direct.height(); ++y) {
                        for (int x = 0; x < direct.width(); ++x)
                            farthest =
                                std::max(farthest, std::abs(qAlpha(direct.pixel(x, y)) - qAlpha(kept.pixel(x, y))));
                    }
                    EXPECT_LE(farthest, 12) << qPrintable(value) << " at " << scale;
                    EXPECT_EQ(inkOf(direct), inkOf(kept));
                }
            }
        }
    }
}

TEST(Figure, ShrinksToItsRoomAndIsNeverCut)
{
    const FigurePath roomy = figurePath(u"1000.00"_s, u"KB/s"_s, light, 1000);
    EXPECT_DOUBLE_EQ(roomy.cap, light.cap);
    for (const double room : {200.0, 120.0, 60.0, 20.0}) {
        const FigurePath path = figurePath(u"1000.00"_s, u"KB/s"_s, light, room);
        EXPECT_LE(path.width, room + 0.01);
        EXPECT_DOUBLE_EQ(figureWidth(u"1000.00"_s, u"KB/s"_s, light, room), path.width);
        EXPECT_EQ(path.digits.elementCount(), roomy.digits.elementCount()) << "a digit was lost";
    }
}

TEST(Figure, AGradientRunsFromTheTopOfTheCapitalsToTheBaseline)
{
    for (const Finish finish : {Finish::smooth, Finish::crisp}) {
        for (const double scale : {0.75, 1.0, 1.25, 2.0}) {
            for (const Box& box : {Box(10, 5, 140, 40), Box(20, 30, 140, 40)}) {
                const FigureStyle style = light.filled(redOverBlue());
                const QImage plain =
                    pictured(scale, finish, nullptr, [&](Canvas& canvas) { canvas.figure(box, u"80"_s, {}, style); });
                const int middle = static_cast<int>(std::lround(box.center().y() * scale));
                const auto red = [](const QColor& colour) { return colour.blue() == 0; };
                const auto blue = [](const QColor& colour) { return colour.red() == 0; };
                EXPECT_GT(inkBetween(plain, 0, middle - 2, red), 50 * scale * scale);
                EXPECT_EQ(inkBetween(plain, 0, middle - 2, blue), 0) << scale;
                EXPECT_GT(inkBetween(plain, middle + 2, 1000, blue), 50 * scale * scale);
                EXPECT_EQ(inkBetween(plain, middle + 2, 1000, red), 0) << scale;

                FigureStyle stroked = style;
                stroked.outline = 2;
                const QImage edged =
                    pictured(scale, finish, nullptr, [&](Canvas& canvas) { canvas.figure(box, u"80"_s, {}, stroked); });
                EXPECT_EQ(inkBetween(edged, 0, middle - 2, blue), 0) << "the outline has a frame of its own, " << scale;
                EXPECT_EQ(inkBetween(edged, middle + 2, 1000, red), 0) << scale;
            }
        }
    }
}

TEST(Figure, TheUnitOfAGradientTakesItsMostLegibleColour)
{
    CanvasRecord record;
    QLinearGradient gradient(0, 0, 0, 1);
    gradient.setColorAt(0, QColor(0x20, 0x20, 0x20));
    gradient.setColorAt(0.1, Qt::yellow);
    gradient.setColorAt(1, Qt::red);
    pictured(1, Finish::smooth, &record, [&](Canvas& canvas) {
        canvas.figure({10, 10, 140, 40}, u"42"_s, u"%"_s, light.filled(gradient));
    });
    ASSERT_EQ(record.size(), 2);
    EXPECT_EQ(record[1].colour, QColor(Qt::yellow));
    EXPECT_NE(record[0].colour, QColor(0x20, 0x20, 0x20)) << "a narrow dark band does not make it illegible";
}

TEST(Figure, GhostShadowGlowAndOutlineLieUnderTheDigitsAndAreNotRecorded)
{
    const Box box(10, 10, 140, 50);
    for (const Finish finish : {Finish::smooth, Finish::crisp}) {
        const auto picture = [&](const FigureStyle& style, CanvasRecord* record = nullptr) {
            return pictured(1, finish, record, [&](Canvas& canvas) { canvas.figure(box, u"1:17"_s, u"%"_s, style); });
        };
        const FigureStyle plain = light.filled(Qt::white);
        const auto white = [](const QColor& colour) { return colour == QColor(Qt::white); };
        const auto any = [](const QColor&) { return true; };
        const QImage bare = picture(plain);
        for (const FigureStyle& style : {plain.ghosted(QColor(255, 0, 0, 40)), plain.shadowed(Qt::red, {3, 3}),
                 plain.glowing({.colour = Qt::red}), plain.outlined(Qt::red, 2)}) {
            CanvasRecord record;
            const QImage dressed = picture(style, &record);
            EXPECT_EQ(record.size(), 2);
            EXPECT_GT(inkBetween(dressed, 0, 80, any) * 10, inkBetween(bare, 0, 80, any) * 12);
            EXPECT_EQ(inkBetween(dressed, 0, 80, white), inkBetween(bare, 0, 80, white))
                << "something lies over the digits";
        }
    }
}

} // namespace ambrelle
