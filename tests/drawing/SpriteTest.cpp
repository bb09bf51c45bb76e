// SPDX-License-Identifier: MIT

#include "drawing/Sprite.h"
#include "drawing/Drawn.h"

#include <gtest/gtest.h>

namespace ambrelle {

namespace {

const QColor red(255, 0, 0);
const QColor blue(0, 0, 255);

const Sprite arrow(R"(
    #...
    ##..
    #b#.
    ....)",
    {{'#', red}, {'b', blue}});

const Sprite blinking({"# #", "b #", ". #"}, {{'#', red}, {'b', blue}});

} // namespace

TEST(Sprite, ShowsEachLetterInItsColour)
{
    EXPECT_EQ(arrow.size(), QSize(4, 4));
    const QImage image = drawnWith([](Canvas& canvas) { arrow.draw(canvas, {10, 20, 12, 12}, 3); });
    EXPECT_EQ(inkOf(image), QRect(10, 20, 9, 9));
    EXPECT_EQ(image.pixelColor(11, 21), red);
    EXPECT_EQ(image.pixelColor(14, 27), blue);
    EXPECT_EQ(image.pixelColor(18, 28), red);
    EXPECT_EQ(image.pixelColor(14, 21).alpha(), 0);
    for (int y = 20; y < 29; ++y)
        EXPECT_EQ(image.pixelColor(10, y), red) << "a seam between two pixels";
}

TEST(Sprite, LetterWithoutAColourAndRowsOfDifferentLengthAreClearThere)
{
    const Sprite odd("#? ###", {{'#', red}});
    EXPECT_EQ(odd.size(), QSize(3, 2));
    const QImage image = drawnWith([&](Canvas& canvas) { odd.draw(canvas, {0, 0, 3, 2}, 1); });
    EXPECT_EQ(image.pixelColor(1, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(2, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(2, 1), red);
    const Sprite nothing("", {});
    EXPECT_EQ(inkOf(drawnWith([&](Canvas& canvas) { nothing.draw(canvas, {0, 0, 9, 9}, 1); })), QRect());
}

TEST(Sprite, IsMadeOfWholePixelsAtEveryScale)
{
    for (const double scale : {0.75, 1.0, 1.25, 2.0}) {
        const QImage image = drawnWith(
            [](Canvas& canvas) {
                arrow.draw(canvas, {10.4, 20.3, 12, 12}, 3);
            },
            {.finish = Finish::crisp}, scale);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                EXPECT_TRUE(colour.alpha() == 0 || colour == red || colour == blue) << scale << ' ' << x << ' ' << y;
            }
        }
    }
}

TEST(Sprite, PlaysItsFramesFromTheFirstOneOn)
{
    const Box box(20, 20, 4, 4);
    const auto play = [&](Canvas& canvas) { blinking.play(canvas, box, 2, 2); };
    const auto frame = [&](int index) {
        return drawnWith([&](Canvas& canvas) { blinking.draw(canvas, box, 2, index); });
    };
    const auto areas = movingAreasOf(play);
    ASSERT_EQ(areas.size(), 1);
    EXPECT_EQ(areas[0].motion, Motion::steady(2));
    EXPECT_TRUE(areas[0].area.toAlignedRect().contains(inkOf(frame(0))));
    EXPECT_LE(areas[0].area.width(), 4);
    const QList<std::pair<double, int>> cases{{0, 0}, {0.49, 0}, {0.5, 1}, {1.2, 2}, {1.5, 0}, {8e8, 1}};
    for (const auto& [time, index] : cases)
        EXPECT_EQ(movedTo(time, play), frame(index)) << time;
    EXPECT_EQ(frame(4), frame(1));
    EXPECT_TRUE(movingAreasOf([&](Canvas& canvas) { arrow.play(canvas, box, 1); }).isEmpty());
}

} // namespace ambrelle
