// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "drawing/Drawn.h"
#include "drawing/Hatch.h"
#include "drawing/Ribbon.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr StrokeManner byHand[] = {StrokeManner::chalk, StrokeManner::marker, StrokeManner::brush};

QImage stroked(StrokeManner manner, const std::function<void(Canvas&)>& draw, double scale = 1)
{
    return drawnWith(draw, {.manner = manner}, scale, {120, 60});
}

/// How much of the picture is inked, in whole pixels.
double inked(const QImage& image, const QRect& area = {0, 0, 10000, 10000})
{
    double sum = 0;
    const QRect part = area & image.rect();
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    return sum;
}

} // namespace

TEST(StrokeManner, DrawsEveryLineAsTheSamePictureNearItsPath)
{
    QPainterPath arch;
    arch.arcMoveTo(QRectF(20, 10, 80, 80), 180);
    arch.arcTo(QRectF(20, 10, 80, 80), 180, -180);
    const QPolygonF graph{{10, 40}, {40, 20}, {70, 45}, {110, 15}};
    const std::pair<const char*, std::function<void(Canvas&)>> lines[] = {
        {"path", [&](Canvas& canvas) { canvas.stroke(arch, QPen(Qt::red, 2.4)); }},
        {"line",
            [](Canvas& canvas) {
                canvas.line({10, 50}, {110, 10}, QPen(Qt::red, 2.4));
            }},
        {"frame",
            [](Canvas& canvas) {
                canvas.frame({10, 10, 100, 40}, QPen(Qt::red, 2.4), 6);
            }},
        {"rule",
            [](Canvas& canvas) {
                canvas.rule({10, 20, 100, 20}, Qt::red, 2.4);
            }},
        {"graph", [&](Canvas& canvas) { graphLine(canvas, smoothLine(graph), Qt::red, 2.4); }},
        {"dashes",
            [](Canvas& canvas) {
                canvas.line({10, 30}, {110, 30}, QPen(Qt::red, 2.4, Qt::DashLine));
            }},
        {"dots",
            [](Canvas& canvas) {
                canvas.line({10, 30}, {110, 30}, QPen(Qt::red, 2.4, Qt::DotLine, Qt::RoundCap));
            }},
    };
    for (const auto& [name, draw] : lines) {
        const QImage plain = stroked(StrokeManner::plain, draw);
        QPainterPath near;
        for (const StrokeManner manner : byHand) {
            const QImage hand = stroked(manner, draw);
            EXPECT_NE(hand, plain) << name << " has no manner";
            EXPECT_EQ(stroked(manner, draw), hand) << name;
            EXPECT_NEAR(inked(hand), inked(plain), 0.45 * inked(plain)) << name << ' ' << static_cast<int>(manner);
            // Nothing lies farther away than the line may waver.
            for (int y = 0; y < hand.height(); ++y) {
                for (int x = 0; x < hand.width(); ++x) {
                    const QRect around(x - 3, y - 3, 7, 7);
                    if (qAlpha(hand.pixel(x, y)) > 0 && inked(plain, around) == 0)
                        ADD_FAILURE() << name << " strays to " << x << ' ' << y;
                }
            }
        }
    }
}

TEST(StrokeManner, ALineThatGrowsKeepsItsBeginning)
{
    for (const StrokeManner manner : {StrokeManner::chalk, StrokeManner::marker}) {
        const auto arc = [&](double degrees) {
            return stroked(manner, [&](Canvas& canvas) {
                QPainterPath path;
                path.arcMoveTo(QRectF(10, 10, 100, 100), 180);
                path.arcTo(QRectF(10, 10, 100, 100), 180, -degrees);
                canvas.stroke(path, QPen(Qt::red, 2));
            });
        };
        const QRect beginning(0, 40, 20, 20);
        EXPECT_EQ(arc(110).copy(beginning), arc(170).copy(beginning));
    }
}

TEST(StrokeManner, EqualDrawingsAtTwoPlacesWaverDifferently)
{
    const auto at = [](double x) {
        return stroked(StrokeManner::chalk, [&](Canvas& canvas) {
            canvas.mapped(QTransform::fromTranslate(x, 0), [&] { canvas.line({2, 5}, {40, 40}, QPen(Qt::red, 2)); });
        });
    };
    EXPECT_NE(at(0).copy(0, 0, 50, 60), at(48).copy(48, 0, 50, 60));
}

