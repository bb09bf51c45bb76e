// SPDX-License-Identifier: MIT

#include "drawing/Gradients.h"
#include "drawing/Arc.h"
#include "drawing/Drawn.h"

#include <gtest/gtest.h>

namespace ambrelle {

namespace {

const QPointF middle(60, 60);

QColor shownAt(const QBrush& brush, QPointF point)
{
    return drawnWith([&](Canvas& canvas) { canvas.fill(Box(0, 0, 120, 120), brush); }).pixelColor(point.toPoint());
}

int redAt(const QBrush& brush, double turns)
{
    return shownAt(brush, pointOn(middle, 40, turns)).red();
}

} // namespace

TEST(Gradients, RunFromTheFirstStopToTheLast)
{
    const QGradientStops stops{{0, Qt::black}, {1, Qt::white}};
    const Box box(20, 20, 80, 80);
    EXPECT_NEAR(shownAt(downwards(box, stops), {60, 60}).red(), 128, 3);
    EXPECT_LT(shownAt(downwards(box, stops), {90, 25}).red(), shownAt(downwards(box, stops), {25, 90}).red());
    EXPECT_LT(shownAt(across(box, stops), {25, 90}).red(), shownAt(across(box, stops), {90, 25}).red());
    EXPECT_LT(shownAt(radial(middle, 40, stops), {61, 60}).red(), 16);
    EXPECT_GT(shownAt(radial(middle, 40, stops), {97, 60}).red(), 230);
    EXPECT_EQ(shownAt(halo(middle, 20, Qt::red, 0.5), {90, 60}).alpha(), 0);
    EXPECT_NEAR(shownAt(halo(middle, 20, Qt::red, 0.5), {60, 60}).alpha(), 128, 8);
}

TEST(Gradients, GoRoundClockwise)
{
    const QBrush whole = conical(middle, 0.25, {{0, Qt::black}, {1, Qt::white}});
    EXPECT_LT(redAt(whole, 0.26), 10);
    EXPECT_NEAR(redAt(whole, 0.5), 64, 4);
    EXPECT_NEAR(redAt(whole, 0.0), 191, 4);
    EXPECT_GT(redAt(whole, 0.24), 245);

    for (const double turns : {0.3, 0.75, 0.95}) {
        const QBrush along = alongArc(middle, 0.1, turns, {{0, Qt::black}, {1, Qt::white}});
        EXPECT_NEAR(redAt(along, 0.1 + turns / 2), 128, 5) << turns;
        EXPECT_LT(redAt(along, 0.1), 8) << turns;
        EXPECT_LT(redAt(along, 0.1 - (1 - turns) / 3), 8) << turns; // below the round cap
        EXPECT_GT(redAt(along, 0.1 + turns), 247) << turns;
        EXPECT_GT(redAt(along, 0.1 + turns + (1 - turns) / 3), 247) << turns;
    }
    const QBrush closed = alongArc(middle, 0.1, 1, {{0, Qt::black}, {1, Qt::white}});
    EXPECT_LT(redAt(closed, 0.102), 10);
    EXPECT_NEAR(redAt(closed, 0.085), 128, 40);
    EXPECT_GT(redAt(closed, 0.06), 240);
    for (const double odd : {0.0, -1.0, 2.0})
        EXPECT_TRUE(alongArc(middle, 0, odd, {{0, Qt::black}, {1, Qt::white}}).gradient()) << odd;
}

} // namespace ambrelle
