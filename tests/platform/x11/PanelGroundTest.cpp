// SPDX-License-Identifier: MIT

#include "platform/x11/PanelTest.h"

#include <QProcess>
#include <QStandardPaths>

#include <cmath>

namespace ambrelle::test {

using namespace Qt::StringLiterals;
namespace {

using PanelGroundTest = PanelTest;

TEST_F(PanelGroundTest, ShowsTheDesktopPictureWhereNothingComposites)
{
    const QSize screen = (host.screens().first().frame.size() * ratio).toSize();
    QImage picture = speckled(screen, 3);
    onlooker.setRootPicture(picture);
    panel->setOutline({});
    showPanel();
    const auto matches = [&] {
        const QRect place = onlooker.geometry(panel->window());
        QImage expected = picture.copy(place);
        QPainter painter(&expected);
        painter.scale(ratio, ratio);
        painter.fillRect(face.face, face.colour);
        painter.end();
        return onlooker.picture(place) == expected;
    };
    EXPECT_TRUE(waitUntil(matches));
    const QRect before = onlooker.geometry(panel->window());
    panel->setFrame({333, 147, 240, 160});
    EXPECT_TRUE(waitUntil([&] { return onlooker.geometry(panel->window()) != before && matches(); })) << "after a move";
    rest(600);
    picture = speckled(screen, 111);
    onlooker.setRootPicture(picture);
    EXPECT_TRUE(waitUntil(matches)) << "after a new picture";
    EXPECT_GE(face.changes, 1);

    // Translucent parts painted again and again stay as they are, also on the edge of a repainted part.
    face.colour.setAlpha(90);
    panel->update({{0, 0}, panel->frame().size()});
    EXPECT_TRUE(waitUntil(matches)) << "translucent";
    for (const QRectF& part : {QRectF(31, 33, 17, 11), QRectF(60.4, 41.3, 33.3, 27.9), QRectF(15, 15, 9, 9)}) {
        face.painted.clear();
        panel->update(part);
        ASSERT_TRUE(waitUntil([&] { return !face.painted.isEmpty(); }));
        EXPECT_TRUE(face.painted.first().contains(part));
        EXPECT_LT(face.painted.first().width(), part.width() + 6);
        EXPECT_TRUE(matches());
    }
}

TEST_F(PanelGroundTest, ShowsOnlyItsShapeWhereNoPictureLiesBehind)
{
    const QPolygonF upperHalf({face.face.topLeft(), face.face.topRight(), face.face.bottomLeft()});
    panel->setOutline({{face.face, 0, upperHalf}});
    showPanel();
    const QPoint inside = pixelOf(*panel, face.face.topLeft() + QPointF(12, 12));
    const QPoint outside = pixelOf(*panel, face.face.bottomRight() - QPointF(12, 12));
    EXPECT_TRUE(shows(inside, faceColour));
    EXPECT_FALSE(onlooker.pixel(outside) == faceColour);
    const QSize screen = (host.screens().first().frame.size() * ratio).toSize();
    onlooker.setRootPicture(speckled(screen, 5));
    EXPECT_TRUE(shows(outside, faceColour)) << "with a picture its ground is known";
}

TEST_F(PanelGroundTest, IsCutToItsOutlineWhereNothingComposites)
{
    showPanel();
    PlainFace neighbourFace;
    neighbourFace.colour = Qt::green;
    const std::unique_ptr<X11Panel> neighbour = make(neighbourFace, panel->frame().translated(210, 0));
    neighbour->show();
    ASSERT_TRUE(waitUntil([&] { return !neighbourFace.painted.isEmpty(); }));
    const QPoint border = pixelOf(*panel, {face.face.right() - 4, face.face.center().y()});
    ASSERT_TRUE(onlooker.geometry(neighbour->window()).contains(border));
    EXPECT_TRUE(shows(border, faceColour)) << "the neighbour's margin lies over the face";

    const xcb_window_t other = coverPanel();
    panel->setLevel(WindowLevel::floating);
    ASSERT_TRUE(waitUntil([&] { return onlooker.isAbove(panel->window(), other); }));
    EXPECT_TRUE(shows(facePixel(), faceColour));
    EXPECT_TRUE(shows(marginPixel(), windowColour));
    EXPECT_TRUE(shows(pixelOf(*panel, face.face.topLeft() + QPointF(2, 2)), windowColour)) << "the round corner";
    EXPECT_TRUE(shows(pixelOf(*panel, face.face.topLeft() + QPointF(8, 8)), faceColour));
}

TEST_F(PanelGroundTest, FollowsACompositorThatComesAndGoes)
{
    if (QStandardPaths::findExecutable(u"picom"_s).isEmpty())
        GTEST_SKIP() << "picom is not installed";
    showPanel();
    const xcb_window_t other = coverPanel();
    panel->setLevel(WindowLevel::floating);
    rest(600);
    face.colour.setAlpha(128);
    face.changes = 0;

    QProcess picom;
    picom.start(u"picom"_s, {"--config", "/dev/null", "--backend", "xrender", "--no-vsync"});
    ASSERT_TRUE(waitUntil([&] { return onlooker.isComposited() && face.changes > 0; }));
    EXPECT_TRUE(shows(marginPixel(), windowColour));
    EXPECT_TRUE(waitUntil([&] {
        const QRgb seen = onlooker.pixel(facePixel());
        return std::abs(qRed(seen) - (qRed(faceColour) + qRed(windowColour)) / 2) < 4
            && std::abs(qBlue(seen) - (qBlue(faceColour) + qBlue(windowColour)) / 2) < 4;
    })) << std::hex
        << onlooker.pixel(facePixel());
    // Many partial paints do not add up.
    const QRgb before = onlooker.pixel(facePixel());
    for (int round = 0; round < 5; ++round) {
        panel->update(face.face.adjusted(3, 3, -3, -3));
        rest(30);
    }
    EXPECT_EQ(onlooker.pixel(facePixel()), before);

    picom.terminate();
    EXPECT_TRUE(waitUntil([&] { return !onlooker.isComposited() && face.changes > 1; }));
    EXPECT_TRUE(shows(marginPixel(), windowColour));
    EXPECT_TRUE(waitUntil([&] { return picom.state() == QProcess::NotRunning; }));
    onlooker.closeWindow(other);
}

} // namespace
} // namespace ambrelle::test
