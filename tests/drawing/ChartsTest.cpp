// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "drawing/Drawn.h"
#include "drawing/Fraction.h"

#include <gtest/gtest.h>

#include <limits>

namespace ambrelle {

TEST(Blocks, FillTheirBoxFromEndToEnd)
{
    const Box box(10, 20, 98, 30);
    QList<int> asked;
    const auto brushOf = [&](int index) {
        asked += index;
        return index < 3 ? QBrush(Qt::red) : QBrush(Qt::blue);
    };
    const QImage row = drawnWith([&](Canvas& canvas) { blocks(canvas, box, 10, 2, brushOf); });
    EXPECT_EQ(asked, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(inkOf(row), box.toRect());
    EXPECT_EQ(row.pixelColor(12, 30), QColor(Qt::red));
    EXPECT_EQ(row.pixelColor(106, 30), QColor(Qt::blue));
    EXPECT_EQ(row.pixelColor(19, 30).alpha(), 0) << "the gap";

    const Box tower(10, 10, 20, 98);
    const QImage column = drawnWith([&](Canvas& canvas) { blocks(canvas, tower, 10, 2, brushOf, {.upwards = true}); });
    EXPECT_EQ(inkOf(column), tower.toRect());
    EXPECT_EQ(column.pixelColor(20, 106), QColor(Qt::red));
    EXPECT_EQ(column.pixelColor(20, 12), QColor(Qt::blue));

    for (const double slant : {12.0, -12.0}) {
        const QImage leaning =
            drawnWith([&](Canvas& canvas) { blocks(canvas, box, 10, 2, brushOf, {.slant = slant}); });
        EXPECT_EQ(inkOf(leaning), box.toRect()) << slant;
        const QRect top = inkOf(leaning.copy(0, 20, 120, 1));
        const QRect bottom = inkOf(leaning.copy(0, 49, 120, 1));
        EXPECT_EQ(top.left() > bottom.left(), slant > 0);
    }
}

TEST(Blocks, AFractionLightsAsManyAsItIsNearest)
{
    struct Case {
        double fraction;
        int lit;
    };
    for (const Case& c : {Case{0, 0}, Case{0.04, 0}, Case{0.06, 1}, Case{0.5, 5}, Case{1, 10}, Case{7, 10}, Case{-1, 0},
             Case{std::numeric_limits<double>::quiet_NaN(), 0}})
        EXPECT_EQ(litOf(c.fraction, 10), c.lit) << c.fraction;
}

TEST(Glow, HasACoreOfItsOwnColour)
{
    QPainterPath path(QPointF(20, 60));
    path.lineTo(100, 60);
    const auto at = [&](const Glow& style, QPoint point) {
        return drawnWith([&](Canvas& canvas) { glow(canvas, path, style); }).pixelColor(point);
    };
    EXPECT_EQ(at({.colour = Qt::red, .width = 4, .core = Qt::white}, {60, 60}), QColor(Qt::white));
    EXPECT_EQ(at({.colour = Qt::red, .width = 4}, {60, 60}), QColor(Qt::red));
    const QColor near = at({.colour = Qt::red, .width = 4, .core = Qt::white}, {60, 64});
    EXPECT_TRUE(near.alpha() > 0 && near.alpha() < 255 && near.green() == 0);
}

} // namespace ambrelle
