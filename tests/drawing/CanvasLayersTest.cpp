// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"
#include "drawing/LayerCache.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int side = 100;

struct Drawing {
    QImage picture;
    QList<Canvas::HitArea> hits;
    QList<Canvas::MovingArea> moving;
};

Drawing outcome(
    const Canvas::Setup& setup, double scale, const std::function<void(Canvas&)>& draw, const QTransform& before = {})
{
    QImage image(static_cast<int>(side * scale), static_cast<int>(side * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.setTransform(before, true);
    Canvas canvas(painter, setup);
    draw(canvas);
    return {image, canvas.hits(), canvas.movingAreas()};
}

QPainterPath discAt(QPointF centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

/// The largest difference of a channel.
int difference(const QImage& one, const QImage& other)
{
    int worst = one.size() == other.size() ? 0 : 255;
    for (int y = 0; worst < 255 && y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            for (const int channel : {qAlpha(a) - qAlpha(b), qRed(a) - qRed(b), qBlue(a) - qBlue(b)})
                worst = std::max(worst, std::abs(channel));
        }
    }
    return worst;
}

const TextStyle caption{.face = {.family = u"Inter"_s}, .size = 12, .colour = Qt::blue};

} // namespace

TEST(LayerCache, KeepsAsManyLayersOnADenseScreenAndNoMoreThanItMay)
{
    for (const double scale : {1.0, 2.0}) {
        LayerCache layers(1000);
        const int pixels = static_cast<int>(100 * scale); // some 39 KB at one pixel a point
        const auto drawOne = [&](int number) {
            QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
            QPainter painter(&image);
            painter.scale(scale, scale);
            bool fresh = false;
            Canvas canvas(painter, {.layers = &layers});
            canvas.still(
                u"layer"_s, {0, 0, 100, 100}, [&](Canvas&) { fresh = true; }, number);
            return fresh;
        };
        for (int number = 0; number < 24; ++number)
            EXPECT_TRUE(drawOne(number));
        for (int number = 0; number < 24; ++number)
            EXPECT_FALSE(drawOne(number)) << scale;
        for (int number = 24; number < 50; ++number)
            drawOne(number);
        EXPECT_TRUE(drawOne(0)) << "it is not bounded";
    }
}

TEST(CanvasMapped, TurnsInkLayersHitsMovingAreasAndMarks)
{
    const QPointF centre(50, 50);
    const auto content = [&](Canvas& canvas) {
        canvas.still(u"plate"_s, {10, 40, 80, 20}, [](Canvas& layer) { layer.fill(Box(10, 40, 80, 20), Qt::red, 6); });
        canvas.text({20, 40, 60, 20}, u"turned"_s, caption);
        canvas.hit({10, 40, 80, 20}, {FaceAction::Verb::toggleFocus});
        canvas.moving({10, 40, 20, 20}, Motion::steady(2), [](Canvas& part, double) {
            part.disc({20, 50}, 5, Qt::black);
        });
    };
    LayerCache layers;
    for (const double degrees : {90.0, 1.6, 30.0, -30.0}) {
        CanvasRecord record;
        const auto turned = [&](Canvas& canvas) { canvas.turned(centre, degrees, [&] { content(canvas); }); };
        QTransform turn = QTransform::fromTranslate(50, 50);
        turn.rotate(degrees).translate(-50, -50);
        for (const double scale : {1.0, 1.25}) {
            for (const Canvas::Pass pass : {Canvas::Pass::still, Canvas::Pass::moving}) {
                const QImage expected = outcome({.pass = pass}, scale, content, turn).picture;
                EXPECT_EQ(outcome({.pass = pass}, scale, turned).picture, expected) << degrees;
                for (int time = 0; time < 2; ++time)
                    EXPECT_EQ(outcome({.pass = pass, .layers = &layers}, scale, turned).picture, expected) << degrees;
            }
        }
        const Drawing marked = outcome({.record = &record}, 1, turned);
        ASSERT_EQ(marked.hits.size(), 1);
        EXPECT_EQ(marked.hits[0].area, turn.mapRect(QRectF(10, 40, 80, 20)));
        ASSERT_EQ(marked.moving.size(), 1);
        EXPECT_EQ(marked.moving[0].area, turn.mapRect(QRectF(10, 40, 20, 20)));
        ASSERT_EQ(record.size(), 1);
        EXPECT_EQ(record[0].box, turn.mapRect(QRectF(20, 40, 60, 20)));
        EXPECT_TRUE(record[0].box.contains(record[0].corners.boundingRect()));
        EXPECT_NEAR(record[0].size, 12, 1e-9);
    }
}

TEST(CanvasMapped, ScalesAndMovesWhatIsRecorded)
{
    CanvasRecord record;
    outcome({.record = &record}, 1, [](Canvas& canvas) {
        canvas.mapped(QTransform::fromTranslate(10, 20).scale(0.5, 0.5), [&] {
            canvas.still(u"layer"_s, {0, 0, 80, 20}, [](Canvas& layer) {
                layer.text({0, 0, 80, 20}, u"half"_s, caption);
            });
        });
        canvas.text({0, 0, 80, 20}, u"whole"_s, caption);
    });
    ASSERT_EQ(record.size(), 2);
    EXPECT_EQ(record[0].box, QRectF(10, 20, 40, 10));
    EXPECT_NEAR(record[0].size, 6, 1e-9);
    EXPECT_EQ(record[1].box, QRectF(0, 0, 80, 20)) << "the change goes on after its end";
}

TEST(CanvasWithin, CutsWithTheEdgeOfTheShapeItself)
{
    const QPainterPath shape = discAt({48.3, 51.7}, 30.2);
    for (const Finish finish : {Finish::smooth, Finish::crisp, Finish::oneBit}) {
        for (const double scale : {0.75, 1.0, 1.25, 2.0}) {
            const QImage expected =
                outcome({.finish = finish}, scale, [&](Canvas& canvas) { canvas.fill(shape, Qt::black); }).picture;
            const QImage cut = outcome({.finish = finish}, scale, [&](Canvas& canvas) {
                canvas.within(shape, [&] { canvas.fill(Box(0, 0, side, side), Qt::black); });
            }).picture;
            EXPECT_LE(difference(cut, expected), 1) << static_cast<int>(finish) << ' ' << scale;
            const QImage twice = outcome({.finish = finish}, scale, [&](Canvas& canvas) {
                QPainterPath right;
                right.addRect(50, 0, 50, 100);
                canvas.within(
                    shape, [&] { canvas.within(right, [&] { canvas.fill(Box(0, 0, side, side), Qt::black); }); });
            }).picture;
            EXPECT_EQ(twice.pixelColor(twice.width() * 2 / 5, twice.height() / 2).alpha(), 0);
            EXPECT_EQ(twice.pixelColor(twice.width() * 3 / 5, twice.height() / 2), QColor(Qt::black));
        }
    }
}

TEST(CanvasWithin, CutsWhatMovesAndWhereItAnswers)
{
    const QPainterPath shape = discAt({50, 50}, 20);
    const auto content = [&](Canvas& canvas) {
        canvas.turned({50, 50}, 30, [&] {
            canvas.within(shape, [&] {
                canvas.turned({50, 50}, 15, [&] {
                    canvas.moving({0, 0, 60, 100}, Motion::steady(2),
                        [](Canvas& part, double) { part.fill(Box(0, 0, 100, 100), Qt::red); });
                });
                canvas.hit({0, 0, 50, 100}, {FaceAction::Verb::toggleFocus});
                canvas.hit({0, 0, 10, 10}, {FaceAction::Verb::toggleFocus});
            });
        });
        canvas.fill(Box(0, 0, 5, 5), Qt::blue);
    };
    LayerCache layers;
    const Drawing still = outcome({.layers = &layers}, 1, content);
    ASSERT_EQ(still.hits.size(), 1) << "what is cut away answers to a click";
    const QRectF bounds(30, 30, 40, 40);
    EXPECT_TRUE(bounds.adjusted(-8, -8, 8, 8).contains(still.hits[0].area));
    ASSERT_EQ(still.moving.size(), 1);
    EXPECT_TRUE(bounds.adjusted(-8, -8, 8, 8).contains(still.moving[0].area));

    const QImage moving = outcome({.pass = Canvas::Pass::moving}, 1, content).picture;
    EXPECT_EQ(moving.pixelColor(2, 2).alpha(), 0);
    EXPECT_EQ(moving.pixelColor(50, 40), QColor(Qt::red));
    const auto beyond = [&](QPointF point) { return moving.pixelColor(point.toPoint()).alpha(); };
    for (const QPointF way : {QPointF(-22, 0), QPointF(0, -22), QPointF(16, -16), QPointF(-16, 16)})
        EXPECT_EQ(beyond(QPointF(50, 50) + way), 0);
    for (const QPointF way : {QPointF(-18, 0), QPointF(0, -18), QPointF(-12, 12)})
        EXPECT_EQ(beyond(QPointF(50, 50) + way), 255);
}

TEST(CanvasWithin, ATextThatIsNotWholeIsMarked)
{
    CanvasRecord record;
    outcome({.record = &record}, 1, [](Canvas& canvas) {
        canvas.within(discAt({50, 50}, 30), [&] {
            canvas.text({40, 40, 20, 20}, u"in"_s, caption);
            canvas.text({60, 40, 60, 20}, u"beyond"_s, caption);
        });
    });
    ASSERT_EQ(record.size(), 2);
    EXPECT_FALSE(record[0].cut);
    EXPECT_TRUE(record[1].cut);
}

} // namespace ambrelle
