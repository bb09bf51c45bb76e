// SPDX-License-Identifier: MIT

#include "skins/classic/BitPictures.h"
#include "skins/SkinRegistry.h"
#include "support/FaceStates.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle {

namespace {

QImage clockAt(double time)
{
    const FaceView clock = view(Skin::classic, WidgetKind::clock);
    QImage image(clock.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    clock.draw(painter, stateReading(WidgetKind::clock, FaceState::sample, QLocale::c()), {.time = time});
    return image;
}

} // namespace

TEST(ClassicSkin, WeatherPicturesFillTheirGridAndDiffer)
{
    QList<QPainterPath> seen;
    for (int value = 0; value <= static_cast<int>(Sky::unknown); ++value) {
        const QPainterPath& picture = classic::bitPicture(static_cast<Sky>(value));
        EXPECT_TRUE(QRectF(0, 0, classic::pictureSide, classic::pictureSide).contains(picture.boundingRect())) << value;
        EXPECT_FALSE(picture.isEmpty()) << value;
        EXPECT_FALSE(seen.contains(picture)) << value;
        seen.append(picture);
    }
}

TEST(ClassicSkin, ColonIsDarkInOddSeconds)
{
    const QImage printed = clockAt(0);
    EXPECT_EQ(printed, clockAt(800000000.25));
    EXPECT_NE(printed, clockAt(800000001.25));
}

} // namespace ambrelle
