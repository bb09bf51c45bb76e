// SPDX-License-Identifier: MIT

#include "drawing/Plates.h"
#include "drawing/Drawn.h"

#include <gtest/gtest.h>

namespace ambrelle {

TEST(Plates, SteppedCornersLoseTheirSquares)
{
    const QRectF box(10, 20, 60, 40);
    for (const int count : {1, 2, 3}) {
        const QPainterPath stepped = steppedPath(box, 4, count);
        EXPECT_EQ(stepped.boundingRect(), box);
        for (const double x : {10.5, 69.5})
            for (const double y : {20.5, 59.5})
                EXPECT_FALSE(stepped.contains(QPointF(x, y))) << count;
        const double in = 4 * count + 0.1;
        for (const QPointF& corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()}) {
            const QPointF inwards(corner.x() < 40 ? 1 : -1, corner.y() < 40 ? 1 : -1);
            EXPECT_TRUE(stepped.contains(corner + QPointF(in * inwards.x(), 0.5 * inwards.y())));
            EXPECT_TRUE(stepped.contains(corner + QPointF(0.5 * inwards.x(), in * inwards.y())));
            EXPECT_TRUE(stepped.contains(corner + in * inwards));
        }
    }
}

TEST(Plates, AShadowLiesAroundItsShapeAndNotUnderIt)
{
    const Box box(20, 20, 60, 50);
    const QImage rounded = drawnWith([&](Canvas& canvas) { dropShadow(canvas, box, 8, Qt::black, 0.05, 8, 2); });
    const QImage outlined =
        drawnWith([&](Canvas& canvas) { dropShadow(canvas, roundedPath(box, 8), Qt::black, 0.05, 8, 2); });
    for (const QImage& picture : {rounded, outlined}) {
        EXPECT_EQ(qAlpha(picture.pixel(50, 45)), 0);
        EXPECT_GT(qAlpha(picture.pixel(50, 71)), qAlpha(picture.pixel(50, 18)));
        EXPECT_EQ(qAlpha(picture.pixel(50, 80)), 0);
    }
    for (const QPoint place : {QPoint(50, 72), QPoint(18, 45), QPoint(50, 19)})
        EXPECT_NEAR(qAlpha(rounded.pixel(place)), qAlpha(outlined.pixel(place)), 8);
    const QImage inParts = drawnWith([&](Canvas& canvas) {
        for (const QRectF part : {QRectF(0, 0, 100, 30), QRectF(0, 30, 40, 70), QRectF(40, 30, 60, 70)}) {
            canvas.paint([&](QPainter& painter) {
                painter.setClipRect(part);
                dropShadow(canvas, box, 8, Qt::black, 0.05, 8, 2);
            });
        }
    });
    EXPECT_EQ(inParts, rounded);
}

} // namespace ambrelle
