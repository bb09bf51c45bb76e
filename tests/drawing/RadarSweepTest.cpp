// SPDX-License-Identifier: MIT

#include "drawing/RadarSweep.h"
#include "drawing/Arc.h"
#include "drawing/Drawn.h"

#include <gtest/gtest.h>

namespace ambrelle {

namespace {

const RadarSweep beam{.colour = QColor(0, 255, 80), .period = 5};

QImage beamAt(double time)
{
    return movedTo(time, [](Canvas& canvas) { beam.draw(canvas, {0, 10, 120, 100}); });
}

int lightAt(const QImage& image, double turns)
{
    const QPointF place = pointOn({60, 60}, 30, turns);
    return qAlpha(image.pixel(static_cast<int>(place.x()), static_cast<int>(place.y())));
}

} // namespace

TEST(RadarSweep, MovesInTheDiscOnly)
{
    const auto areas = movingAreasOf([](Canvas& canvas) { beam.draw(canvas, {0, 10, 120, 100}); });
    ASSERT_EQ(areas.size(), 1);
    EXPECT_EQ(areas[0].area, QRectF(10, 10, 100, 100));
    EXPECT_EQ(areas[0].motion, Motion::steady(20));
    for (double t = 0; t < 5; t += 0.17) {
        EXPECT_TRUE(QRect(10, 10, 100, 100).contains(inkOf(beamAt(t)))) << t;
        EXPECT_EQ(beamAt(t), beamAt(t));
    }
}

TEST(RadarSweep, FadesBehindTheBeamAndTurnsOnceAPeriod)
{
    struct Case {
        double time;
        double from; // turns
    };
    for (const Case& c : {Case{0, 0}, Case{1.25, 0.25}, Case{4, 0.8}, Case{500, 0}}) {
        const QImage image = beamAt(c.time);
        EXPECT_GT(lightAt(image, c.from + 60.0 / 360), 150) << c.time; // the beam itself
        int before = 0;
        for (const double degrees : {6.0, 20.0, 34.0, 48.0, 56.0}) {
            const int light = lightAt(image, c.from + degrees / 360);
            EXPECT_GT(light, before) << c.time << ' ' << degrees;
            before = light;
        }
        for (const double degrees : {64.0, 120.0, 200.0, 300.0, 356.0, 359.0})
            EXPECT_EQ(lightAt(image, c.from + degrees / 360), 0) << c.time << ' ' << degrees;
    }
}

} // namespace ambrelle
