// SPDX-License-Identifier: MIT

#include "platform/toolkit/PixelGrid.h"
#include "platform/x11/window/RoundedRows.h"

#include <gtest/gtest.h>

#include <set>

namespace ambrelle {
namespace {

TEST(PixelGridTest, RoundsOutToEdgesThatPointsAndPixelsShare)
{
    struct Case {
        double ratio;
        QRectF area;
        QRect expected;
    };
    const Case cases[]{
        {1, {3.2, 4, 5, 6}, {3, 4, 6, 6}},
        {2, {-1.5, 0, 2, 3}, {-2, 0, 3, 3}},
        {1.5, {1, 2, 3, 3}, {0, 2, 4, 4}},
        {1.25, {5, 8, 3, 4}, {4, 8, 4, 4}},
        {1.1, {1, 1, 1, 1}, {0, 0, 10, 10}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(PixelGrid(each.ratio).covering(each.area), each.expected) << each.ratio;
}

TEST(RoundedRowsTest, CoversTheRoundedRectangleOnce)
{
    int pixels = 0;
    for (const xcb_rectangle_t& row : roundedRows({10, 20, 60, 40}, 12)) {
        pixels += row.width * row.height;
        EXPECT_TRUE(QRect(10, 20, 60, 40).contains(QRect(row.x, row.y, row.width, row.height)));
    }
    EXPECT_NEAR(pixels, 60 * 40 - (4 - M_PI) * 12 * 12, 12);
    EXPECT_TRUE(roundedRows({}, 5).empty());
}

TEST(RoundedRowsTest, CoversATurnedShapeOnce)
{
    const QPolygonF turned({{30, 20}, {90, 24}, {86, 64}, {26, 60}});
    std::set<std::pair<int, int>> pixels;
    for (const xcb_rectangle_t& row : shapeRows(turned)) {
        for (int y = row.y; y < row.y + row.height; ++y) {
            for (int x = row.x; x < row.x + row.width; ++x) {
                EXPECT_TRUE(pixels.emplace(x, y).second) << x << ' ' << y;
                EXPECT_TRUE(turned.boundingRect().contains(x + 0.5, y + 0.5));
            }
        }
    }
    EXPECT_NEAR(static_cast<double>(pixels.size()), 60 * 40 + 16, 60) << "its area";
    EXPECT_FALSE(pixels.contains({27, 21})) << "a corner that is not its own";
    EXPECT_TRUE(pixels.contains({58, 42}));
}

} // namespace
} // namespace ambrelle
