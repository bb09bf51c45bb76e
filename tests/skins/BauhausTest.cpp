// SPDX-License-Identifier: MIT

#include "skins/bauhaus/BauhausStyle.h"
#include "skins/DrawnFace.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

namespace {

/// How far the nearest ink is from the lower right corner of the face.
double nearestInk(const FaceView& view, const Reading& reading)
{
    double nearest = 1e6;
    for (const CanvasMark& mark : drawnFace(view, reading).record) {
        if (mark.ink.isEmpty())
            continue;
        const QPointF way = view.face().bounds.bottomRight() - mark.ink.bottomRight();
        nearest = std::min(nearest, std::hypot(way.x(), way.y()));
    }
    return nearest;
}

} // namespace

TEST(Bauhaus, NoTextRunsUnderTheQuarterCircle)
{
    constexpr double rounding = 0.1;
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        if (kind == WidgetKind::clock) // has none
            continue;
        const FaceView face = view(Skin::bauhaus, kind);
        const double radius = face.face().medium() ? bauhaus::cornerMedium : bauhaus::cornerSmall;
        for (const FaceState state : faceStates) {
            for (const QLocale& locale : {QLocale(QLocale::English), QLocale(QLocale::German)})
                EXPECT_GE(nearestInk(face, stateReading(kind, state, locale)) - radius, bauhaus::clearance - rounding)
                    << rawValue(kind).data() << ", state " << static_cast<int>(state);
        }
    }
}

TEST(Bauhaus, TheShapesOfABatteryFillInOrderFromBelow)
{
    QImage image(134, 38, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    Canvas canvas(painter, {});
    bauhausSkin({})->charge(canvas, Box(0, 0, 134, 38), {.level = 0.5});
    painter.end();
    EXPECT_EQ(image.pixelColor(19, 2), bauhaus::red); // the square is full
    EXPECT_EQ(image.pixelColor(67, 30), bauhaus::blue); // half of the disc
    EXPECT_EQ(image.pixelColor(67, 8), bauhaus::faint);
    EXPECT_EQ(image.pixelColor(115, 36), bauhaus::faint); // nothing of the triangle
}

} // namespace ambrelle
