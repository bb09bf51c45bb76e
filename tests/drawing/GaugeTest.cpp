// SPDX-License-Identifier: MIT

#include "drawing/Gauge.h"
#include "drawing/Arc.h"
#include "drawing/Drawn.h"

#include <gtest/gtest.h>

#include <limits>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const Gauge dial{.centre = {60, 60}, .radius = 50};
const Gauge ring{.centre = {60, 60}, .radius = 50, .start = 0, .sweep = 360};
const Needle pin{.length = 46, .tail = 8, .fill = QColor(Qt::red)};

void expectNear(QPointF point, QPointF expected)
{
    EXPECT_LT(QLineF(point, expected).length(), 0.1)
        << point.x() << ' ' << point.y() << " for " << expected.x() << ' ' << expected.y();
}

bool isInked(const QImage& image, QPointF point)
{
    return qAlpha(image.pixel(point.toPoint())) > 100;
}

} // namespace

TEST(Arc, RunsClockwiseFromTwelve)
{
    const Box circle = squareAbout({60, 60}, 50);
    expectNear(pointOn({60, 60}, 50, 0), {60, 10});
    expectNear(pointOn({60, 60}, 50, 0.25), {110, 60});
    const QPainterPath quarter = arc(circle, 0.25, 0.25);
    expectNear(quarter.elementAt(0), {110, 60});
    expectNear(quarter.currentPosition(), {60, 110});
    expectNear(arc(circle, 0.25, -0.25).currentPosition(), {60, 10});

    const QPainterPath piece = ringPiece(circle, 10, 0, 0.25);
    EXPECT_TRUE(piece.contains(pointOn({60, 60}, 45, 0.125)));
    EXPECT_FALSE(piece.contains(pointOn({60, 60}, 38, 0.125)));
    EXPECT_FALSE(piece.contains(pointOn({60, 60}, 45, 0.27)));
    const QPainterPath leaning = ringPiece(circle, 10, 0, 0.25, 0.05);
    EXPECT_FALSE(leaning.contains(pointOn({60, 60}, 41, 0.02)));
    EXPECT_TRUE(leaning.contains(pointOn({60, 60}, 41, 0.28)));
    for (const QPainterPath& whole : {ringPiece(circle, 10, 0.3, 1), ringPiece(circle, 10, 0.3, 1.7)}) {
        EXPECT_TRUE(whole.contains(pointOn({60, 60}, 45, 0.3)));
        EXPECT_FALSE(whole.contains({60, 60}));
    }
    EXPECT_TRUE(slice(circle, 0, 0.25).contains(QPointF(80, 40)));
    EXPECT_FALSE(slice(circle, 0, 0.25).contains(QPointF(40, 40)));
}

TEST(Gauge, PlacesItsScaleBetweenStartAndEnd)
{
    const double side = 50 * std::sqrt(0.5);
    expectNear(dial.at(0, 50), {60 - side, 60 + side});
    expectNear(dial.at(0.5, 50), {60, 10});
    expectNear(dial.at(1, 50), {60 + side, 60 + side});
    expectNear(dial.arc(0, 0.5, 50).currentPosition(), {60, 10});
    EXPECT_TRUE(dial.band(0.4, 0.6, 6).contains(QPointF(60, 13)));
    EXPECT_FALSE(dial.band(0.4, 0.6, 6).contains(QPointF(60, 18)));
    const Gauge inBox = Gauge::in({10, 0, 100, 80});
    EXPECT_EQ(inBox.centre, QPointF(60, 40));
    EXPECT_EQ(inBox.radius, 40);
}

TEST(Gauge, HasATickAtBothEndsUnlessItIsAFullCircle)
{
    const auto ticksOf = [](const Gauge& gauge, int steps) {
        QList<int> asked;
        drawnWith([&](Canvas& canvas) {
            gauge.ticks(canvas, steps, [&](int index) {
                asked += index;
                return Tick{};
            });
        });
        return asked.size();
    };
    EXPECT_EQ(ticksOf(dial, 40), 41);
    EXPECT_EQ(ticksOf(ring, 60), 60);
    const QImage ticks = drawnWith([](Canvas& canvas) {
        dial.ticks(canvas, 4, 2, {.length = 10, .pen = QPen(Qt::red, 3)}, {.length = 5, .pen = QPen(Qt::red, 3)});
    });
    EXPECT_TRUE(isInked(ticks, dial.at(0.5, 42)));
    EXPECT_FALSE(isInked(ticks, dial.at(0.25, 42)));
    EXPECT_TRUE(isInked(ticks, dial.at(0.25, 47)));
}

TEST(Gauge, SpreadsNumeralsFromEndToEnd)
{
    CanvasRecord record;
    const TextStyle text{.face = {.family = u"Inter"_s}, .size = 9, .colour = Qt::black};
    drawnWith(
        [&](Canvas& canvas) {
            dial.numerals(canvas, {u"0"_s, u"50"_s, u"100"_s}, 36, text);
            ring.numerals(canvas, {u"12"_s, u"3"_s, u"6"_s, u"9"_s}, 36, text);
        },
        {.record = &record});
    ASSERT_EQ(record.size(), 7);
    const QList<QPointF> places{dial.at(0, 36), dial.at(0.5, 36), dial.at(1, 36), ring.at(0, 36), ring.at(0.25, 36),
        ring.at(0.5, 36), ring.at(0.75, 36)};
    for (qsizetype index = 0; index < record.size(); ++index) {
        EXPECT_TRUE(record[index].axis && !record[index].cut) << index;
        EXPECT_TRUE(record[index].box.contains(record[index].ink)) << index;
        expectNear(record[index].box.center(), places[index]);
    }
}

