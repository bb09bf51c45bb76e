// SPDX-License-Identifier: MIT

#include "desktop/FaceMotion.h"
#include "drawing/LayerCache.h"
#include "faces/FacePainter.h"
#include "foundation/ManualClock.h"
#include "skins/SkinRegistry.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

/// A face whose moving parts are drawn again at once whenever motion asks for it.
struct FaceMotionTest : ::testing::Test {
    ManualClock clock;
    FaceMotion::Areas areas;
    QList<QRectF> frames;
    FaceMotion motion{clock, [this](const QRectF& area) {
                          frames.append(area);
                          motion.drawn(areas, area);
                      }};
    const QRectF left{0, 0, 10, 10};
    const QRectF right{50, 0, 10, 10};

    qsizetype framesOf(const QRectF& area) const { return frames.count(area); }
};

TEST_F(FaceMotionTest, MovesAtItsRateAndStopsWhenPaused)
{
    areas = {{left, Motion::steady(10)}};
    motion.drawn(areas, left);
    clock.advance(1s);
    EXPECT_EQ(frames.size(), 0) << "paused from the start";
    EXPECT_EQ(motion.time(), 0);
    motion.setActive(true);
    motion.drawn(areas, left);
    clock.advance(1s);
    EXPECT_EQ(frames.size(), 10);
    EXPECT_DOUBLE_EQ(motion.time(), 770551202) << "seconds since 2001";
    motion.setActive(false);
    clock.advance(10s);
    EXPECT_EQ(frames.size(), 10);
}

TEST_F(FaceMotionTest, DoesNotStarveASlowPartBesideAFastOne)
{
    areas = {{left, Motion::steady(20)}, {right, Motion::steady(1)}};
    motion.setActive(true);
    motion.drawn(areas, {0, 0, 100, 100});
    clock.advance(5s);
    EXPECT_EQ(framesOf(left), 100);
    EXPECT_EQ(framesOf(right), 5);
}

TEST_F(FaceMotionTest, SleepsBetweenBursts)
{
    areas = {{left, Motion::bursts(9, 0, 0.5, 10)}};
    motion.setActive(true);
    motion.drawn(areas, left);
    clock.advance(90s);
    EXPECT_GE(framesOf(left), 10 * 5);
    EXPECT_LE(framesOf(left), 11 * 7);
    clock.setNow(clock.now().addDays(-1));
    frames.clear();
    clock.advance(20s);
    EXPECT_FALSE(frames.isEmpty()) << "a clock set back does not stop the motion";
}

/// Draws a disc that wanders over a plate.
class WanderingFace final : public FaceRenderer {
public:
    using FaceRenderer::FaceRenderer;
    mutable int stillDrawings = 0;

    Box plate(Canvas& canvas, const FaceContext& face) const override
    {
        ++stillDrawings;
        canvas.fill(face.bounds, QColor(40, 60, 80));
        return face.bounds;
    }
    void draw(Canvas& canvas, const CpuReading&, const FaceContext& face) const override
    {
        plate(canvas, face);
        canvas.moving({20, 20, 60, 60}, Motion::steady(10), [](Canvas& moving, double time) {
            moving.disc({30 + time, 50}, 8, QColor(250, 200, 60));
        });
    }
    void draw(Canvas&, const ClockReading&, const FaceContext&) const override { }
    void draw(Canvas&, const CalendarReading&, const FaceContext&) const override { }
    void draw(Canvas&, const MemoryReading&, const FaceContext&) const override { }
    void draw(Canvas&, const DiskReading&, const FaceContext&) const override { }
    void draw(Canvas&, const BatteryReading&, const FaceContext&) const override { }
    void draw(Canvas&, const NetworkReading&, const FaceContext&) const override { }
    void draw(Canvas&, const DownloadsReading&, const FaceContext&) const override { }
    void draw(Canvas&, const ProcessesReading&, const FaceContext&) const override { }
    void draw(Canvas&, const WeatherReading&, const FaceContext&) const override { }
    void draw(Canvas&, const EventsReading&, const FaceContext&) const override { }
    void draw(Canvas&, const NowPlayingReading&, const FaceContext&) const override { }
};

/// A frame of motion over the picture of the still part is the same picture as a whole drawing, at every pixel ratio.
TEST(FacePainter, PaintsAFrameOfMotionLikeAWholeFace)
{
    for (const double ratio : {1.0, 1.25, 2.0}) {
        for (const double opacity : {1.0, 0.6}) {
            auto face = std::make_shared<WanderingFace>(styleOf(Skin::glass), DialFlavor::ring);
            LayerCache layers;
            FacePainter painter(
                FaceView(face, {WidgetKind::cpu, SizeClass::small, QRectF(0, 0, 170, 170)}, {}), layers);
            painter.setReading(std::make_shared<const Reading>(CpuReading{}));
            painter.setLook({.size = {213, 213}, .scale = 1.25, .backdrop = Backdrop::dim, .opacity = opacity});
            const auto paint = [&](QImage& image, const QRectF& area, double time) {
                QPainter target(&image);
                target.translate(30, 32);
                target.setClipRect(area);
                target.setCompositionMode(QPainter::CompositionMode_Source);
                target.fillRect(area, Qt::transparent);
                target.setCompositionMode(QPainter::CompositionMode_SourceOver);
                painter.paint(target, area, time);
            };
            QImage moved(QSizeF(300 * ratio, 300 * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
            moved.setDevicePixelRatio(ratio);
            moved.fill(Qt::transparent);
            QImage whole = moved;
            const QRectF all(-30, -32, 300, 300);
            paint(moved, all, 1);
            const QRectF part = painter.scaled(painter.result().moving.first().area);
            paint(moved, part, 10);
            const int before = face->stillDrawings;
            paint(moved, part, 20);
            if (opacity == 1.0) {
                EXPECT_LE(face->stillDrawings - before, 1) << "only the moving pass";
            }
            paint(whole, all, 20);
            EXPECT_EQ(moved, whole) << "ratio " << ratio << " opacity " << opacity;
        }
    }
}

} // namespace
} // namespace ambrelle
