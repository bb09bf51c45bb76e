// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Drawn.h"
#include "skins/DrawnFace.h"
#include "skins/SkinRegistry.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle {

namespace {

using namespace Qt::StringLiterals;

/// What moves on the face, at a time.
QImage motionOf(const FaceView& face, const Reading& reading, double time)
{
    QImage image(face.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    face.drawMoving(painter, reading, {.time = time});
    return image;
}

Reading batteryAt(int percent)
{
    Reading reading = stateReading(WidgetKind::battery, FaceState::sample, QLocale::c());
    auto& battery = std::get<BatteryReading>(reading);
    battery.percent = percent;
    battery.level = percent / 100.0;
    return reading;
}

} // namespace

TEST(AeroSkin, GlassIsDarkEnoughForWordsOverPureWhite)
{
    constexpr int column = 125; // between the title and the short sentence in the middle
    constexpr int header = 15;
    constexpr int content = 38;
    const FaceView face = view(Skin::aero, WidgetKind::quote);
    const SkinStyle& style = face.style();
    QImage image(face.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    face.draw(painter, stateReading(WidgetKind::quote, FaceState::waiting, QLocale::c()), {});
    painter.end();
    for (int y = header; y < image.height() - style.inset; ++y) {
        const QColor& words = y < content ? style.ink : style.soft;
        EXPECT_GE(contrast(words, image.pixelColor(column, y)), 4.5) << "at " << y;
    }
}

TEST(AeroSkin, BubblesRiseInTheGelOnly)
{
    for (const WidgetKind kind : {WidgetKind::battery, WidgetKind::processes, WidgetKind::downloads}) {
        const FaceView face = view(Skin::aero, kind);
        const Reading reading = stateReading(kind, FaceState::sample, QLocale::c());
        QRectF room;
        for (const Canvas::MovingArea& part : drawnFace(face, reading).moving)
            room |= part.area;
        const QImage resting = motionOf(face, reading, 0);
        EXPECT_FALSE(inkOf(resting).isEmpty()) << rawValue(kind).data();
        EXPECT_NE(resting, motionOf(face, reading, 0.3)) << rawValue(kind).data();
        for (double time = 0; time < 8; time += 0.5) {
            const QRect ink = inkOf(motionOf(face, reading, time));
            EXPECT_TRUE(ink.isEmpty() || room.toAlignedRect().contains(ink)) << rawValue(kind).data() << " at " << time;
        }
    }
}

TEST(AeroSkin, BubblesOfABatteryKeepOffItsFigureAndItsEmptyPart)
{
    const FaceView face = view(Skin::aero, WidgetKind::battery);
    for (const auto& [percent, rising] : {std::pair(0, false), {4, false}, {50, true}, {73, true}, {98, true}}) {
        const DrawnFace stage = drawnFace(face, batteryAt(percent));
        EXPECT_EQ(stage.moving.isEmpty(), !rising) << percent;
        const double filled = face.style().inset + 3 + 130.0 * percent / 100;
        for (const Canvas::MovingArea& part : stage.moving) {
            EXPECT_LE(part.area.right(), filled) << percent;
            for (const CanvasMark& mark : stage.record) {
                const bool figure = mark.kind == CanvasMark::Kind::figure;
                EXPECT_FALSE(figure && part.area.intersects(mark.ink)) << percent << qPrintable(u": "_s + mark.text);
            }
        }
    }
}

} // namespace ambrelle
