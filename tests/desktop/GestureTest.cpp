// SPDX-License-Identifier: MIT

#include "desktop/DragGesture.h"
#include "desktop/HoverDelay.h"
#include "foundation/ManualClock.h"
#include "placement/FreeSpot.h"
#include "placement/PanelGeometry.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

TEST(DragGesture, TellsAClickFromADragByTheDistanceFromThePress)
{
    struct Case {
        const char* what;
        QList<QPointF> way;
        DragGesture::Outcome outcome;
    };
    const Case cases[] = {
        {"no movement", {}, DragGesture::Outcome::click},
        {"three points", {{3, 0}}, DragGesture::Outcome::click},
        {"a little more than three points", {{3.1, 0}}, DragGesture::Outcome::drag},
        {"three points each way are more than three", {{3, 3}}, DragGesture::Outcome::drag},
        {"small steps add up", {{1, 0}, {2, 0}, {3, 0}, {4, 0}}, DragGesture::Outcome::drag},
        {"small steps about the press do not", {{2, 0}, {-2, 0}, {2, 1}}, DragGesture::Outcome::click},
        {"a drag that comes back is still a drag", {{40, 0}, {0, 0}}, DragGesture::Outcome::drag},
    };
    for (const Case& c : cases) {
        DragGesture gesture;
        gesture.press({500, 300});
        int begins = 0;
        for (const QPointF& step : c.way) {
            if (const auto moved = gesture.move(QPointF(500, 300) + step)) {
                EXPECT_EQ(moved->by, step) << c.what;
                begins += moved->began ? 1 : 0;
            }
        }
        EXPECT_EQ(gesture.release(), c.outcome) << c.what;
        EXPECT_EQ(begins, c.outcome == DragGesture::Outcome::drag ? 1 : 0) << c.what;
        EXPECT_EQ(gesture.release(), DragGesture::Outcome::none) << c.what;
    }
}

TEST(HoverDelay, BridgesShortAbsencesOnly)
{
    ManualClock clock;
    QList<bool> told;
    HoverDelay hover(clock, [&](bool hovering) { told.append(hovering); });
    hover.enter();
    hover.leave();
    clock.advance(240ms);
    hover.enter();
    clock.advance(1s);
    EXPECT_TRUE(hover.isHovering());
    hover.leave();
    clock.advance(249ms);
    EXPECT_TRUE(hover.isHovering());
    clock.advance(1ms);
    EXPECT_FALSE(hover.isHovering());
    EXPECT_EQ(told, (QList<bool>{true, false}));
}

TEST(PanelGeometry, KeepsTheToolbarOnTheScreenAndInTheWindow)
{
    const QRectF room(0, 0, 1000, 800);
    struct Case {
        const char* what;
        QRectF widget;
        QPointF toolbar; // in the window
    };
    const Case cases[] = {
        {"directly above a small face", {400, 300, 170, 170}, {30, 0}},
        {"in the middle above a wide one", {400, 300, 350, 170}, {107, 0}},
        {"below a face at the upper edge", {400, 630, 170, 170}, {30, 200}},
        {"over a face from edge to edge", {400, 10, 170, 790}, {30, 32}},
        {"to the left at the right edge", {810, 300, 170, 170}, {24, 0}},
        {"never out of the window", {980, 300, 170, 170}, {0, 0}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(PanelGeometry::toolbarArea(c.widget, room).topLeft(), c.toolbar) << c.what;
    EXPECT_EQ(PanelGeometry::panelFrame({-5, 8, 350, 170}), QRectF(-35, -22, 410, 232)) << "wider than the toolbar";
}

TEST(FreeSpot, FillsFromTheUpperRightCorner)
{
    const QRectF screen(0, 0, 1440, 860);
    const QSizeF small(170, 170);
    EXPECT_EQ(freeSpot(small, screen, {}), QPointF(1250, 670));
    EXPECT_EQ(freeSpot(small, screen, {{1250, 670, 170, 170}}), QPointF(1070, 670));
    // Exactly the gap is enough: 1250 - 74 - 6 = 1170 is the right edge of a widget at 1000.
    EXPECT_EQ(freeSpot(small, screen, {{1176, 670, 244, 170}}).x(), 990);
    EXPECT_EQ(freeSpot(small, screen, {{0, 660, 1440, 200}}), QPointF(1250, 470));
    EXPECT_EQ(freeSpot(small, screen, {{0, 0, 1440, 860}}), QPointF(635, 345)) << "nothing is free: the middle";
    EXPECT_EQ(freeSpot(small, {0, 0, 100, 100}, {}), QPointF(-35, -35)) << "a screen smaller than the widget";
}

} // namespace
} // namespace ambrelle
