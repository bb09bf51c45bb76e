// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"
#include "drawing/Charts.h"
#include "drawing/LayerCache.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QImage blank(int side = 64)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

TEST(Canvas, AStillLayerIsDrawnOnceForEachSizeAndLooksAsDrawnDirectly)
{
    LayerCache layers;
    int drawings = 0;
    const auto draw = [&](Canvas& canvas) {
        ++drawings;
        canvas.disc({20, 20}, 15.3, Qt::red);
    };
    const auto picture = [&](LayerCache* cache, double scale, QPointF at) {
        QImage image = blank();
        QPainter painter(&image);
        painter.translate(at);
        painter.scale(scale, scale);
        Canvas canvas(painter, {.layers = cache, .layerKey = u"test"_s});
        canvas.still(u"disc"_s, {0, 0, 40, 40}, draw);
        return image;
    };
    const auto ask = [&](double level) {
        QImage image = blank();
        QPainter painter(&image);
        Canvas canvas(painter, {.layers = &layers, .layerKey = u"test"_s});
        canvas.still(u"level"_s, {0, 0, 40, 40}, draw, level, u"name"_s, QColor(Qt::red));
    };
    ask(0.25);
    ask(0.25);
    EXPECT_EQ(drawings, 1);
    ask(0.5);
    EXPECT_EQ(drawings, 2) << "a layer of another value was shown";
    for (const double scale : {1.0, 1.25, 0.75}) {
        for (const QPointF at : {QPointF(3, 5), QPointF(3.5, 5.25)}) {
            const QImage kept = picture(&layers, scale, at);
            const int before = drawings;
            EXPECT_EQ(picture(&layers, scale, at), kept);
            EXPECT_EQ(drawings, before) << "the layer was drawn again";
            EXPECT_EQ(picture(nullptr, scale, at), kept) << scale;
        }
    }
}

TEST(Canvas, TheMovingPassDrawsNothingThatStandsStill)
{
    QImage image = blank();
    QPainter painter(&image);
    Canvas canvas(painter, {.pass = Canvas::Pass::moving, .time = 2.5});
    const QPen pen(Qt::red, 3);
    canvas.fill(Box(0, 0, 64, 64), Qt::red);
    canvas.frame(Box(0, 0, 64, 64), pen);
    canvas.line({0, 0}, {64, 64}, pen);
    canvas.text(Box(0, 0, 64, 20), u"text"_s, {.face = {.family = u"Inter"_s}, .colour = Qt::red});
    canvas.figure(Box(0, 20, 64, 40), u"42"_s, {}, {.face = {.family = u"Inter"_s}, .fill = Qt::red});
    canvas.symbol(Box(0, 0, 64, 64), u"clock"_s, 40, Qt::red);
    canvas.paint([](QPainter& p) { p.fillRect(0, 0, 64, 64, Qt::red); });
    EXPECT_EQ(image, blank());
    double moment = 0;
    canvas.moving({10, 10, 4, 4}, Motion::steady(10), [&](Canvas& part, double time) {
        moment = time;
        part.fill(Box(10, 10, 4, 4), Qt::blue);
    });
    EXPECT_EQ(moment, 2.5);
    EXPECT_EQ(image.pixelColor(12, 12), QColor(Qt::blue));
    EXPECT_EQ(canvas.movingAreas().size(), 1);
}

TEST(Canvas, WidthsAreTheSameInBothPasses)
{
    const TextStyle text{.face = {.family = u"Inter"_s}, .size = 13, .colour = Qt::red};
    const FigureStyle figure{.face = {.family = u"Inter Display"_s}, .cap = 30, .fill = Qt::red};
    QList<QList<double>> widths;
    for (const Canvas::Pass pass : {Canvas::Pass::still, Canvas::Pass::moving}) {
        QImage image = blank();
        QPainter painter(&image);
        Canvas canvas(painter, {.pass = pass});
        widths.append({canvas.text(Box(0, 0, 60, 20), u"name"_s, text),
            canvas.text(Box(0, 0, 60, 20), u"a name that is cut"_s, text),
            canvas.figure(Box(0, 0, 200, 40), u"12:34"_s, u"%"_s, figure),
            canvas.figure(Box(0, 0, 40, 40), u"1000.00"_s, u"KB/s"_s, figure),
            canvas.figure(Box(0, 0, 200, 40), u"11:17"_s, {}, figure.kerned())});
    }
    EXPECT_EQ(widths[0], widths[1]);
    EXPECT_GT(widths[1][0], 20);
    EXPECT_GT(widths[1][2], 80);
}

