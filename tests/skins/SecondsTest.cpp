// SPDX-License-Identifier: MIT

#include "drawing/LayerCache.h"
#include "faces/FacePainter.h"
#include "skins/SkinRegistry.h"
#include "support/FaceStates.h"

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF clockWindow(410, 232);
constexpr QPointF clockCorner(30, 32); // of the face in its window

std::shared_ptr<const Reading> clockAtSecond(int second, int minute = 41)
{
    auto reading = std::get<ClockReading>(stateReading(WidgetKind::clock, FaceState::sample, QLocale::c()));
    reading.meridiem = u"AM"_s;
    reading.minute = minute;
    reading.second = second;
    return std::make_shared<const Reading>(reading);
}

/// What a window shows of `area`, in a picture of its own as windows paint it.
QImage paintedPart(FacePainter& painter, const QRectF& area, double ratio)
{
    QImage image((area.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter target(&image);
    target.setRenderHint(QPainter::Antialiasing);
    target.translate(-area.topLeft());
    target.setClipRect(area);
    target.translate(clockCorner);
    painter.paint(target, area.translated(-clockCorner), 0);
    return image;
}

} // namespace

/// A face that lets its second show outside the part that ticks would keep the old one there.
TEST(Seconds, PaintLittleOfAClockAndTheSameAsItsWholeFace)
{
    const QRectF whole({}, clockWindow);
    int clocks = 0;
    for (const Skin skin : allCases<Skin>()) {
        const FaceView face = view(skin, WidgetKind::clock);
        if (!face.showsSeconds())
            continue;
        ++clocks;
        for (const double ratio : {1.0, 2.0}) {
            LayerCache layers;
            FacePainter painter(face, layers);
            painter.setLook({.size = face.size()});
            const auto fresh = [&](const std::shared_ptr<const Reading>& reading) {
                FacePainter other(face, layers);
                other.setLook({.size = face.size()});
                other.setReading(reading);
                return paintedPart(other, whole, ratio);
            };
            fresh(clockAtSecond(0)); // layers are kept from now on
            painter.setReading(clockAtSecond(0));
            QImage shown = paintedPart(painter, whole, ratio);
            for (const int second : {1, 7, 8, 38, 59}) {
                const auto reading = clockAtSecond(second);
                const QRectF area = painter.setReading(reading).translated(clockCorner);
                EXPECT_LT(area.width() * area.height(), 0.25 * face.size().width() * face.size().height());
                QPainter window(&shown);
                window.setCompositionMode(QPainter::CompositionMode_Source);
                window.drawImage(area.topLeft(), paintedPart(painter, area, ratio));
                window.end();
                EXPECT_EQ(shown, fresh(reading)) << rawValue(skin).data() << " at " << second;
            }
            EXPECT_EQ(painter.setReading(clockAtSecond(0, 42)), painter.reach()) << "a new minute changes the rest";
        }
    }
    EXPECT_GT(clocks, 5);
}

} // namespace ambrelle