TEST(StrokeManner, DustLeavesAnEighthOfTheChalkBare)
{
    for (const double scale : {1.0, 2.0}) {
        const QImage broad = stroked(
            StrokeManner::chalk,
            [](Canvas& canvas) {
                canvas.line({10, 30}, {110, 30}, QPen(Qt::red, 30));
            },
            scale);
        const QRect middle(static_cast<int>(20 * scale), static_cast<int>(20 * scale), static_cast<int>(80 * scale),
            static_cast<int>(20 * scale));
        const double cover = inked(broad, middle) / (middle.width() * middle.height());
        const double solid = 1 - (1 - 0.9) * (1 - 0.35);
        EXPECT_NEAR(cover, solid * 0.88, 0.04) << scale;
    }
}

TEST(Ribbon, HasItsWidthEverywhere)
{
    const QPolygonF line{{10, 30}, {60, 30}, {110, 30}};
    const QPainterPath even = ribbon(line, 4);
    EXPECT_EQ(even.boundingRect(), QRectF(10, 28, 100, 4));
    const QPainterPath wedge = ribbon(line, [](double along) { return 2 + 6 * along; });
    EXPECT_TRUE(wedge.contains(QPointF(109, 33.8)) && !wedge.contains(QPointF(11, 31.5)));
    EXPECT_NEAR(ribbon(line, 4, true).boundingRect().left(), 8, 0.01);
    EXPECT_TRUE(ribbon(QPolygonF{{1, 1}}, 4).isEmpty());
}

TEST(Hatch, FillsTheShapeAndNothingElseOnOneGrid)
{
    QPainterPath ring;
    ring.addEllipse(QPointF(60, 30), 28, 28);
    ring.addEllipse(QPointF(60, 30), 10, 10);
    const auto hatched = [](const QPainterPath& shape, double pitch) {
        return stroked(StrokeManner::plain,
            [&](Canvas& canvas) { hatch(canvas, shape, 45, pitch, QPen(Qt::red, 0.5, Qt::SolidLine, Qt::FlatCap)); });
    };
    const QImage image = hatched(ring, 3);
    const double area = 3.14159 * (28 * 28 - 10 * 10);
    EXPECT_NEAR(inked(image), area * 0.5 / 3, area * 0.02);
    EXPECT_EQ(inked(image, {55, 25, 10, 10}), 0) << "the hole is hatched";
    EXPECT_EQ(inked(image, {0, 0, 30, 60}), 0);
    // A line at 45 degrees rises to the right.
    QPainterPath all;
    all.addRect(0, 0, 120, 60);
    const QImage whole = hatched(all, 20);
    for (int step = 5; step < 30; ++step)
        EXPECT_EQ(qAlpha(whole.pixel(40 + step, 40 - step)), qAlpha(whole.pixel(45, 35))) << step;
    QPainterPath part;
    part.addRect(20, 10, 40, 30);
    EXPECT_EQ(hatched(part, 7).copy(25, 15, 30, 20), hatched(all, 7).copy(25, 15, 30, 20));
    EXPECT_EQ(inked(hatched({}, 3)), 0);
    EXPECT_EQ(inked(hatched(ring, 0)), 0);
}

TEST(Hatch, LeadersStandBelowEachOtherAndWavesEndOnTheirLine)
{
    const QImage image = stroked(StrokeManner::plain, [](Canvas& canvas) {
        dottedLeader(canvas, 13, 100, 20, Qt::red);
        dottedLeader(canvas, 30.7, 90, 40, Qt::red);
    });
    EXPECT_EQ(image.copy(35, 15, 50, 6), image.copy(35, 35, 50, 6));
    EXPECT_EQ(inked(image, {0, 0, 13, 60}) + inked(image, {100, 0, 20, 60}), 0);
    EXPECT_NEAR(inked(image, {0, 0, 120, 30}), (100 - 13) / 4.0, 1.5);

    const QPainterPath wave = wavyLine({10, 10}, {50, 40}, 3, 7);
    EXPECT_EQ(wave.currentPosition(), QPointF(50, 40));
    const QRectF bounds = wavyLine({10, 10}, {90, 10}, 3, 8).boundingRect();
    EXPECT_NEAR(bounds.top(), 7, 0.01);
    EXPECT_NEAR(bounds.bottom(), 13, 0.01);
    EXPECT_TRUE(wavyLine({10, 10}, {10, 10}, 3, 8).isEmpty());
}

} // namespace ambrelle
