// SPDX-License-Identifier: MIT

#include "offline/SitePictures.h"

#include "drawing/Box.h"
#include "offline/SiteTexts.h"

#include <gtest/gtest.h>

#include <set>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

Scene sceneWith(const QRectF& place, const QRectF& ink)
{
    const auto draw = [](Canvas& canvas, const Box& box, const QColor& colour) { canvas.fill(box, colour); };
    return {{SceneSprite(u"mark"_s, place, draw, Box(ink), QColor(Qt::red))}};
}

TEST(SitePicturesTest, AMarkIsCutToWhatIsSeenOnTheScreen)
{
    struct Case {
        QRectF place;
        QRectF ink;
        QRectF expected; ///< null: nothing is seen
    };
    const QSizeF screen(100, 80);
    for (const Case& each : {
             Case{{0, 0, 100, 80}, {20, 30, 10, 5}, {20, 30, 10, 5}},
             Case{{0, 0, 100, 80}, {20.5, 30.5, 10, 5}, {20.5, 30.5, 10, 5}},
             Case{{80, 70, 60, 60}, {90, 75, 40, 40}, {90, 75, 10, 5}},
             Case{{10, 10, 20, 20}, {}, {}},
             Case{{120, 10, 20, 20}, {120, 10, 20, 20}, {}},
         }) {
        const auto mark = SitePictures::mark(sceneWith(each.place, each.ink), 0, screen);
        ASSERT_EQ(mark.has_value(), !each.expected.isNull());
        if (!mark)
            continue;
        EXPECT_EQ(mark->place, each.expected);
        EXPECT_EQ(mark->picture.size(), (each.expected.size() * SitePictures::scale).toSize());
        EXPECT_EQ(mark->picture.pixelColor(0, 0), QColor(Qt::red));
    }
}

TEST(SitePicturesTest, ColoursAreCountedByWhatIsSeen)
{
    QImage picture(40, 10, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const auto paint = [&picture](int from, int to, const QColor& colour) {
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < picture.height(); ++y)
                picture.setPixelColor(x, y, colour);
        }
    };
    paint(0, 5, QColor(250, 10, 10));
    paint(5, 9, QColor(236, 20, 10)); // much the same
    paint(9, 19, QColor(0, 0, 255, 128)); // translucent, but seen
    paint(19, 40, QColor(0, 255, 0, 10));
    SitePictures::ColourCount count;
    count.add(picture);
    const QList<QColor> colours = count.most(4);
    ASSERT_EQ(colours.size(), 2);
    EXPECT_EQ(colours[0], QColor(0, 0, 255));
    EXPECT_GT(colours[1].red(), 240);
    EXPECT_EQ(count.most(1).size(), 1);
    QImage halves(2, 2, QImage::Format_RGB32);
    halves.fill(QColor(10, 20, 30));
    halves.setPixelColor(0, 0, QColor(50, 20, 30));
    EXPECT_EQ(SitePictures::mean(halves), QColor(20, 20, 30));
}

TEST(SiteTextsTest, EveryKindIsToldInItsOwnWords)
{
    std::set<QString> told;
    for (const WidgetKind kind : allCases<WidgetKind>())
        told.insert(SiteTexts::blurb(kind));
    EXPECT_EQ(told.size(), allCases<WidgetKind>().size());
    EXPECT_FALSE(told.contains(QString()));
}

} // namespace