TEST(BurstSchedule, DrawsWithinBurstsAndOnceJustAfter)
{
    const BurstSchedule schedule{.period = 9, .offset = 1.37, .burst = 0.35, .fps = 28};
    double t = 1000;
    int frames = 0;
    int rests = 0;
    for (const double end = t + 90; t < end;) {
        const double next = schedule.next(t);
        ASSERT_GT(next, t) << "the schedule must move on";
        const double phase = std::fmod(t + schedule.offset, schedule.period);
        if (phase < schedule.burst) {
            EXPECT_LE(next, t - phase + schedule.burst + 0.001 + 1e-9);
            ++frames;
        } else {
            EXPECT_NEAR(std::fmod(next + schedule.offset + 1e-9, schedule.period), 0, 1e-6) << "rest ends with a burst";
            ++rests;
        }
        t = next;
    }
    EXPECT_NEAR(rests, 10, 1);
    EXPECT_NEAR(frames, 10 * 0.35 * 28, 12);
}

TEST(Wave, FlickersForAThirdOfASecondAndWobblesWithinOne)
{
    struct Case {
        double t;
        double seed;
        double expected;
    };
    for (const Case& c : {Case{0, 0, 0.35}, Case{0.34, 0, 0.9}, Case{0.5, 0, 1}, Case{0, 1, 1}, Case{-0.2, 0, 1}})
        EXPECT_DOUBLE_EQ(Wave::flicker(c.t, c.seed), c.expected) << c.t << ' ' << c.seed;
    for (double t = -50; t < 50; t += 0.013)
        EXPECT_LE(std::abs(Wave::wobble(t, 3.1)), 1.0);
}

TEST(Motion, BurstsMeetTheFlickerOfTheSameSeed)
{
    // While a tube is dark or dim, frames must be due: otherwise it would freeze in that state.
    const Motion motion = Motion::bursts(9, 4, 0.35, 28);
    for (double t = 0; t < 27; t += 0.01) {
        if (Wave::flicker(t, 4) < 1) {
            EXPECT_LT(motion.next(t) - t, 0.05) << t;
        }
    }
}

TEST(Motion, TellsHowFarABurstHasCome)
{
    const Motion motion = Motion::bursts(12, 3, 1.5, 15);
    const double start = motion.next(1000);
    EXPECT_NEAR(motion.phase(start + 0.0001).value_or(7), 0, 0.001);
    EXPECT_NEAR(motion.phase(start + 0.75).value_or(7), 0.5, 0.001);
    EXPECT_EQ(motion.phase(start + 1.501), std::nullopt);
    EXPECT_EQ(motion.phase(start - 0.001), std::nullopt);
    EXPECT_EQ(Motion::steady(20).phase(3), std::nullopt);
}

TEST(Charts, SamplesSpanTheBoxAndStayInIt)
{
    const Box box(10, 20, 100, 40);
    const QList<double> samples{0, 0.5, 7, -3, std::numeric_limits<double>::quiet_NaN(), 1};
    const QPolygonF points = samplePoints(box, samples, 1);
    EXPECT_EQ(points.first(), QPointF(10, 60));
    EXPECT_EQ(points.last(), QPointF(110, 20));
    const QRectF bounds = smoothLine(points).boundingRect();
    EXPECT_TRUE(QRectF(box).adjusted(-0.01, -0.01, 0.01, 0.01).contains(bounds));
    EXPECT_TRUE(smoothLine(samplePoints(box, {}, 1)).isEmpty());
    for (const int bars : {1, 7, 20, 60, 90}) {
        const QList<double> means = binned(QList<double>(60, 0.25), bars);
        EXPECT_EQ(means, QList<double>(bars, 0.25));
    }
}

} // namespace ambrelle
