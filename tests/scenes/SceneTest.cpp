// SPDX-License-Identifier: MIT

#include "scenes/SceneOrnament.h"

#include "drawing/Pens.h"

#include <QImage>

#include <gtest/gtest.h>

#include <functional>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

const QList<SceneItem> pair{{WidgetKind::clock, {200, 200, 170, 170}}, {WidgetKind::cpu, {390, 200, 170, 170}}};
constexpr QSizeF screen(800, 600);

SceneSprite square(const QString& name, const QRectF& place, const QColor& colour)
{
    return {name, place, [](Canvas& canvas, const QRectF& area, const QColor& ink) { canvas.fill(area, ink); }, place,
        colour};
}

TEST(SceneTest, TellsWhatLooksDifferent)
{
    const SceneSprite red = square(u"a"_s, {0, 0, 10, 10}, Qt::red);
    const SceneSprite green = square(u"b"_s, {5, 5, 10, 10}, Qt::green);
    const SceneSprite blue = square(u"c"_s, {40, 0, 10, 10}, Qt::blue);
    const auto changes = [](const QList<SceneSprite>& before, const QList<SceneSprite>& after) {
        return Scene::changes({before}, {after});
    };
    using Areas = QList<QRectF>;
    EXPECT_EQ(changes({red, green}, {square(u"a"_s, {0, 0, 10, 10}, Qt::red), green}), Areas());
    EXPECT_EQ(changes({red, green}, {red, green, blue}), Areas{blue.place()});
    EXPECT_EQ(changes({red, green, blue}, {red, blue}), Areas{green.place()});
    EXPECT_EQ(changes({red, green}, {green, red}).size(), 2) << "the other one lies above";
    EXPECT_EQ(changes({red}, {square(u"a"_s, {0, 0, 10, 10}, Qt::yellow)}), (Areas{red.place(), red.place()}));
    EXPECT_EQ(changes({red}, {square(u"a"_s, {20, 0, 10, 10}, Qt::red)}), (Areas{{20, 0, 10, 10}, red.place()}));
    EXPECT_EQ(changes({red, square(u"b-1"_s, {20, 0, 5, 5}, Qt::red), square(u"b-2"_s, {40, 0, 5, 5}, Qt::red)},
                  {red, square(u"b-1"_s, {40, 0, 5, 5}, Qt::red)}),
        (Areas{{20, 0, 5, 5}}))
        << "the numbers after it are others";
    EXPECT_EQ(Scene::changes({{red, blue}}, {{red, blue}, Finish::crisp}), (Areas{{0, 0, 50, 10}}));
}

