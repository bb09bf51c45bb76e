// SPDX-License-Identifier: MIT

#include "skins/DrawnFace.h"
#include "skins/grove/GrovePieces.h"
#include "skins/grove/GroveStyle.h"
#include "skins/SkinRegistry.h"
#include "skins/Skins.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace ambrelle {

namespace {

QImage drawn(const QSize& size, const std::function<void(Canvas&)>& draw)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(grove::cloth);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    Canvas canvas(painter, {.ground = grove::cloth});
    draw(canvas);
    return image;
}

int pixelsOf(const QImage& image, const QColor& colour, const QRect& part)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
}

} // namespace

TEST(Grove, NoTextRunsIntoTheSprig)
{
    constexpr double overhang = 1; // of descenders and of what whole pixels round away
    for (const WidgetKind kind : allCases<WidgetKind>()) {
        const FaceView face = view(Skin::grove, kind);
        const QPointF corner = face.face().bounds.inset(face.style().inset - overhang).bottomRight();
        for (const FaceState state : faceStates) {
            const Reading reading = stateReading(kind, state, QLocale(QLocale::German));
            for (const CanvasMark& mark : drawnFace(face, reading).record)
                EXPECT_TRUE(mark.ink.right() <= corner.x() && mark.ink.bottom() <= corner.y())
                    << rawValue(kind).data() << ", state " << static_cast<int>(state) << ": " << qPrintable(mark.text);
        }
    }
}

TEST(Grove, LeavesOfABatteryAreFilledFromTheFoot)
{
    const auto battery = [](double level) {
        return drawn({138, 46},
            [&](Canvas& canvas) { groveSkin({})->charge(canvas, Box(0, 0, 138, 46), {.percent = 1, .level = level}); });
    };
    const QRect foot(0, 0, 60, 46);
    const QRect tip(80, 0, 58, 46);
    EXPECT_GT(pixelsOf(battery(0.4), grove::leafGreen, foot), 200);
    EXPECT_EQ(pixelsOf(battery(0.4), grove::leafGreen, tip), 0);
    EXPECT_GT(pixelsOf(battery(1), grove::leafGreen, tip), 200);
    EXPECT_GT(pixelsOf(battery(0.01), grove::leafGreen, foot), 30) << "a charge of one per cent has no leaf";
}

TEST(Grove, PartsOfAWholeDifferWithoutTheirColours)
{
    std::set<qsizetype> strengths;
    for (qsizetype index = 0; index < 3; ++index) {
        QPainterPath square;
        square.addRect(2, 2, 28, 28);
        const QImage image =
            drawn({32, 32}, [&](Canvas& canvas) { grove::partTint(canvas, square, index, Qt::white); });
        qsizetype sum = 0;
        for (int x = 2; x < 30; ++x) {
            for (int y = 2; y < 30; ++y)
                sum += qGray(image.pixel(x, y));
        }
        strengths.insert(sum / (28 * 28 * 20)); // in steps of twenty
    }
    EXPECT_EQ(strengths.size(), 3);
}

} // namespace ambrelle