TEST(Gauge, BlocksAreEqualAndFillTheScale)
{
    for (const Gauge& gauge : {dial, ring}) {
        const double gap = 4;
        const double room = gauge.isFull() ? gap / 2 : 0;
        const auto edge = [&](int index, double degrees) {
            const double length = gauge.isFull() ? 360.0 / 12 - gap : (270 + gap) / 12 - gap;
            const double from = gauge.start + room + (length + gap) * index;
            return gauge.block(index, 12, gap, 8).contains(pointOn(gauge.centre, 46, (from + degrees) / 360))
                && gauge.block(index, 12, gap, 8).contains(pointOn(gauge.centre, 46, (from + length - degrees) / 360));
        };
        for (int index = 0; index < 12; ++index) {
            EXPECT_TRUE(edge(index, 0.1)) << index;
            EXPECT_FALSE(edge(index, -0.1)) << index;
        }
    }
}

TEST(GaugeNeedle, StandsStillWithoutTremblingOrAnythingToMeasure)
{
    for (const double nothing : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_TRUE(
            movingAreasOf([&](Canvas& canvas) { dial.needle(canvas, nothing, pin, {.degrees = 1}); }).isEmpty());
    EXPECT_TRUE(movingAreasOf([&](Canvas& canvas) { dial.needle(canvas, 0.4, pin); }).isEmpty());
}

TEST(GaugeNeedle, IsOnItsValueAtTimeZeroAndNeverLeavesATightArea)
{
    QList<Needle> needles(4, pin);
    needles[1].pointed = true;
    needles[1].hub = 6;
    needles[2].shadow = QColor(0, 0, 0, 90);
    needles[3].tail = -30;
    needles[3].round = true;
    for (const Needle& needle : needles) {
        for (const double fraction : {0.1, 0.37, 0.5, 1.0, 7.0}) {
            const auto still = [&](Canvas& canvas) { dial.needle(canvas, fraction, needle); };
            const auto trembling = [&](Canvas& canvas) { dial.needle(canvas, fraction, needle, {.degrees = 1.5}); };
            EXPECT_EQ(movedTo(0, trembling), drawnWith(still));
            EXPECT_EQ(movedTo(12.3, trembling), movedTo(12.3, trembling));
            const auto areas = movingAreasOf(trembling);
            ASSERT_EQ(areas.size(), 1);
            EXPECT_EQ(areas[0].motion, Motion::steady(12));
            QRect touched;
            for (double t = 0; t < 120; t += 2.3)
                touched |= inkOf(movedTo(t, trembling));
            EXPECT_TRUE(areas[0].area.toAlignedRect().contains(touched)) << fraction;
            EXPECT_LT(areas[0].area.width(), touched.width() + 6) << fraction;
            EXPECT_LT(areas[0].area.height(), touched.height() + 6) << fraction;
        }
    }
}

TEST(GaugeNeedle, IsCutToItsWindow)
{
    Needle needle = pin;
    needle.shadow = QColor(0, 0, 0, 90);
    for (const Box& window : {Box(30, 20, 60, 30), Box(0, 0, 10, 10)}) {
        needle.window = window;
        for (const double fraction : {0.35, 0.5, 0.65}) {
            const QRect ink = inkOf(drawnWith([&](Canvas& canvas) { dial.needle(canvas, fraction, needle); }));
            EXPECT_TRUE(ink.isEmpty() || window.inset(-2).contains(QRectF(ink))) << fraction;
            EXPECT_EQ(ink.isEmpty(), window.width() < 20) << fraction;
        }
    }
}

TEST(ClockHands, PointToTheTime)
{
    struct Case {
        int hour;
        int minute;
        QList<double> hands; // turns
    };
    ClockHands hands = ClockHands::plain(50, QColor(Qt::black), QColor(Qt::red));
    for (const Case& c : {Case{3, 0, {0.25, 0}}, Case{21, 30, {9.5 / 12, 0.5}}, Case{0, 45, {0.75 / 12, 0.75}}}) {
        const auto draw = [&](Canvas& canvas) { hands.draw(canvas, {60, 60}, c.hour, c.minute, 20); };
        const QImage image = drawnWith(draw);
        EXPECT_TRUE(isInked(image, pointOn({60, 60}, 20, c.hands[0]))) << c.hour;
        EXPECT_FALSE(isInked(image, pointOn({60, 60}, 34, c.hands[0]))) << c.hour;
        EXPECT_TRUE(isInked(image, pointOn({60, 60}, 34, c.hands[1]))) << c.hour;
        EXPECT_TRUE(isInked(movedTo(0, draw), pointOn({60, 60}, 36, 20.0 / 60))) << c.hour;
        EXPECT_FALSE(isInked(image, pointOn({60, 60}, 36, 20.0 / 60))) << "only the second is painted when it passes";
    }
    const auto ink = [&](std::optional<int> second) {
        return movedTo(0, [&](Canvas& canvas) { hands.draw(canvas, {60, 60}, 3, 0, second); });
    };
    EXPECT_NE(ink(20), ink({}));
}

} // namespace ambrelle