TEST(SceneTest, RepaintsALineOnlyWhereItRuns)
{
    SceneOrnament on({{WidgetKind::clock, {300, 300, 170, 170}}}, {1000, 1000}, std::nullopt);
    QPainterPath path({100, 100});
    path.lineTo(900, 100);
    path.lineTo(900, 500);
    path.lineTo(300, 900);
    ASSERT_TRUE(on.line(u"line"_s, path, flatPen(Qt::black, 2)));
    const QRegion whole = [&] {
        QRegion region;
        for (const QRectF& area : on.scene().sprites[0].areas())
            region += area.toAlignedRect();
        return region;
    }();
    int pixels = 0;
    for (const QRect& rect : whole)
        pixels += rect.width() * rect.height();
    EXPECT_LT(pixels, 60'000) << "of 640'000 around it";
    QImage image(1000, 1000, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    on.scene().draw(painter, {0, 0, 1000, 1000});
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const QRect& rect : whole)
        painter.fillRect(rect, Qt::black);
    painter.end();
    QImage empty = image;
    empty.fill(Qt::transparent);
    EXPECT_EQ(image, empty) << "some of it lies beside its areas";
}

TEST(SceneTest, DrawsATallMarkInOnePiece)
{
    QPainterPath curve({20, 10});
    curve.cubicTo(300, 200, -100, 300, 180, 390);
    Scene scene{{SceneSprite(
        u"curve"_s, QRectF(0, 0, 200, 400),
        [](Canvas& canvas, const QPainterPath& path) { canvas.stroke(path, roundPen(QColor(200, 0, 0, 120), 3)); },
        curve)}};
    const auto picture = [](double ratio, const std::function<void(QPainter&)>& draw) {
        QImage image(QSizeF(200 * ratio, 400 * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
        return image;
    };
    for (const double ratio : {1.0, 1.25, 2.0}) {
        const auto whole = [&](QPainter& painter) {
            Canvas canvas(painter, {});
            scene.sprites[0].draw(canvas, 0);
        };
        EXPECT_EQ(picture(ratio,
                      [&](QPainter& painter) {
                          scene.draw(painter, {0, 0, 200, 400});
                      }),
            picture(ratio, whole))
            << ratio;
        EXPECT_NE(picture(ratio,
                      [&](QPainter& painter) {
                          scene.draw(painter, {0, 0, 200, 120});
                      }),
            picture(ratio, whole))
            << "only what was asked for";
    }
}

TEST(SceneTest, FindsTheSquaresThatHoldMarks)
{
    Scene scene{{square(u"a"_s, {10, 10, 20, 4}, Qt::red), square(u"b"_s, {301, 399, 1, 1}, QColor(0, 0, 0, 8))}};
    QRegion inked;
    for (const QRectF& area : scene.inked(4))
        inked += area.toRect();
    EXPECT_EQ(inked, QRegion(8, 8, 24, 8) + QRegion(300, 396, 4, 4));
    EXPECT_EQ(Scene().inked(4), QList<QRectF>());
    EXPECT_EQ(scene.covered(16), QRegion(0, 0, 32, 16) + QRegion(288, 384, 16, 16));
}

TEST(SceneTest, KeepsStrongMarksOutOfItemsAndTextsApart)
{
    SceneOrnament on(pair, screen, std::nullopt);
    EXPECT_FALSE(on.dot(u"dot"_s, {250, 195}, 6, Qt::black)) << "half inside";
    EXPECT_TRUE(on.dot(u"dot"_s, {250, 250}, 6, QColor(0, 0, 0, 80))) << "so faint a mark may lie behind a widget";
    EXPECT_FALSE(on.dot(u"dot"_s, {798, 100}, 6, QColor(0, 0, 0, 80))) << "half off the screen";
    EXPECT_FALSE(on.line(u"line"_s, {210, 250}, {360, 250}, flatPen(Qt::black, 2))) << "all inside";
    EXPECT_TRUE(on.line(u"line"_s, {0, 100}, {800, 100}, flatPen(Qt::black, 2)));

    const TextStyle style{.face = {.family = u"Inter"_s}, .size = 14, .colour = Qt::black};
    EXPECT_FALSE(on.label(u"label"_s, {100, 92, 200, 16}, u"under a line"_s, style));
    EXPECT_FALSE(on.label(u"label"_s, {100, 40, 30, 16}, u"longer than its box"_s, style));
    EXPECT_TRUE(on.label(u"label"_s, {100, 40, 200, 16}, u"first"_s, style));
    EXPECT_FALSE(on.label(u"label"_s, {110, 44, 200, 16}, u"second"_s, style)) << "over another";
    const qsizetype before = on.scene().sprites.size();
    EXPECT_TRUE(on.line(u"line"_s, {50, 48}, {300, 48}, flatPen(Qt::black, 2)));
    const QRectF text = on.scene().sprites[before - 1].place();
    QImage picture(screen.toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    Canvas canvas(painter, {});
    on.scene().sprites[before].draw(canvas, 0);
    painter.end();
    EXPECT_NE(picture.pixel(60, 48), 0U);
    EXPECT_EQ(picture.pixel(text.center().toPoint()), 0U) << "a line stops before a text";
}

} // namespace
} // namespace ambrelle
