// SPDX-License-Identifier: MIT

#include "skins/hifi/Nixie.h"
#include "skins/hifi/VuMeter.h"

#include <QImage>

#include <gtest/gtest.h>

#include <limits>

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;
namespace {

class HiFiNeedle : public testing::Test {
protected:
    QList<Canvas::MovingArea> movingAreas(const std::function<void(Canvas&)>& draw)
    {
        QPainter painter(&m_image);
        Canvas canvas(painter, {});
        draw(canvas);
        return canvas.movingAreas();
    }

    SkinStyle m_style = makeStyle(std::nullopt);
    VuMeter m_meter{.style = m_style, .window = Box(16, 38, 138, 70)};

private:
    QImage m_image{170, 170, QImage::Format_ARGB32_Premultiplied};
};

TEST_F(HiFiNeedle, SweepsFromLeftToRightInsideItsWindow)
{
    double before = -1;
    for (const double fraction : {0.0, 0.25, 0.5, 0.85, 1.0}) {
        const QPointF tip = m_meter.at(fraction, m_meter.radius() + 3.5);
        EXPECT_TRUE(m_meter.window.contains(tip)) << fraction;
        EXPECT_GT(tip.x(), before);
        before = tip.x();
    }
    EXPECT_DOUBLE_EQ(m_meter.at(0.5, 10).x(), m_meter.window.center().x());
}

TEST_F(HiFiNeedle, RestsWithoutASignalAndElseMovesInATightArea)
{
    for (const double nothing : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_TRUE(movingAreas([&](Canvas& canvas) { m_meter.needle(canvas, nothing, 1); }).isEmpty()) << nothing;
    for (const double fraction : {0.3, 1.0, 7.0}) {
        const auto areas = movingAreas([&](Canvas& canvas) { m_meter.needle(canvas, fraction, 1); });
        ASSERT_EQ(areas.size(), 1) << fraction;
        EXPECT_TRUE(m_meter.window.contains(areas[0].area)) << fraction;
        EXPECT_LT(areas[0].area.width(), m_meter.window.width() * 0.6) << fraction;
    }
}

TEST_F(HiFiNeedle, TubesAreLitAtTimeZeroAndOnlyDigitsFlicker)
{
    const Nixies tubes{.style = m_style, .cap = 30, .name = u"t"_s};
    const auto areas = movingAreas([&](Canvas& canvas) { tubes.draw(canvas, {0, 0, 170, 60}, u" 9:41"_s); });
    EXPECT_EQ(areas.size(), 3); // the blank and the colon stay as they are
    for (const Canvas::MovingArea& area : areas)
        EXPECT_GT(area.motion.next(0), area.motion.burst) << "a burst runs at time 0";
}

} // namespace
} // namespace ambrelle::hifi
