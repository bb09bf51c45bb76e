// SPDX-License-Identifier: MIT

#include "placement/AlignmentHelp.h"
#include "placement/InstructionPlace.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

ScreenInfo screenAt(const QRectF& frame)
{
    return {.id = QString::number(frame.x()), .frame = frame, .visibleFrame = frame.adjusted(0, 0, 0, -40)};
}

const QRectF screenFrame(0, 0, 1440, 900);
const QSizeF small(170, 170);

AlignmentHelp::Result align(QPointF wanted, const QList<QRectF>& neighbours)
{
    return AlignmentHelp(neighbours, {screenAt(screenFrame), screenAt({1440, 0, 1920, 1080})}).align({wanted, small});
}

TEST(AlignmentHelp, AttractsEdgesCentresAndGapsWithinSixPoints)
{
    const QRectF neighbour(400, 300, 350, 170); // its centre is 575, 385
    struct Case {
        const char* what;
        QPointF wanted;
        QPointF placed;
        qsizetype guides;
    };
    const Case cases[] = {
        {"nothing near", {1000, 500}, {1000, 500}, 0},
        {"left edges", {406, 600}, {400, 600}, 1},
        {"a little too far", {406.5, 600}, {406.5, 600}, 0},
        {"right edges", {577, 600}, {580, 600}, 1},
        {"centres", {487, 600}, {490, 600}, 1},
        {"left edge and right edge", {752, 600}, {750, 600}, 1},
        {"the layouts' gap beside it", {763, 300}, {760, 300}, 3},
        {"no gap above the far end of another row", {763, 600}, {763, 600}, 0},
        {"the layouts' gap above it", {450, 484}, {450, 480}, 1},
        {"both axes at once", {398, 477}, {400, 480}, 2},
        {"the nearer of two lines", {756, 300}, {760, 300}, 3},
        {"the screen's left edge", {-4, 600}, {0, 600}, 1},
        {"the screen's right edge", {1274, 600}, {1270, 600}, 1},
        {"below the bar", {1000, 686}, {1000, 690}, 1},
        {"the upper edge of the whole screen", {1000, 728}, {1000, 730}, 1},
        {"the middle of the screen", {633, 600}, {635, 600}, 1},
        {"a neighbour of another screen", {1000, 698}, {1000, 698}, 0},
    };
    for (const Case& c : cases) {
        const AlignmentHelp::Result result = align(c.wanted, {neighbour, {1500, 700, 170, 170}});
        EXPECT_EQ(result.origin, c.placed) << c.what;
        EXPECT_EQ(result.guides.size(), c.guides) << c.what;
        for (const QRectF& guide : result.guides)
            EXPECT_TRUE(screenFrame.contains(guide)) << c.what;
    }
    EXPECT_EQ(AlignmentHelp({neighbour}, {}).align({{401, 600}, small}).origin, QPointF(401, 600)) << "no screen";
}

TEST(AlignmentHelp, GuidesJoinTheWidgetWithAllItIsInLineWith)
{
    const QList<QRectF> column{{400, 300, 350, 170}, {400, 600, 350, 170}};
    EXPECT_EQ(align({402, 20}, column).guides, (QList<QRectF>{{399, 8, 3, 774}}));
    EXPECT_EQ(align({1268, 20}, column).guides, (QList<QRectF>{{1437, 0, 3, 900}})) << "the edge of the screen";
}

/// A widget dragged slowly past its neighbours never jumps back and never farther than the pull of a line.
TEST(AlignmentHelp, NeverJitters)
{
    const QList<QRectF> neighbours{{400, 300, 350, 170}, {752, 300, 170, 170}, {405, 100, 171, 170}, {0, 0, 244, 97}};
    double before = -100;
    for (double x = -100; x < 1400; x += 0.25) {
        const double placed = align({x, 305}, neighbours).origin.x();
        ASSERT_GE(placed, before) << x;
        ASSERT_LE(std::abs(placed - x), AlignmentHelp::reach) << x;
        before = placed;
    }
}

TEST(InstructionPlace, IsHiddenLeastAndNearTheMiddle)
{
    const QRectF room(0, 0, 1000, 800);
    const QSizeF size(400, 50);
    EXPECT_EQ(instructionPlace(size, room, {}).center(), room.center());
    const QRectF across(0, 300, 1000, 200);
    const QRectF beside = instructionPlace(size, room, {across});
    EXPECT_FALSE(beside.intersects(across));
    EXPECT_NEAR(std::abs(beside.center().y() - 400), 125, 10);
    EXPECT_TRUE(room.contains(instructionPlace(size, room, {room})));
    EXPECT_EQ(instructionPlace({400, 50}, {0, 0, 300, 40}, {}).center(), QPointF(150, 20));
}

} // namespace
} // namespace ambrelle
